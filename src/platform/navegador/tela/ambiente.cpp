// A janela é o canvas da página: toma o tamanho que a folha de estilo lhe dá, em pixels da tela.
#include "platform/tela/ambiente.h"

#include "platform/base/pagina.h"
#include "platform/tela/imagem.h"

#include <algorithm>
#include <cstdint>
#include <emscripten/html5.h>
#include <vector>

namespace verdalia {

namespace {

constexpr const char* canvas = "#canvas";

Superficie pintura; // no formato das figuras, que é o mais depressa

// De XRGB para o RGBA do canvas.
std::uint32_t rgba(std::uint32_t xrgb) {
    return 0xff000000 | (xrgb & 0xff00) | (xrgb >> 16 & 0xff) | (xrgb & 0xff) << 16;
}

int acorda(void*, SDL_Event* evento) {
    if (evento->type != SDL_POLLSENTINEL) pagina_acorda(); // que a SDL põe na fila a cada consulta
    return 0;
}

EM_BOOL toma_o_tamanho(int, const EmscriptenUiEvent*, void* janela) {
    const SDL_Rect r = lugar_da_janela();
    SDL_SetWindowSize(static_cast<SDL_Window*>(janela), r.w, r.h);
    // O canvas que toma um tamanho, mesmo o que tinha, fica vazio.
    SDL_Event evento{.window = {.type = SDL_WINDOWEVENT, .event = SDL_WINDOWEVENT_EXPOSED}};
    SDL_PushEvent(&evento);
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

SDL_Surface* superficie_da_janela(SDL_Window* janela) {
    int largura = 0, altura = 0;
    SDL_GetWindowSize(janela, &largura, &altura);
    if (!pintura || pintura->w != largura || pintura->h != altura)
        pintura.reset(SDL_CreateRGBSurfaceWithFormat(0, largura, altura, 32, SDL_PIXELFORMAT_XRGB8888));
    return pintura.get();
}

void mostra_pintura(SDL_Window*, const SDL_Rect& mudou) {
    std::vector<std::uint32_t> pontos(static_cast<std::size_t>(mudou.w) * mudou.h);
    std::uint32_t* para = pontos.data();
    for (int y = mudou.y; y < mudou.y + mudou.h; ++y) {
        const auto* de = static_cast<const std::uint32_t*>(pintura->pixels) + std::ptrdiff_t{y} * pintura->w + mudou.x;
        para = std::transform(de, de + mudou.w, para, rgba);
    }
    if (!pontos.empty()) pagina_pinta(pontos.data(), mudou.x, mudou.y, mudou.w, mudou.h);
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
