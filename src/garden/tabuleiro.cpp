// O tabuleiro: os controles dos canteiros e as três passadas que os acertam com as tabelas.
#include "garden/tabuleiro.h"

#include "data/conselho.h"
#include "data/estado.h"
#include "data/plano.h"
#include "garden/tabelas.h"
#include "garden/trabalhando_na_horta.h"

namespace verdalia {

using namespace horta_tabelas;

void trabalhando_na_horta::cria_canteiro(int i) {
    // Ficam escondidos até que uma passada os pinte.
    const int coluna = i % lado_da_horta, fileira = i / lado_da_horta;
    const double x = coluna * passo_da_horta, y = fileira * passo_da_horta;
    const auto poe = [this, i](Controle& c, const Retangulo& onde) {
        c.pai = &horta;
        c.fica_em(onde);
        c.visivel = false;
        c.dica_viva = [i](double, double) { return situacao_do_canteiro(i); };
    };
    Figura& f = cant.cria(i);
    poe(f, {x + 1, y + 1, 39, 40});
    f.arrasta = true;
    f.ponteiro = ponteiro_horta;
    f.solta = [this](const Arraste& a) { cant_DragDrop(a); };
    f.clique = [this] { Form_Click(); }; // como no fundo: cala o que se ouve
    Rotulo& r = txt_label.cria(i);
    poe(r, {x + 2, y + 2, 37, 16});
    r.borda = true;
    r.letra = {.corpo = 9, .negrito = true};
    r.ponteiro = ponteiro_mao;
    r.clique = [this, i] { txt_label_Click(i); };
}

void trabalhando_na_horta::destroi_canteiro(int i) {
    cant.destroi(i);
    txt_label.destroi(i);
}

void trabalhando_na_horta::cria_cants() {
    for (int i = 0; i < n_canteiros; ++i)
        if (st_cod_cult[i] > cult_vago) cria_canteiro(i);
}

void trabalhando_na_horta::paint_modulo(int i) {
    if (st_cod_cult[i] == cult_vago) return destroi_canteiro(i);
    if (st_cod_cult[i] < cult_vago) return;
    troca_figura(cant(i).figura, dir_media + botao_da_cultura(st_cod_cult[i]).figura);
    cant(i).visivel = true;
}

void trabalhando_na_horta::passa_pelos_canteiros(std::int16_t modo, const std::string& op, bool olha_o_feito) {
    apaga_botoes();
    for (int i = 0; i < n_canteiros; ++i) {
        if (st_cod_cult[i] <= cult_vago) continue;
        txt_label(i).visivel = false;
        txt_label(i).texto = st_check[i] == -1 ? "ok" : "";
        paint_modulo(i);
        const std::string oper = oper_canteiro(st_cod_cult[i], st_idade[i]);
        mostra_legenda(modo, op, i, false, oper);
        acende(oper, olha_o_feito ? st_check[i] : std::int16_t{0});
    }
    poe_faces();
}

void trabalhando_na_horta::monta_matriz(std::int16_t modo, const std::string& op) {
    passa_pelos_canteiros(modo, op, false);
}

void trabalhando_na_horta::monta_matriz2(std::int16_t modo, const std::string& op) {
    passa_pelos_canteiros(modo, op, true);
}

void trabalhando_na_horta::monta_matriz3(std::int16_t modo, const std::string& op) {
    for (int i = 0; i < n_canteiros; ++i) {
        if (st_cod_cult[i] <= cult_vago) continue;
        txt_label(i).texto = st_check[i] == -1 ? "ok" : "";
        txt_label(i).visivel = false;
        mostra_legenda(modo, op, i, false, oper_canteiro(st_cod_cult[i], st_idade[i]));
    }
}

void trabalhando_na_horta::mostra_legenda(std::int16_t modo, const std::string& op, int i, bool recalcula,
                                          std::string oper) {
    leg_modo = modo;
    leg_op = op;
    if (const Trabalho* t = trato(op)) {
        txt_label(i).cor_fundo = t->cor;
        txt_label(i).letra.cor = t->cor_do_texto;
    }
    if (st_cod_cult[i] <= cult_vago || modo != 1) return;
    if (recalcula) oper = oper_canteiro(st_cod_cult[i], st_idade[i]);
    if (oper != op) return;
    txt_label(i).visivel = true;
    achou_canteiro = true;
}

void trabalhando_na_horta::btn_sem_horta() {
    Botao& b = Command2(botao_sementeira);
    const int pendencia = pend_leira();
    b.ativo = pendencia == 1 || falta_semear();
    b.cor_fundo = pendencia > 0 || b.ativo ? cor_sem : cor_cinza;
}

} // namespace verdalia
