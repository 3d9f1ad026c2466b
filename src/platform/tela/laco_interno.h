// O que o laço, o arraste e o teclado dividem entre si; ninguém mais inclui este arquivo.
#pragma once
#include "platform/tela/laco.h"

#include <deque>

namespace verdalia {

struct Carregada {
    TelaId id;
    std::unique_ptr<Tela> tela;
    bool a_vista = false;
};

struct EstadoDoLaco {
    std::vector<Carregada> pilha; // de baixo para cima
    bool fim = false;
    bool com_falha = false;
    bool sujo = true;
    int nivel = 0;         // laços aninhados
    double x = -1, y = -1; // o mouse, em pixels lógicos da janela
    Controle* sob = nullptr;
    Controle* apertado = nullptr;
    int botao = 0;
    double apertou_x = 0, apertou_y = 0;
    // Arraste em curso: quem, sobre quem, e se é o teclado que o leva.
    Controle* arrastado = nullptr;
    Controle* alvo = nullptr;
    bool pelo_teclado = false;
    ImagemRef figura_do_arraste;     // à parte da do controle: cada uma guarda o seu tamanho
    bool foco_visivel = false;       // o teclado está em uso
    double foco_x = -1, foco_y = -1; // onde o foco esteve por último, ainda que o controle já não exista
    std::int64_t hora_da_dica = -1;
    bool dica_a_vista = false;
    std::vector<std::unique_ptr<Tela>> telas_descartadas;
    std::deque<Evento> adiados; // chegados durante um som esperado
};
extern EstadoDoLaco estado_do_laco;

// Esquece um controle que sai da tela.
void esquece_controle(const Controle* c);
// O controle de cima na tela ativa, em pixels lógicos da janela; nulo se não há.
Controle* controle_em(double x, double y);
// A tela inteira que está por baixo dos diálogos abertos, e a posição dela na pilha; -1 se não há.
int base_da_pilha();
void poe_foco(Controle* c);

// arraste.cpp
void comeca_arraste(Controle* c, bool pelo_teclado);
void move_arraste();
void larga_arraste();
void desiste_do_arraste();
void pinta_arraste(Pintor& p);
// foco.cpp
void trata_tecla(const Tecla& t);
void pinta_foco(Pintor& p);

} // namespace verdalia
