// O que o laço pede ao mundo de fora: eventos, espera, uma superfície para pintar, ponteiro e som. A janela de
// verdade é um hospedeiro; os testes trazem o seu, com roteiro e sem tela nem som.
#pragma once
#include "platform/tela/controle.h"

#include <cstdint>

namespace verdalia {

struct Evento {
    // `fecha`: o jogador fecha a janela. `encerra`: o sistema manda acabar já, e não há a quem perguntar. `guarda`:
    // pode fazê-lo sem outro aviso.
    enum Tipo { move, aperta, solta, roda, tecla, texto, janela, fecha, encerra, guarda };
    Tipo tipo = janela;
    int x = 0, y = 0; // em pixels da janela
    int botao = 1;    // como em Mouse; na roda, o passo (positivo para cima)
    Tecla tecla_apertada{};
    std::string escrito{};   // UTF-8
    std::int64_t quando = 0; // a hora em que o laço o recebeu, em milissegundos
};

struct Hospedeiro {
    virtual ~Hospedeiro() = default;
    // O próximo evento que já chegou; false quando não há.
    virtual bool proximo(Evento& e) = 0;
    // Dorme até chegar um evento ou passarem `ms` (negativo: sem limite); false quando nada mais virá.
    virtual bool espera(std::int64_t ms) = 0;
    // Onde pintar; nula quando a janela não a tem agora, e então não se pinta.
    virtual SDL_Surface* superficie() = 0;
    // Mostra o que se pintou nesse retângulo da superfície.
    virtual void apresenta(const SDL_Rect& mudou) = 0;
    virtual void mostra_ponteiro(int numero) = 0;
    virtual void troca_tela_cheia() = 0;
    // Toca um arquivo de som, cortando o que toca; devolve a duração em ms, 0 quando não há som.
    virtual int toca(const std::string& caminho) = 0;
};

extern Hospedeiro* hospedeiro; // posto por main ou pelo teste antes de tudo

} // namespace verdalia
