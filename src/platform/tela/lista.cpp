#include "platform/tela/lista.h"

#include "platform/tela/tela.h"

#include <SDL.h>
#include <algorithm>

namespace verdalia {

ListaSuspensa::ListaSuspensa(Tela& tela, std::string nome_dado, int indice_dado)
    : Controle(tela, std::move(nome_dado), indice_dado) {
    letra = {.corpo = 12};
    cliques_rapidos = true;
}

Retangulo ListaSuspensa::aberta() const {
    if (!esta_aberta) return {};
    const Retangulo r = lugar();
    return {r.x, r.y, r.largura, r.altura * static_cast<double>(itens.size() + 1)};
}

void ListaSuspensa::escolhe(int item) {
    item = std::clamp(item, 0, static_cast<int>(itens.size()) - 1);
    if (item == escolhido || itens.empty()) return;
    escolhido = item;
    if (muda) muda();
}

void ListaSuspensa::aperta(double, double y) {
    const Retangulo r = lugar();
    if (esta_aberta && y >= r.y + r.altura) escolhe(static_cast<int>((y - r.y) / r.altura) - 1);
    esta_aberta = !esta_aberta;
}

void ListaSuspensa::roda(int passo) {
    escolhe(escolhido - passo);
}

bool ListaSuspensa::teclado(const Tecla& t) {
    switch (t.codigo) {
    case SDLK_UP:
        escolhe(escolhido - 1);
        return true;
    case SDLK_DOWN:
        escolhe(escolhido + 1);
        return true;
    case SDLK_SPACE:
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        esta_aberta = !esta_aberta;
        return true;
    case SDLK_ESCAPE:
        if (!esta_aberta) return false;
        esta_aberta = false;
        return true;
    default:
        return false;
    }
}

void ListaSuspensa::pinta(Pintor& p, const Retangulo& r) {
    p.moldura(r, 5, 1.5, cor_madeira_escura, cor_papel_claro);
    if (escolhido >= 0 && escolhido < static_cast<int>(itens.size()))
        p.texto_em(itens[static_cast<std::size_t>(escolhido)], {r.x + 10, r.y, r.largura - 40, r.altura}, letra,
                   Alinha::esquerda);
    const Retangulo seta{r.x + r.largura - 26, r.y + 3, 23, r.altura - 6};
    p.redondo(seta, 4, cor_ouro);
    for (int i = 0; i < 6; ++i)
        p.retangulo({seta.x + 5.5 + i, seta.y + seta.altura / 2 - 3 + i, 12.0 - 2 * i, 1.2}, cor_tinta);
}

void ListaSuspensa::pinta_por_cima(Pintor& p) {
    if (!esta_aberta) return;
    Retangulo r = lugar();
    r.x += dona.origem_x();
    r.y += dona.origem_y() + r.altura;
    const Retangulo toda{r.x, r.y, r.largura, r.altura * static_cast<double>(itens.size())};
    p.moldura({toda.x - 1, toda.y - 1, toda.largura + 2, toda.altura + 2}, 4, 1, cor_madeira_escura, cor_papel_claro);
    for (std::size_t i = 0; i < itens.size(); ++i, r.y += r.altura) {
        if (static_cast<int>(i) == escolhido) p.redondo({r.x + 2, r.y + 1, r.largura - 4, r.altura - 2}, 4, cor_ouro);
        p.texto_em(itens[i], {r.x + 10, r.y, r.largura - 20, r.altura}, letra, Alinha::esquerda);
    }
}

} // namespace verdalia
