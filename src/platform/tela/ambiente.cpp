#include "platform/tela/ambiente.h"

#include "platform/base/caminhos.h"
#include "platform/tela/imagem.h"
#include "platform/tela/tela.h"

#include <algorithm>
#include <stdexcept>

namespace verdalia {

namespace {

// O servidor X que cai no fim da sessão leva o programa por exit(), sem evento nenhum: há só este momento para gravar.
void grava_se_o_servidor_cair() {
    using Atende = int (*)(void* ligacao);
    using Troca = Atende (*)(Atende);
    void* biblioteca_do_x = SDL_LoadObject("libX11.so.6"); // a mesma que a SDL já usa
    const auto troca = reinterpret_cast<Troca>(SDL_LoadFunction(biblioteca_do_x, "XSetIOErrorHandler"));
    static Atende de_antes = nullptr;
    if (troca != nullptr)
        de_antes = troca([](void* ligacao) {
            encerra();
            return de_antes(ligacao);
        });
}

} // namespace

void prepara_ambiente() {
    const std::string modo = SDL_GetCurrentVideoDriver();
    // Sem tela, a SDL recua para modos em que ninguém vê nem clica nada.
    if (modo == "offscreen" || modo == "dummy" || modo == "evdev")
        throw std::runtime_error("Não há tela onde abrir o jogo: ele precisa de um ambiente gráfico.");
    // No X, sem aceleração: menos memória, e nada que dependa da placa. Os outros só mostram pontos por meio dela.
    if (modo == "x11") {
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
        grava_se_o_servidor_cair();
    }
}

// No meio do monitor em que está o mouse, com a proporção do jogo e sem tomar mais que 7/8 do que as barras do ambiente
// deixam livre.
SDL_Rect lugar_da_janela() {
    SDL_Point mouse;
    SDL_GetGlobalMouseState(&mouse.x, &mouse.y);
    const int monitor = std::max(0, SDL_GetPointDisplayIndex(&mouse));
    const int no_meio = static_cast<int>(SDL_WINDOWPOS_CENTERED_DISPLAY(static_cast<unsigned>(monitor)));
    SDL_Rect livre;
    if (SDL_GetDisplayUsableBounds(monitor, &livre) != 0) return {no_meio, no_meio, largura_logica, altura_logica};
    const double escala = 7.0 / 8 * std::min(livre.w / double{largura_logica}, livre.h / double{altura_logica});
    return {no_meio, no_meio, static_cast<int>(largura_logica * escala), static_cast<int>(altura_logica * escala)};
}

void arruma_janela(SDL_Window* janela) {
    SDL_SetWindowMinimumSize(janela, largura_logica / 2, altura_logica / 2);
    if (const auto arquivo = acha("\\recursos\\icone64.bmp")) {
        const Superficie icone(SDL_LoadBMP(arquivo->c_str()));
        if (icone) SDL_SetWindowIcon(janela, icone.get());
    }
}

SDL_Surface* superficie_da_janela(SDL_Window* janela) {
    return SDL_GetWindowSurface(janela);
}

void mostra_pintura(SDL_Window* janela, const SDL_Rect& mudou) {
    SDL_UpdateWindowSurfaceRects(janela, &mudou, 1);
}

void espera_evento(int ms) {
    if (ms < 0)
        SDL_WaitEvent(nullptr);
    else
        SDL_WaitEventTimeout(nullptr, ms);
}

void alterna_tela_cheia(SDL_Window* janela) {
    const bool cheia = (SDL_GetWindowFlags(janela) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
    SDL_SetWindowFullscreen(janela, cheia ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
}

} // namespace verdalia
