// Figuras: bitmap, JPEG e PNG, lidos do disco na hora do uso e estirados no controle que os mostra.
#pragma once
#include "platform/tela/cores.h"

#include <SDL.h>
#include <memory>
#include <string>
#include <string_view>

namespace verdalia {

struct SoltaSuperficie {
    void operator()(SDL_Surface* s) const { SDL_FreeSurface(s); }
};
using Superficie = std::unique_ptr<SDL_Surface, SoltaSuperficie>;

// Uma figura lida. Guarda os pontos como vieram até ser pintada; depois, só a cópia do tamanho em uso.
struct Imagem {
    std::string caminho; // no jogo; relida daqui quando o tamanho muda
    int largura = 0;     // em pixels do arquivo (o dobro dos pixels lógicos)
    int altura = 0;
    bool falta = false;  // o arquivo não pôde ser lido: pinta-se um cartão com o nome
    Superficie original; // vazia depois de estirada
    Superficie estirada;

    // A figura no tamanho pedido, em pixels da janela; nula quando `falta` ou quando não há o que mostrar. Acima do
    // tamanho do arquivo, vem da pasta 4x ao lado dele, quando está lá.
    SDL_Surface* no_tamanho(int largura_px, int altura_px);
};

// O valor de uma propriedade de figura; nula é a figura vazia.
using ImagemRef = std::shared_ptr<Imagem>;

// Lê uma figura pelo caminho do jogo; "" dá a figura vazia. Arquivo que falta ou está estragado: uma linha em
// stderr e um cartão com o nome no lugar da figura.
ImagemRef carrega_figura(std::string_view caminho);
// Põe em `figura` a desse caminho, que só é lida se não é a que já está lá.
void troca_figura(ImagemRef& figura, const std::string& caminho);

} // namespace verdalia
