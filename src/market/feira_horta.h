// A barraca da feira: o jogador diz quantas unidades de cada verdura a família quer por semana, e vê quantos leitos
// de plantio o pedido ocupa. O feirante apregoa verduras ao acaso. Daqui só se sai para a horta ou do jogo.
#pragma once
#include "flow/comum/telas.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

// Um caixote da barraca: a verdura em cima e a etiqueta com o nome embaixo. Clica-se em qualquer parte dele.
struct Caixote : Figura {
    using Figura::Figura;
    void pinta(Pintor& p, const Retangulo& r) override;
};

// A conta de uma verdura, num selo no alto do caixote.
struct Conta : Rotulo {
    using Rotulo::Rotulo;
    void pinta(Pintor& p, const Retangulo& r) override;
};

// O "−" de um caixote com alguma coisa pedida: tira uma, para quem não usa o botão direito.
struct Menos : Rotulo {
    using Rotulo::Rotulo;
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct feira_horta : Tela {
    Matriz<Caixote> plc{*this, "plc"};   // na ordem dos pregões
    Matriz<Conta> qt{*this, "qt"};       // em ordem quase alfabética
    Matriz<Menos> menos{*this, "menos"}; // como em plc
    Rotulo lbl_total{*this, "lbl_total"};
    Rotulo Label4{*this, "Label4"};
    Rotulo Label2{*this, "Label2"}; // para a horta
    Rotulo Label3{*this, "Label3"}; // para fora do jogo
    Temporizador Timer1{*this};     // os pregões
    Temporizador Timer2{*this};     // a demora antes deles

    feira_horta();
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Click() override;
    void pede_fechar() override { Label3_Click(); }

    // Muda o pedido da verdura do caixote `Index` (0 a 20) em uma unidade: a mais com o botão esquerdo (1), a menos com
    // qualquer outro. O que não cabe na horta é recusado com um aviso, e nada muda.
    void plc_MouseUp(int Index, int Button);
    void lbl_total_Click(); // explica o total
    void Label2_Click();
    void Label3_Click();
    void Timer1_Timer();
    void Timer2_Timer();
    void grito(); // apregoa uma verdura ao acaso

private:
    void cria_controles();
    void mostra_conta(int Index);
};

} // namespace verdalia
