// O arraste automático: do mouse, que o controle segue, e do teclado, que salta de alvo em alvo.
#include "platform/tela/laco_interno.h"

#include <cmath>

namespace verdalia {

namespace {

EstadoDoLaco& e = estado_do_laco;

Retangulo na_tela(const Controle& c) {
    Retangulo r = c.lugar();
    r.x += c.dona.origem_x();
    r.y += c.dona.origem_y();
    return r;
}

Arraste arraste_em(const Controle& alvo) {
    const Retangulo r = na_tela(alvo);
    return {e.arrastado, e.x - r.x, e.y - r.y};
}

// O que o realce mostra: a casa debaixo do ponteiro, ou o controle inteiro.
Retangulo realce(const Controle& c) {
    Retangulo r = na_tela(c);
    const Grade& g = c.grade;
    if (g.colunas > 0) {
        const double coluna = std::floor((e.x - r.x) / g.passo_x), linha = std::floor((e.y - r.y) / g.passo_y);
        r = {r.x + coluna * g.passo_x, r.y + linha * g.passo_y, g.passo_x, g.passo_y};
    }
    return r;
}

} // namespace

void comeca_arraste(Controle* c, bool pelo_teclado) {
    e.arrastado = c;
    e.alvo = nullptr;
    e.pelo_teclado = pelo_teclado;
    e.figura_do_arraste = c->figura ? carrega_figura(c->figura->caminho) : nullptr;
    e.dica_a_vista = false;
    e.hora_da_dica = -1;
    move_arraste();
}

void move_arraste() {
    e.alvo = controle_em(e.x, e.y);
    if (e.alvo == nullptr)
        tela_ativa()->Form_DragOver();
    else if (e.alvo->ativo && e.alvo->sobre)
        e.alvo->sobre(arraste_em(*e.alvo));
    e.sujo = true;
}

void desiste_do_arraste() {
    if (e.arrastado == nullptr) return;
    e.arrastado = nullptr;
    e.alvo = nullptr;
    e.apertado = nullptr;
    e.figura_do_arraste.reset();
    e.sujo = true;
}

void larga_arraste() {
    Controle* alvo = e.alvo;
    Tela* tela = tela_ativa();
    const bool na_janela = e.x >= 0 && e.y >= 0 && e.x < largura_logica && e.y < altura_logica;
    const Arraste queda = alvo != nullptr ? arraste_em(*alvo) : Arraste{e.arrastado, e.x, e.y};
    desiste_do_arraste();
    if (alvo != nullptr) {
        if (alvo->ativo && alvo->solta) alvo->solta(queda);
    } else if (na_janela && tela != nullptr) {
        tela->Form_DragDrop(queda);
    }
}

void pinta_arraste(Pintor& p) {
    if (e.arrastado == nullptr) return;
    if (e.alvo != nullptr && e.alvo != e.arrastado && e.alvo->ativo && e.alvo->solta) {
        const Retangulo r = realce(*e.alvo);
        p.contorno({r.x - 1, r.y - 1, r.largura + 2, r.altura + 2}, 3, cor_tinta_clara);
        p.contorno({r.x, r.y, r.largura, r.altura}, 1.5, cor_foco);
    }
    const Controle& c = *e.arrastado;
    const Retangulo r{e.x - c.largura / 2, e.y - c.altura / 2, c.largura, c.altura};
    if (e.figura_do_arraste)
        p.imagem(*e.figura_do_arraste, r);
    else
        p.contorno(r, 2, cor_foco);
}

} // namespace verdalia
