// O centro do jogo: a porta da saída, os caminhos para as outras telas e o guia em figuras. A primeira carga traz a
// horta do banco e a põe em dia com o calendário.
#pragma once
#include "flow/comum/animacao.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

struct INTRONEW : Tela {
    Figura Picture1{*this, "Picture1"};
    Matriz<Figura> quadro{*this, "quadro"}; // a figura de cada palavra quente do guia, que se clica como ela
    Matriz<Rotulo> Label1{*this, "Label1"};
    Matriz<Rotulo> legenda{*this, "legenda"}; // o nome de cada figura da esquerda, que se clica como ela
    Figura saida{*this, "saida"};
    Figura pic_feira{*this, "pic_feira"};
    Figura pic_horta{*this, "pic_horta"};
    Figura pic_semen{*this, "pic_semen"};
    Figura pic_agenda{*this, "pic_agenda"};
    Figura interroga{*this, "interroga"};
    Rotulo Label2{*this, "Label2"};
    Figura pic_nhoca{*this, "pic_nhoca"};
    Temporizador timer_{*this};
    Temporizador Timer1{*this};
    Animacao animacao;

    bool horta_vazia = true;
    std::int16_t nhoca_quadro = 0;
    bool nhoca_esquerda = true;

    INTRONEW();
    void Form_Load() override;
    void Form_Activate() override;

    void carga_4_botões();
    void nova_semana(); // põe a horta em dia com o calendário; uma vez por partida
    void pede_fechar() override;
    void saida_Click();
    void pic_feira_Click();
    void pic_horta_Click();
    void pic_semen_Click();
    void pic_agenda_Click();
    void interroga_Click();
    void Label1_Click(int Index);
    void Label2_Click();
    void Timer__Timer() { animacao.tique(); }
    void Timer1_Timer(); // um passo da minhoca
    void fim_da_animacao(int acao);

private:
    void cria_guia();
    void cria_controles();
    void primeira_carga_da_partida();
};

} // namespace verdalia
