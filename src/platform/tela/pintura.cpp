// O que há que pintar, e pintá-lo: as telas à vista, de baixo para cima, e por cima delas o foco, o arraste e a dica.
#include "platform/tela/laco_interno.h"

#include <algorithm>
#include <utility>

namespace verdalia {

namespace {

void pinta_dica(Pintor& p) {
    const Controle* c = e.dona_da_dica;
    if (!e.dica_a_vista || c == nullptr) return;
    const Letra letra{.familia = Familia::legenda, .corpo = 10};
    const auto linhas = quebra_linhas(e.dica, letra, 260);
    double largura = 0;
    for (const std::string& linha : linhas) largura = std::max(largura, largura_texto(linha, letra));
    Retangulo r{e.x + 12, e.y + 20, largura + 14, altura_linha(letra) * static_cast<double>(linhas.size()) + 6};
    if (e.dica_do_teclado) {
        const Retangulo lugar = na_tela(*c, c->lugar());
        r.x = lugar.x;
        r.y = lugar.y + lugar.altura + 4;
    }
    r.x = std::clamp(r.x, 4.0, std::max(4.0, largura_logica - r.largura - 4));
    if (r.y + r.altura > altura_logica - 4) r.y -= r.altura + 28;
    p.moldura(r, 5, 1, cor_madeira_escura, cor_papel_claro);
    p.texto_em(e.dica, {r.x + 7, r.y + 3, r.largura - 9, r.altura - 6}, letra, Alinha::esquerda);
}

} // namespace

void suja(const Controle& c) {
    const Retangulo r = na_tela(c, c.lugar());
    Retangulo& area = e.area_suja;
    if (area.largura <= 0) area = r;
    const double direita = std::max(area.x + area.largura, r.x + r.largura);
    const double embaixo = std::max(area.y + area.altura, r.y + r.altura);
    area.x = std::min(area.x, r.x);
    area.y = std::min(area.y, r.y);
    area.largura = direita - area.x;
    area.altura = embaixo - area.y;
}

void pinta_o_sujo() {
    const bool tudo = std::exchange(e.sujo, false);
    const Retangulo area = std::exchange(e.area_suja, {});
    SDL_Surface* superficie = hospedeiro->superficie();
    if (superficie == nullptr) return;
    Pintor p(superficie);
    if (!tudo) p.limita(area);
    p.pinta_folgas();
    const int base = base_da_pilha();
    if (base < 0) p.retangulo({0, 0, largura_logica, altura_logica}, cor_grama);
    for (std::size_t i = base < 0 ? 0 : static_cast<std::size_t>(base); i < e.pilha.size(); ++i)
        if (e.pilha[i].a_vista) e.pilha[i].tela->pinta(p);
    if (Tela* t = tela_ativa(); t != nullptr && t->foco != nullptr) t->foco->pinta_por_cima(p);
    pinta_foco(p);
    pinta_arraste(p);
    pinta_dica(p);
    hospedeiro->apresenta(p.area);
}

void pinta_tudo() {
    e.sujo = true;
    pinta_o_sujo();
}

} // namespace verdalia
