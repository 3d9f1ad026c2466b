// O que a janela pede ao ambiente gráfico em que se abre; num navegador, à página.
#pragma once

#include <SDL.h>

namespace verdalia {

// Prepara a SDL, já aberta, para a janela que vem; lança std::runtime_error quando ninguém a veria.
void prepara_ambiente();
// Onde e de que tamanho a janela se abre, em pixels.
SDL_Rect lugar_da_janela();
// O que a janela acabada de abrir ainda precisa.
void arruma_janela(SDL_Window* janela);
// Onde se pinta a janela, do tamanho dela; nulo quando o ambiente não a dá. Vale até a próxima chamada.
SDL_Surface* superficie_da_janela(SDL_Window* janela);
// Leva à vista o que se pintou nesse retângulo.
void mostra_pintura(SDL_Window* janela, const SDL_Rect& mudou);
// Dorme até chegar um evento ou passarem `ms` milissegundos (negativo: sem limite).
void espera_evento(int ms);
void alterna_tela_cheia(SDL_Window* janela);

} // namespace verdalia
