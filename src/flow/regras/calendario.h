// O passar das semanas e a previsão: as regras, sem tela.
#pragma once

#include "data/plano.h"
#include "platform/base/relogio.h"

namespace verdalia {

// Uma semana a mais para todos os canteiros e leiras: envelhece, limpa os `check` e esvazia o que terminou.
void passa_semana();

// Quantos domingos há depois de `desde` até `ate`, inclusive; 0 quando `ate` não é mais tarde.
int semanas_ate(Dia desde, Dia ate);

// Avança a previsão uma semana; a primeira guarda antes o estado verdadeiro.
void avanca_previsao();

// Volta ao estado verdadeiro e a hoje; sem previsão, nada muda.
void volta_ao_tempo_real();

} // namespace verdalia
