// As opções: música, voz e sotaque desta partida, a unidade das mídias, que fica guardada, e o jogo da memória. Abre-se
// por cima do centro, que continua carregado.
#pragma once
#include "flow/comum/animacao.h"
#include "platform/tela/botao.h"
#include "platform/tela/figura.h"
#include "platform/tela/lista.h"
#include "platform/tela/matriz.h"
#include "platform/tela/opcao.h"
#include "platform/tela/painel.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

struct conf : Tela {
    Painel painel_sons{*this, "painel_sons"};
    Painel painel_unidade{*this, "painel_unidade"};
    Painel painel_jogo{*this, "painel_jogo"};
    Matriz<Figura> enfeite{*this, "enfeite"};
    Matriz<Rotulo> Label3{*this, "Label3"};
    Matriz<Marca> Check1{*this, "Check1"};
    Matriz<Opcao> Option1{*this, "Option1"};
    Rotulo Label4{*this, "Label4"};
    Rotulo Label7{*this, "Label7"};
    Rotulo Label8{*this, "Label8"};
    Matriz<Rotulo> Label9{*this, "Label9"};
    Rotulo Label5{*this, "Label5"};
    Rotulo o_que_ha{*this, "o_que_ha"};
    ListaSuspensa Combo1{*this, "Combo1"};
    Botao Labelgame{*this, "Labelgame"};
    Figura interroga{*this, "interroga"};
    Botao Label1{*this, "Label1"};
    Temporizador timer_{*this};
    Animacao animacao;

    conf();
    void Form_Load() override;
    void Form_Activate() override;
    void pede_fechar() override;

    void Check1_MouseUp(int Index); // a voz liga e desliga na hora; a música só muda em "Retornar"
    void Option1_Click();
    void Combo1_Change(); // diz o que há na unidade escolhida
    void Combo1_LostFocus();
    void Label1_Click(); // "Retornar"
    void Labelgame_Click();
    void interroga_Click();
    void Timer__Timer() { animacao.tique(); }
    void fim_da_animacao();

private:
    void cria_controles();
    void acende_sotaques();
    int sotaque_escolhido() const;
};

} // namespace verdalia
