// O que se ouve: as falas do hortelão, que só tocam com "Voz do Hortelão" ligada, e os efeitos.
#pragma once
#include "platform/tela/som.h"

#include <string>

namespace verdalia {

// Toca a fala `clipe` ("\s1.wav") da pasta do sotaque escolhido. `modo`: espera_o_fim ou sem_esperar.
void fala(const std::string& clipe, int modo);
// Toca um som da pasta do programa, com a voz ligada ou não.
void efeito(const std::string& clipe, int modo);
// O "blip" de uma queda, e o segundo dela, que só se ouve com a voz ligada; esperam o fim.
void blip();
void blip_com_voz();
// Corta o que estiver tocando, se a voz está ligada.
void silencia(int modo);

} // namespace verdalia
