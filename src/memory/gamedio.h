// O jogo da memória: 36 cartas, 18 pares, contra o relógio e contando as tentativas.
#pragma once
#include "flow/comum/telas.h"
#include "memory/regras/baralho.h"
#include "platform/tela/botao.h"
#include "platform/tela/figura.h"
#include "platform/tela/matriz.h"
#include "platform/tela/painel.h"
#include "platform/tela/rotulo.h"

namespace verdalia {

// O tabuleiro, com o lugar de cada carta marcado: vê-se o que já saiu.
struct Mesa : Painel {
    using Painel::Painel;
    void pinta(Pintor& p, const Retangulo& r) override;
};

struct Carta : Figura {
    using Figura::Figura;

    bool virando = false; // enquanto se ouve a carta virar

    void pinta(Pintor& p, const Retangulo& r) override;
};

struct gamedio : Tela {
    Mesa mesa{*this, "mesa"};
    Matriz<Carta> figura{*this, "figura"};
    Painel painel{*this, "painel"};
    Figura enfeite{*this, "enfeite"};
    Matriz<Rotulo> legenda{*this, "legenda"};
    Rotulo Lbl_timer{*this, "Lbl_timer"};
    Rotulo lbl_contador{*this, "lbl_contador"};
    Matriz<Botao> Label1{*this, "Label1"};
    Temporizador Timer1{*this}; // pisca o par achado
    Temporizador Timer2{*this}; // o relógio
    Temporizador Timer3{*this}; // o fim do jogo

    std::int16_t pares = n_pares;
    std::int16_t pares_restantes = n_pares;
    Baralho valor_carta{};
    std::int16_t primeira = -1; // as cartas viradas; -1 quando não há
    std::int16_t segunda = -1;
    std::int16_t piscadas = 0;
    std::int16_t segundos = 0;

    gamedio();
    void Form_Load() override;
    void Form_Activate() override; // distribui as cartas de um jogo novo
    void pede_fechar() override;

    void iniciar();
    void figura_Click(int Index);
    void Label1_Click(int Index); // "Retornar", "Ranking", "Reiniciar"
    void Timer1_Timer();
    void Timer2_Timer() { mostra_tempo(); }
    void Timer3_Timer();

private:
    void cria_controles();
    bool vira(int Index); // falso quando o clique não muda nada
    void segunda_carta(int Index);
    void mostra_carta(int Index);
    void mostra_verso(int Index);
    void mostra_tempo();
    void pontua();

    std::int64_t comecou_em = 0; // em milissegundos do relógio
    bool sem_jogo_novo = false;  // a volta a esta tela não distribui cartas
};

} // namespace verdalia
