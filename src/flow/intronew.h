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
    Matriz<Rotulo> Label1{*this, "Label1"};
    Matriz<Rotulo> legenda{*this, "legenda"};
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
    void clique_quente(std::int16_t acao, Controle* com_ampulheta);
    void fim_da_animacao(int acao);
    void Label1_Click(int Index);
    void Label2_Click();
    void Timer1_Timer(); // um passo da minhoca

private:
    void cria_controles();
    void primeira_carga_da_partida();
};

} // namespace verdalia
