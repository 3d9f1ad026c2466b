#include "flow/conf_cd.h"

#include "data/banco.h"
#include "data/estado.h"
#include "flow/comum/dialogos.h"
#include "flow/comum/unidades.h"
#include "platform/base/caminhos.h"
#include "platform/tela/laco.h"

namespace verdalia {

namespace {

constexpr Lugar lugares_do_cd[] = {
    {"Image1", -1, 18, 20, 120, 120},           {"Label5", -1, 156, 22, 300, 30, "Informe sua unidade de CD ?"},
    {"Combo1", -1, 156, 60, 110, 34},           {"o_que_ha", -1, 156, 98, 300, 40},
    {"Command1", -1, 200, 152, 110, 42, "&Ok"}, {"Command2", -1, 326, 152, 110, 42, "&Sair"},
};

} // namespace

void Conf_cd::Form_Load() {
    dialogo = fechavel = true;
    titulo = "Configuração do CD";
    largura = 470;
    altura = 210;
    cor_fundo = cor_papel_claro;
    arruma(*this, lugares_do_cd);
    Image1.figura = carrega_figura("\\recursos\\hortelao.bmp");
    Label5.alinha = o_que_ha.alinha = Alinha::esquerda;
    Label5.letra = {.corpo = 15};
    o_que_ha.letra = {.familia = Familia::legenda, .corpo = 11};
    Combo1.letra.corpo = 14;
    Combo1.muda = [this] { Combo1_Change(); };
    Command1.clique = [this] { Command1_Click(); };
    Command2.clique = [this] { Command2_Click(); };

    nome_banco = "\\hortas00.mdb";
    tenta_no_banco(titulo, "Confira a unidade.", le_cd);
    Combo1.itens.assign(letras_de_unidade.begin(), letras_de_unidade.end());
    Combo1.escolhido = unidade_cd;
    foco = &Command1;
    Combo1_Change();
}

void Conf_cd::Combo1_Change() {
    o_que_ha.texto = o_que_ha_na_unidade(Combo1.escolhido);
}

void Conf_cd::Command1_Click() {
    if (!unidade_serve(titulo, Combo1.escolhido)) return;
    unidade_cd = static_cast<std::int16_t>(Combo1.escolhido);
    tenta_no_banco(titulo, "A unidade de antes continua valendo.", grava_cd);
    descarrega(*this);
    mostra(TelaId::INTRONEW);
}

void Conf_cd::Command2_Click() {
    termina();
}

} // namespace verdalia
