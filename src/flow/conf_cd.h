// "Configuração do CD": em cada partida o jogador confirma de que unidade vêm as figuras e os sons.
#pragma once
#include "flow/comum/telas.h"
#include "platform/tela/botao.h"
#include "platform/tela/figura.h"
#include "platform/tela/lista.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

struct Conf_cd : Tela {
    Figura Image1{*this, "Image1"};
    Rotulo Label5{*this, "Label5"};
    Rotulo o_que_ha{*this, "o_que_ha"};
    ListaSuspensa Combo1{*this, "Combo1"};
    Botao Command1{*this, "Command1"};
    Botao Command2{*this, "Command2"};

    Conf_cd() : Tela("Conf_cd") {}
    void Form_Load() override;
    void pede_fechar() override { Command2_Click(); }
    void Combo1_Change();  // diz o que há na unidade escolhida
    void Command1_Click(); // guarda a unidade e abre o jogo
    void Command2_Click(); // termina o programa
};

} // namespace verdalia
