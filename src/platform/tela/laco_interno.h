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
    bool sujo = true;      // há que pintar tudo
    Retangulo area_suja{}; // ou só isto, em pixels lógicos da janela
    int nivel = 0;         // laços aninhados
    double x = -1, y = -1; // o mouse, em pixels lógicos da janela
    Controle* sob = nullptr;
    Controle* apertado = nullptr;
    int botao = 0;
    double apertou_x = 0, apertou_y = 0;
    // O aperto de antes, para que o segundo de um clique duplo não seja outro clique.
    const Controle* apertado_antes = nullptr;
    int botao_de_antes = 0;
    std::int64_t apertou_em = 0;
    bool sem_clique = false;
    // Arraste em curso: quem, sobre quem, e se é o teclado que o leva.
    Controle* arrastado = nullptr;
    Controle* alvo = nullptr;
    bool pelo_teclado = false;
    ImagemRef figura_do_arraste;     // à parte da do controle: cada uma guarda o seu tamanho
    Retangulo voo_de{}, voo_para{};  // a figura que não caiu em nada volta ao seu lugar
    std::int64_t voo_comeca = -1;    // -1: nada voa
    bool foco_visivel = false;       // o teclado está em uso
    double foco_x = -1, foco_y = -1; // onde o foco esteve por último, ainda que o controle já não exista
    // A dica: de quem é, se foi o teclado que a chamou, o que diz, e quando aparece (-1: não aparece).
    const Controle* dona_da_dica = nullptr;
    bool dica_do_teclado = false;
    std::string dica;
    std::int64_t hora_da_dica = -1;
    bool dica_a_vista = false;
    bool fecha_pedido = false; // o jogador fechou a janela, e ainda há diálogos a fechar antes da pergunta
    std::vector<std::unique_ptr<Tela>> telas_descartadas;
    std::deque<Evento> adiados; // chegados durante um som esperado
};
extern EstadoDoLaco estado_do_laco;
inline EstadoDoLaco& e = estado_do_laco; // como o tratam as fontes que só dele falam

// Esquece um controle que sai da tela.
void esquece_controle(const Controle* c);
// O controle de cima na tela ativa, em pixels lógicos da janela; nulo se não há.
Controle* controle_em(double x, double y);
// A tela inteira que está por baixo dos diálogos abertos, e a posição dela na pilha; -1 se não há.
int base_da_pilha();
// O retângulo, que está em pixels da tela de `c`, na janela.
Retangulo na_tela(const Controle& c, Retangulo r);
void poe_foco(Controle* c);
// Marca a dica de `c`, que aparece daí a pouco; a que já foi marcada, ou dispensada com um clique, não volta.
void arma_dica(const Controle* c, bool pelo_teclado);
void apaga_dica();
// O que o jogador fez durante um som, antes de ver o que agora está à vista, não vale; a ordem de acabar, sim.
void esquece_o_que_espera();

// pintura.cpp: há que pintar o lugar de `c`, além do que já se tinha de pintar; e pinta-se tudo o que está sujo.
void suja(const Controle& c);
void pinta_o_sujo();

// arraste.cpp
void comeca_arraste(Controle* c, bool pelo_teclado);
void move_arraste();
void larga_arraste();
void desiste_do_arraste();
void pinta_arraste(Pintor& p);
bool voando();
// foco.cpp
void trata_tecla(const Tecla& t);
void pinta_foco(Pintor& p);

} // namespace verdalia
