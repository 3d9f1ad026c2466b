#include "platform/tela/janela.h"

#include "platform/base/caminhos.h"
#include "platform/tela/aparelho_de_som.h"
#include "platform/tela/fontes.h"

#include <SDL.h>
#include <map>
#include <stdexcept>

namespace verdalia {

namespace {

struct SoltaJanela {
    void operator()(SDL_Window* j) const { SDL_DestroyWindow(j); }
};
struct SoltaCursor {
    void operator()(SDL_Cursor* c) const { SDL_FreeCursor(c); }
};

// Os ponteiros: ou um do sistema, ou uma figura com o ponto que aponta.
struct Desenho {
    SDL_SystemCursor do_sistema = SDL_SYSTEM_CURSOR_ARROW;
    const char* figura = nullptr;
    int ponta_x = 0, ponta_y = 0;
};
const std::map<int, Desenho> desenhos = {
    {ponteiro_normal, {}},
    {ponteiro_seta, {}},
    {ponteiro_cruz, {SDL_SYSTEM_CURSOR_CROSSHAIR}},
    {ponteiro_ampulheta, {SDL_SYSTEM_CURSOR_WAIT}},
    {ponteiro_mao, {SDL_SYSTEM_CURSOR_HAND, "\\recursos\\mao.bmp", 10, 2}},
    {ponteiro_horta, {SDL_SYSTEM_CURSOR_CROSSHAIR, "\\recursos\\ponteiro_horta.bmp", 2, 2}},
};

int botao_do_jogo(std::uint8_t botao) {
    return botao == SDL_BUTTON_LEFT ? 1 : botao == SDL_BUTTON_RIGHT ? 2 : 4;
}

// Traduz um evento da SDL; false para os que o jogo não usa.
bool traduz(const SDL_Event& s, Evento& e) {
    switch (s.type) {
    case SDL_MOUSEMOTION:
        e = {.tipo = Evento::move, .x = s.motion.x, .y = s.motion.y};
        return true;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        e = {.tipo = s.type == SDL_MOUSEBUTTONDOWN ? Evento::aperta : Evento::solta,
             .x = s.button.x,
             .y = s.button.y,
             .botao = botao_do_jogo(s.button.button)};
        return true;
    case SDL_MOUSEWHEEL:
        e = {.tipo = Evento::roda, .botao = s.wheel.y};
        return true;
    case SDL_KEYDOWN:
        // Segurar Enter ou espaço não é apertá-los muitas vezes.
        if (s.key.repeat != 0 &&
            (s.key.keysym.sym == SDLK_RETURN || s.key.keysym.sym == SDLK_KP_ENTER || s.key.keysym.sym == SDLK_SPACE))
            return false;
        e = {.tipo = Evento::tecla,
             .tecla_apertada = {s.key.keysym.sym, (s.key.keysym.mod & KMOD_SHIFT) != 0,
                                (s.key.keysym.mod & KMOD_CTRL) != 0, (s.key.keysym.mod & KMOD_ALT) != 0}};
        return true;
    case SDL_TEXTINPUT:
        e = {.tipo = Evento::texto, .escrito = s.text.text};
        return true;
    case SDL_WINDOWEVENT:
        e = {.tipo = Evento::janela};
        return s.window.event == SDL_WINDOWEVENT_EXPOSED || s.window.event == SDL_WINDOWEVENT_SIZE_CHANGED;
    case SDL_QUIT:
        e = {.tipo = Evento::fecha};
        return true;
    default:
        return false;
    }
}

struct Janela : Hospedeiro {
    std::unique_ptr<SDL_Window, SoltaJanela> janela;
    std::map<int, std::unique_ptr<SDL_Cursor, SoltaCursor>> cursores;
    AparelhoDeSom som;
    int ponteiro_a_vista = -1;
    int largura_vista = 0, altura_vista = 0;

    explicit Janela(const char* titulo) {
        // Sem aceleração: os mesmos pontos em qualquer máquina, e nada de memória de placa.
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
        if (SDL_Init(SDL_INIT_VIDEO) != 0)
            throw std::runtime_error(std::string("Não há tela onde abrir o jogo (") + SDL_GetError() + ").");
        // Sem tela, a SDL recua para modos em que ninguém vê nem clica nada.
        const std::string modo = SDL_GetCurrentVideoDriver();
        if (modo == "offscreen" || modo == "dummy" || modo == "evdev") {
            SDL_Quit();
            throw std::runtime_error("Não há tela onde abrir o jogo: ele precisa de um ambiente gráfico.");
        }
        janela.reset(SDL_CreateWindow(titulo, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, largura_logica,
                                      altura_logica, SDL_WINDOW_RESIZABLE));
        if (!janela || SDL_GetWindowSurface(janela.get()) == nullptr)
            throw std::runtime_error(std::string("A janela do jogo não pôde ser aberta (") + SDL_GetError() + ").");
        SDL_SetWindowMinimumSize(janela.get(), largura_logica / 2, altura_logica / 2);
        if (const auto arquivo = acha("\\recursos\\icone64.bmp")) {
            const Superficie icone(SDL_LoadBMP(arquivo->c_str()));
            if (icone) SDL_SetWindowIcon(janela.get(), icone.get());
        }
    }
    ~Janela() override {
        cursores.clear();
        janela.reset();
        SDL_Quit();
    }

    bool proximo(Evento& e) override {
        SDL_Event s;
        while (SDL_PollEvent(&s) != 0)
            if (traduz(s, e)) return true;
        return false;
    }

    bool espera(std::int64_t ms) override {
        if (ms < 0)
            SDL_WaitEvent(nullptr);
        else if (ms > 0)
            SDL_WaitEventTimeout(nullptr, static_cast<int>(ms));
        return true;
    }

    SDL_Surface* superficie() override {
        SDL_Surface* s = SDL_GetWindowSurface(janela.get());
        if (s == nullptr) return nullptr;
        if (s->w != largura_vista || s->h != altura_vista) esquece_tamanhos();
        largura_vista = s->w;
        altura_vista = s->h;
        return s;
    }

    void apresenta() override { SDL_UpdateWindowSurface(janela.get()); }

    void mostra_ponteiro(int numero) override {
        if (numero == ponteiro_a_vista) return;
        ponteiro_a_vista = numero;
        auto& cursor = cursores[numero];
        if (!cursor) {
            const auto desenho = desenhos.find(numero);
            cursor = cria_cursor(desenho == desenhos.end() ? Desenho{} : desenho->second);
        }
        SDL_SetCursor(cursor.get());
    }

    static std::unique_ptr<SDL_Cursor, SoltaCursor> cria_cursor(const Desenho& d) {
        constexpr int lado = 32;
        SDL_Cursor* criado = nullptr;
        if (d.figura != nullptr) {
            const ImagemRef figura = carrega_figura(d.figura);
            if (SDL_Surface* s = figura->no_tamanho(lado, lado))
                criado = SDL_CreateColorCursor(s, d.ponta_x, d.ponta_y);
        }
        return std::unique_ptr<SDL_Cursor, SoltaCursor>(criado != nullptr ? criado
                                                                          : SDL_CreateSystemCursor(d.do_sistema));
    }

    void troca_tela_cheia() override {
        const bool cheia = (SDL_GetWindowFlags(janela.get()) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
        SDL_SetWindowFullscreen(janela.get(), cheia ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
    }

    int toca(const std::string& caminho) override { return som.toca(caminho); }
};

} // namespace

std::unique_ptr<Hospedeiro> abre_janela(const char* titulo) {
    return std::make_unique<Janela>(titulo);
}

} // namespace verdalia
