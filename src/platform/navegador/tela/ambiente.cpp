// A janela é o canvas da página: toma o tamanho que a folha de estilo lhe dá, em pixels da tela.
#include "platform/tela/ambiente.h"

#include "platform/base/pagina.h"

#include <algorithm>
#include <emscripten/html5.h>

namespace verdalia {

namespace {

constexpr const char* canvas = "#canvas";

int acorda(void*, SDL_Event* evento) {
    if (evento->type != SDL_POLLSENTINEL) pagina_acorda(); // que a SDL põe na fila a cada consulta
    return 0;
}

EM_BOOL toma_o_tamanho(int, const EmscriptenUiEvent*, void* janela) {
    const SDL_Rect r = lugar_da_janela();
    SDL_SetWindowSize(static_cast<SDL_Window*>(janela), r.w, r.h);
    return EM_FALSE;
}

} // namespace

void prepara_ambiente() {
    // Quem espera é o laço; a SDL, ao mostrar a pintura, não.
    SDL_SetHint(SDL_HINT_EMSCRIPTEN_ASYNCIFY, "0");
    SDL_SetHint(SDL_HINT_EMSCRIPTEN_KEYBOARD_ELEMENT, canvas);
    SDL_AddEventWatch(acorda, nullptr);
}

SDL_Rect lugar_da_janela() {
    double largura = 0, altura = 0;
    emscripten_get_element_css_size(canvas, &largura, &altura);
    const double pixels = emscripten_get_device_pixel_ratio();
    return {0, 0, std::max(1, static_cast<int>(largura * pixels)), std::max(1, static_cast<int>(altura * pixels))};
}

void arruma_janela(SDL_Window* janela) {
    // A SDL, por si, daria ao canvas o tamanho em pixels da folha de estilo, que numa tela densa ficam desfocados.
    SDL_SetWindowResizable(janela, SDL_FALSE);
    toma_o_tamanho(0, nullptr, janela);
    emscripten_set_resize_callback(EMSCRIPTEN_EVENT_TARGET_WINDOW, janela, EM_FALSE, toma_o_tamanho);
}

void espera_evento(int ms) {
    pagina_espera(ms);
}

void alterna_tela_cheia(SDL_Window*) {
    pagina_tela_cheia();
}

} // namespace verdalia

// A página quer a horta gravada: vai ficar escondida, ou alguém pediu uma cópia.
extern "C" EMSCRIPTEN_KEEPALIVE void verdalia_guarda() {
    SDL_Event evento{.type = SDL_APP_WILLENTERBACKGROUND};
    SDL_PushEvent(&evento);
}
