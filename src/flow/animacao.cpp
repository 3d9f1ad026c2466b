#include "flow/animacao.h"

#include "data/estado.h"

#include <algorithm>

namespace verdalia {

namespace {

const Serie* serie_da(std::span<const Serie> series, int acao) {
    const auto achada = std::find_if(series.begin(), series.end(), [acao](const Serie& s) { return s.acao == acao; });
    return achada == series.end() ? nullptr : &*achada;
}

} // namespace

std::string arquivo_do_quadro(const Serie& serie, int numero) {
    std::string n = std::to_string(numero);
    n.insert(0, static_cast<std::size_t>(std::max(0, serie.algarismos - static_cast<int>(n.size()))), '0');
    return dir_media + serie.antes + n + serie.depois;
}

void comeca_animacao(std::span<const Serie> series, std::int16_t acao, Temporizador& timer_) {
    anim_acao = acao;
    anim_quadros = static_cast<std::int16_t>(serie_da(series, acao)->quadros.size());
    timer_.intervalo = intervalo_da_animacao;
}

void tique_da_animacao(Tela& tela, std::span<const Serie> series, Temporizador& timer_,
                       const std::function<void(int acao)>& fim) {
    const Serie* serie = serie_da(series, anim_acao);
    if (timer_.intervalo == 0 || serie == nullptr) return;
    if (anim_quadros <= 0) {
        timer_.intervalo = 0;
        fim(anim_acao);
        return;
    }
    const int numero = serie->quadros[serie->quadros.size() - static_cast<std::size_t>(anim_quadros)];
    --anim_quadros;
    if (Controle* c = tela.controle(serie->controle, serie->indice))
        c->figura = carrega_figura(arquivo_do_quadro(*serie, numero));
}

} // namespace verdalia
