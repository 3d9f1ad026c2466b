#include "garden/trabalhando_na_horta.h"

#include "data/conselho.h"
#include "data/estado.h"
#include "data/plano.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "garden/tabelas.h"
#include "garden/tabuleiro.h"

namespace verdalia {

using namespace horta_tabelas;

trabalhando_na_horta::trabalhando_na_horta()
    : TelaDeTratos("trabalhando_na_horta", series, horta_tabelas::trabalhos, horta_tabelas::culturas, "Command2",
                   "txt_label") {
    solta_no_fundo = true;
    TelaDeTrabalho::paineis.assign(std::begin(horta_tabelas::paineis), std::end(horta_tabelas::paineis));
}

void trabalhando_na_horta::cria_rotulos() {
    for (int i = 0; i < lado_da_horta; ++i) {
        const double passos = passo_da_horta * i;
        poe_regua(Label1.cria(i), std::to_string(i + 1), {200 + passos, 144, passo_da_horta, 19});
        poe_regua(Label2.cria(i), std::string(1, static_cast<char>('A' + i)), {179, 164 + passos, 20, passo_da_horta});
    }
    constexpr const char* topicos[] = {"Culturas1", "Culturas2"};
    for (int k = 0; k < 2; ++k) liga_ajuda(lbl_verduras.cria(k), topicos[k], 12);
}

void trabalhando_na_horta::Form_Load() {
    cria_rotulos();
    prepara("horta", lugares);
    leg_modo = 0;
    leg_op.clear();
    apaga_botoes();
    for (const Trabalho& t : trabalhos) {
        Command2(t.botao).visivel = false; // até que tenham as faces
        Command2(t.botao).ponteiro = ponteiro_horta;
    }
    horta.figura = carrega_figura(dir_media + "\\anima\\g_horta3.jpg");
    horta.ponteiro = ponteiro_horta;
    horta.grade = {lado_da_horta, lado_da_horta, passo_da_horta, passo_da_horta};
    horta.solta = [this](const Arraste& a) { horta_DragDrop(a); };
    horta.clique = [this] { Form_Click(); }; // a terra cala o que se ouve, como o fundo
    horta.so_do_mouse = true;
    horta.dica_viva = [](double x, double y) { return situacao_do_canteiro(casa_da_horta(x, y)); };
    pic_semen.figura = carrega_figura(dir_media + "\\anima\\mudas007.bmp");
    pic_semen.clique = [this] { pic_semen_Click(); };
    liga_ajuda(lbl_atividades, "Atividades");
    fundo = carrega_figura("\\back_ht6.jpg");
    cria_cants();
}

void trabalhando_na_horta::Form_Activate() {
    if (!primeira_ativacao) return;
    comeca_passeio(trilha_horta);
    mostra_semanas();
    pl_tr(cult_vago);
    monta_matriz2(0, "");
    for (const Trabalho& t : trabalhos) Command2(t.botao).visivel = true;
    poe_faces();
    btn_sem_horta();
    ponteiro = ponteiro_cruz;
    primeira_ativacao = false;
}

void trabalhando_na_horta::Form_Click() {
    silencia(espera_o_fim);
}

bool trabalhando_na_horta::mostra_marcas(const std::string& codigo) {
    achou_canteiro = false;
    monta_matriz3(1, codigo);
    return achou_canteiro;
}

void trabalhando_na_horta::txt_label_Click(int i) {
    marca_trato(i, st_check[i]);
}

void trabalhando_na_horta::acabou_piscada() {
    parabeniza(falta_plantar(), "\\anima\\parah.jpg");
}

void trabalhando_na_horta::mudou_semana(bool) {
    // Um canteiro que acabou, ou que só existia na previsão, perde os controles; um que volta à vida os recebe.
    for (int i = 0; i < n_canteiros; ++i) {
        if (st_cod_cult[i] <= cult_vago)
            destroi_canteiro(i);
        else if (!cant.existe(i))
            cria_canteiro(i);
    }
    pl_tr(cult_vago);
    monta_matriz(0, "");
    btn_sem_horta();
}

void trabalhando_na_horta::cultura_sobre(const BotaoDeCultura& b, const Arraste& a) {
    if (a.fonte->nome != b.nome || falou_nome) return;
    fala_nome(b);
    falou_nome = true;
}

std::string trabalhando_na_horta::conselho(std::int16_t cultura) const {
    return conselho_de_plantio(cultura);
}

void trabalhando_na_horta::pl_tr(std::int16_t cod_cult) {
    if (cod_cult == cult_nenhuma) return;
    const bool todas = cod_cult == cult_vago;
    for (const BotaoDeCultura& b : culturas) {
        if (!todas && b.cultura != cod_cult) continue;
        Rotulo& r = Label3(b.k);
        r.visivel = false;
        r.texto = nada_a_fazer;
        n_canteiros_novos[b.cultura] = 0;
        for (int i = 0; i < n_canteiros; ++i)
            if (st_cod_cult[i] == b.cultura && st_idade[i] < intervalo_plantio[b.cultura])
                ++n_canteiros_novos[b.cultura];
        const std::string celula = celula_plano(b.cultura);
        if (celula == nada_a_fazer || celula == "x") continue;
        r.visivel = true;
        r.texto = celula;
        destaca(b);
    }
    if (auto_abastecido) return;
    for (const BotaoDeCultura& b : culturas) destaca(b);
}

bool trabalhando_na_horta::legenda_pede_semente() {
    for (const BotaoDeCultura& b : culturas)
        if (ciclo_sem[b.cultura] == 0 && Label3(b.k).visivel) return true;
    return false;
}

void trabalhando_na_horta::rotulo_Click(const BotaoDeCultura& b) {
    const std::string nome_da_cultura = b.cultura == cult_brocolis ? "Brócolis" : nome_cult[b.cultura];
    avisa(nome_da_cultura, (ciclo_sem[b.cultura] == 0 ? "Voce deve plantar " : "Voce deve transplantar ") +
                               Label3(b.k).texto + " leito(s) de " + nome_da_cultura);
}

} // namespace verdalia
