#include "seedbed/controle_da_sementeira.h"

#include "data/conselho.h"
#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/falas.h"
#include "seedbed/tabelas.h"

namespace verdalia {

using namespace sementeira_tabelas;

controle_da_sementeira::controle_da_sementeira()
    : TelaDeTratos("controle_da_sementeira", series, sementeira_tabelas::trabalhos, sementeira_tabelas::culturas,
                   "Command4", "Label4") {
    solta_no_fundo = true;
    TelaDeTrabalho::paineis.assign(std::begin(sementeira_tabelas::paineis), std::end(sementeira_tabelas::paineis));
}

void controle_da_sementeira::cria_rotulos() {
    for (int c = 0; c < colunas; ++c)
        poe_regua(Label1.cria(c), std::to_string(c + 1),
                  {primeira_coluna + passo_da_coluna * c, 228, largura_da_leira, 20});
    poe_regua(Label2.cria(0), std::string(1, 'A'), {136, 263, 22, 25});
    poe_regua(Label2.cria(1), std::string(1, 'B'), {136, 415, 22, 25});
}

void controle_da_sementeira::Form_Load() {
    cria_rotulos();
    prepara("sementeira", lugares);
    modo_sem.clear();
    poe_faces();
    pic_horta.figura = carrega_figura(dir_media + "\\anima\\enx00c.bmp");
    pic_horta.clique = [this] { pic_horta_Click(); };
    liga_ajuda(lbl_atividades, "Atividades_Sem");
    liga_ajuda(lbl_verduras, "Culturas2", 12);
    fundo = carrega_figura("\\back_se5.jpg");
    for (int r = 0; r < n_leiras; ++r) cria_leira(r);
}

void controle_da_sementeira::Form_Activate() {
    if (!primeira_ativacao) return;
    comeca_passeio(trilha_sem);
    mostra_semanas();
    pl_sem(cult_vago);
    Monta_sem2();
    ponteiro = ponteiro_cruz;
    primeira_ativacao = false;
}

void controle_da_sementeira::Form_Click() {
    silencia(espera_o_fim);
}

void controle_da_sementeira::pic_horta_Click() {
    parte(pic_horta, acao_horta);
}

bool controle_da_sementeira::mostra_marcas(const std::string& codigo) {
    modo_sem = codigo;
    return leg_sem(codigo);
}

void controle_da_sementeira::Label4_Click(int Index) {
    marca_trato(Index, sem_check[Index]);
}

void controle_da_sementeira::acabou_piscada() {
    if (modo_sem == "TR")
        avisa("Transplante - Sementeira/Horta", "Para fazer o transplante va para a tela da horta e arraste para algum "
                                                "espaço vazio as verduras indicadas.");
    modo_sem.clear();
    parabeniza(falta_semear(), "\\anima\\paras.jpg");
}

void controle_da_sementeira::mudou_semana(bool adiante) {
    if (adiante) modo_sem = "PLS"; // as marcas eram da outra semana
    pl_sem(cult_vago);
    Monta_sem();
}

void controle_da_sementeira::acabou_passeio() {
    Monta_sem();
    pl_sem(cult_vago);
    poe_faces();
}

void controle_da_sementeira::rotulo_Click(const BotaoDeCultura& b) {
    avisa(avisos[b.k].titulo, avisos[b.k].texto);
}

std::string controle_da_sementeira::conselho(std::int16_t cultura) const {
    return conselho_de_semeadura(cultura);
}

void controle_da_sementeira::cultura_sobre(const BotaoDeCultura& b, const Arraste&) {
    if (falou_nome) return;
    fala_nome(b);
    falou_nome = true;
}

} // namespace verdalia
