// A janela de verdade: SDL2 com o pintor de software, e o aparelho de som.
#pragma once
#include "platform/tela/hospedeiro.h"

#include <memory>

namespace verdalia {

// Abre a janela com o título e os ícones do jogo (recursos\icone*.bmp). Sem tela onde abri-la, lança
// std::runtime_error com uma frase para o jogador. O som só é aberto quando o primeiro for tocado.
std::unique_ptr<Hospedeiro> abre_janela(const char* titulo);

} // namespace verdalia
