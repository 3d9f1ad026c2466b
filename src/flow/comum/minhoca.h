// A minhoca que anda pela beira da tela, no centro do jogo e na ajuda.
#pragma once
#include "platform/tela/figura.h"

#include <cstdint>

namespace verdalia {

// Um dos sete passos: estica em quatro e se puxa nos outros três. `quadro` vai de 0 a 6; nas pontas ela se vira.
void passo_da_minhoca(Figura& pic_nhoca, std::int16_t& quadro, bool& esquerda);

} // namespace verdalia
