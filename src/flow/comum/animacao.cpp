#include "flow/comum/animacao.h"

#include "data/estado.h"
#include "flow/comum/falas.h"
#include "platform/tela/botao.h"

#include <algorithm>

namespace verdalia {

void Animacao::comeca(std::int16_t acao) {
    const auto serie = std::find_if(series.begin(), series.end(), [acao](const Serie& s) { return s.acao == acao; });
    contador[static_cast<std::size_t>(serie - series.begin())] = serie->inicio;
    anim_acao = acao;
    anim_quadros = serie->do_clique > 0 ? serie->do_clique : static_cast<std::int16_t>(serie->quadros.size());
    timer_.intervalo = intervalo_da_animacao;
}

bool Animacao::saindo() const {
    return timer_.intervalo != 0 && std::any_of(series.begin(), series.end(), [](const Serie& s) {
               return s.acao == anim_acao && s.destino != sem_destino;
           });
}

void Animacao::mostra_quadro(const Serie& serie, int numero) {
    std::string n = std::to_string(numero);
    n.insert(0, static_cast<std::size_t>(std::max(0, serie.algarismos - static_cast<int>(n.size()))), '0');
    const ImagemRef quadro =
        carrega_figura(serie.arquivo != nullptr ? serie.arquivo(numero) : dir_media + serie.antes + n + serie.depois);
    Controle* c = tela.controle(serie.controle, serie.indice);
    if (auto* botao = dynamic_cast<Botao*>(c); botao != nullptr && !botao->ativo)
        botao->figura_apagada = quadro;
    else if (c != nullptr)
        c->figura = quadro;
}

void Animacao::acaba(const Serie& serie) {
    timer_.intervalo = 0;
    if (serie.repouso >= 0) mostra_quadro(serie, serie.repouso);
    if (serie.destino == sem_destino) {
        if (fim) fim(serie.acao);
        return;
    }
    if (Controle* c = tela.controle(serie.controle, serie.indice)) c->ponteiro = ponteiro_ampulheta;
    if (serie.fala != nullptr) fala(serie.fala, espera_o_fim);
    descarrega(tela);
    mostra(serie.destino);
}

void Animacao::tique() {
    if (timer_.intervalo == 0) return;
    for (std::size_t i = 0; i < series.size(); ++i) {
        const Serie& serie = series[i];
        if (anim_acao != serie.acao && !(passeio && serie.no_passeio)) continue;
        if (anim_quadros <= 0) {
            if (tela_ativa() == &tela) acaba(serie); // com um diálogo aberto, a ação espera que ele se feche
            return;
        }
        --anim_quadros;
        const auto total = static_cast<std::int16_t>(serie.quadros.size());
        mostra_quadro(serie, serie.quadros[static_cast<std::size_t>(contador[i] - 1)]);
        contador[i] = contador[i] == total ? std::int16_t{1} : static_cast<std::int16_t>(contador[i] + 1);
    }
}

} // namespace verdalia
