// O arraste automático: do mouse, que o controle segue, e do teclado, que salta de alvo em alvo.
#include "platform/base/relogio.h"
#include "platform/tela/laco_interno.h"

#include <cmath>

namespace verdalia {

Retangulo na_tela(const Controle& c, Retangulo r) {
    r.x += c.dona.origem_x();
    r.y += c.dona.origem_y();
    return r;
}

namespace {

Arraste arraste_em(const Controle& alvo) {
    const Retangulo r = na_tela(alvo, alvo.lugar());
    return {e.arrastado, e.x - r.x, e.y - r.y};
}

// O que o realce mostra: a casa debaixo do ponteiro, ou o que o controle disser.
Retangulo realce(const Controle& c) {
    Retangulo r = na_tela(c, c.realce());
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
    e.botao_de_antes = 0; // o aperto que virou arraste não é o primeiro de um clique duplo
    e.figura_do_arraste = c->figura ? carrega_figura(c->figura->caminho) : nullptr;
    apaga_dica();
    e.voo_comeca = -1;
    if (pelo_teclado) {
        e.dona_da_dica = c;
        e.dica_do_teclado = e.dica_a_vista = true;
        e.dica = "As setas levam, Enter solta, Esc desiste";
    }
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

namespace {

Retangulo no_ponteiro(const Controle& c) {
    return {e.x - c.largura / 2, e.y - c.altura / 2, c.largura, c.altura};
}

void acaba_arraste() {
    apaga_dica();
    e.arrastado = nullptr;
    e.alvo = nullptr;
    e.apertado = nullptr;
    e.sujo = true;
}

// A figura volta voando ao lugar de onde saiu: nada aconteceu.
void volta_ao_lugar(const Controle& c) {
    e.voo_de = no_ponteiro(c);
    e.voo_para = na_tela(c, c.lugar());
    e.voo_comeca = relogio->milissegundos();
}

constexpr double duracao_do_voo = 220; // milissegundos

} // namespace

bool voando() {
    return e.voo_comeca >= 0;
}

void desiste_do_arraste() {
    if (e.arrastado == nullptr) return;
    volta_ao_lugar(*e.arrastado);
    Tela& tela = e.arrastado->dona;
    acaba_arraste();
    tela.desistiu_do_arraste();
}

void larga_arraste() {
    Controle* const fonte = e.arrastado;
    Controle* const alvo = controle_em(e.x, e.y);
    Tela* const tela = tela_ativa();
    const bool na_janela = e.x >= 0 && e.y >= 0 && e.x < largura_logica && e.y < altura_logica;
    const Arraste queda = alvo != nullptr ? arraste_em(*alvo) : Arraste{fonte, e.x, e.y};
    const bool recebe = alvo != nullptr && alvo->ativo && alvo->solta;
    volta_ao_lugar(*fonte);
    acaba_arraste();
    if (recebe || (alvo == nullptr && na_janela && tela != nullptr && tela->Form_DragDrop(queda))) e.voo_comeca = -1;
    if (recebe) alvo->solta(queda);
}

void pinta_arraste(Pintor& p) {
    if (e.arrastado == nullptr) {
        const double quanto = static_cast<double>(relogio->milissegundos() - e.voo_comeca) / duracao_do_voo;
        if (quanto >= 1) e.voo_comeca = -1;
        if (!voando() || !e.figura_do_arraste) return;
        const auto entre = [quanto](double de, double para) { return de + (para - de) * quanto; };
        p.imagem(*e.figura_do_arraste,
                 {entre(e.voo_de.x, e.voo_para.x), entre(e.voo_de.y, e.voo_para.y), e.voo_de.largura, e.voo_de.altura});
        return;
    }
    if (e.alvo != nullptr && e.alvo != e.arrastado && e.alvo->ativo && e.alvo->solta) p.anel(realce(*e.alvo));
    Retangulo r = no_ponteiro(*e.arrastado);
    if (e.pelo_teclado) { // o que se pegou parece erguido da tela
        p.redondo({r.x + 5, r.y + r.altura - 2, r.largura - 6, 8}, 4, {0x43, 0x27, 0x1a});
        r = {r.x - r.largura / 8, r.y - r.altura / 4 - 4, r.largura * 1.25, r.altura * 1.25};
    }
    if (e.figura_do_arraste)
        p.imagem(*e.figura_do_arraste, r);
    else
        p.contorno(r, 2, cor_foco);
}

} // namespace verdalia
