#include "flow/comum/animacao.h"

#include "data/estado.h"
#include "flow/comum/falas.h"
#include "platform/tela/botao.h"

#include <algorithm>

namespace verdalia {

void Animacao::comeca(std::int16_t acao) {
    para();
    const auto serie = std::find_if(series.begin(), series.end(), [acao](const Serie& s) { return s.acao == acao; });
    contador[static_cast<std::size_t>(serie - series.begin())] = serie->inicio;
    anim_acao = acao;
    anim_quadros = serie->do_clique > 0 ? serie->do_clique : static_cast<std::int16_t>(serie->quadros.numeros.size());
    timer_.intervalo = intervalo_da_animacao;

    const Controle* c = quem_mostra(*serie);
    const auto* botao = dynamic_cast<const Botao*>(c);
    em_curso = &*serie;
    figura_antes = c->figura;
    apagada_antes = botao != nullptr ? botao->figura_apagada : nullptr;
    ponteiro_antes = c->ponteiro;
}

void Animacao::para() {
    timer_.intervalo = 0;
    if (em_curso == nullptr) return;
    Controle* c = quem_mostra(*em_curso);
    c->figura = figura_antes;
    c->ponteiro = ponteiro_antes;
    if (auto* botao = dynamic_cast<Botao*>(c)) botao->figura_apagada = apagada_antes;
    em_curso = nullptr;
}

bool Animacao::saindo() const {
    return timer_.intervalo != 0 && em_curso != nullptr && em_curso->viagem.destino != sem_destino;
}

void Animacao::mostra(const Serie& serie, int numero) {
    const Quadros& q = serie.quadros;
    std::string n = std::to_string(numero);
    n.insert(0, static_cast<std::size_t>(std::max(0, q.algarismos - static_cast<int>(n.size()))), '0');
    const ImagemRef quadro =
        carrega_figura(q.arquivo != nullptr ? q.arquivo(numero) : dir_media + q.antes + n + q.depois);
    Controle* c = quem_mostra(serie);
    if (auto* botao = dynamic_cast<Botao*>(c); botao != nullptr && !botao->ativo)
        botao->figura_apagada = quadro;
    else
        c->figura = quadro;
}

void Animacao::acaba(const Serie& serie) {
    timer_.intervalo = 0;
    em_curso = nullptr;
    if (serie.repouso >= 0) mostra(serie, serie.repouso);
    if (serie.viagem.destino == sem_destino) {
        if (fim) fim(serie.acao);
        return;
    }
    quem_mostra(serie)->ponteiro = ponteiro_ampulheta;
    if (serie.viagem.fala != nullptr) fala(serie.viagem.fala, espera_o_fim);
    descarrega(tela);
    verdalia::mostra(serie.viagem.destino);
}

void Animacao::tique() {
    if (timer_.intervalo == 0) return;
    for (std::size_t i = 0; i < series.size(); ++i) {
        const Serie& serie = series[i];
        const bool escolhida = anim_acao == serie.acao;
        if (!escolhida && !(passeio && serie.no_passeio)) continue;
        if (anim_quadros <= 0) {
            if (!escolhida) continue;
            if (tela_ativa() == &tela) acaba(serie); // com um diálogo aberto, a ação espera que ele se feche
            return;
        }
        --anim_quadros;
        const auto total = static_cast<std::int16_t>(serie.quadros.numeros.size());
        mostra(serie, serie.quadros.numeros[static_cast<std::size_t>(contador[i] - 1)]);
        contador[i] = contador[i] == total ? std::int16_t{1} : static_cast<std::int16_t>(contador[i] + 1);
    }
}

} // namespace verdalia
