#include "platform/tela/janela.h"

#include "platform/tela/ambiente.h"
#include "platform/tela/aparelho_de_som.h"
#include "platform/tela/fontes.h"
#include "platform/tela/tela.h"

#include <SDL.h>
#include <csignal>
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
struct DesenhoDoPonteiro {
    SDL_SystemCursor do_sistema = SDL_SYSTEM_CURSOR_ARROW;
    const char* figura = nullptr;
    int ponta_x = 0, ponta_y = 0;
};
const std::map<int, DesenhoDoPonteiro> desenhos = {
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
        e = {.tipo = s.window.event == SDL_WINDOWEVENT_CLOSE ? Evento::fecha : Evento::janela};
        return s.window.event == SDL_WINDOWEVENT_EXPOSED || s.window.event == SDL_WINDOWEVENT_SIZE_CHANGED ||
               s.window.event == SDL_WINDOWEVENT_CLOSE;
    case SDL_APP_WILLENTERBACKGROUND:
        e = {.tipo = Evento::guarda};
        return true;
    case SDL_QUIT: // um sinal, ou o ambiente gráfico que se foi
        e = {.tipo = Evento::encerra};
        return true;
    default:
        return false;
    }
}

// "Frase (o que a SDL disse).", ou "Frase." quando ela não disse nada.
std::runtime_error falha(const std::string& frase) {
    const std::string razao = SDL_GetError();
    return std::runtime_error(frase + (razao.empty() ? "." : " (" + razao + ")."));
}

// A SDL aberta: fecha-se depois de tudo o que é dela.
struct BibliotecaAberta {
    BibliotecaAberta() {
        // A SDL faz de SIGTERM e SIGINT um SDL_QUIT e acorda quem espera. O fecho da janela vem no evento dela, e
        // assim SDL_QUIT fica sendo só a ordem de acabar.
        SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
        if (SDL_Init(SDL_INIT_VIDEO) != 0) throw falha("Não há tela onde abrir o jogo");
        // O terminal que se fecha vale o mesmo; quem pediu para não saber dele (nohup) continua sem saber.
        const auto de_antes = std::signal(SIGHUP, [](int) { static_cast<void>(std::raise(SIGTERM)); });
        if (de_antes == SIG_IGN) std::signal(SIGHUP, SIG_IGN);
    }
    ~BibliotecaAberta() { SDL_Quit(); }
    BibliotecaAberta(const BibliotecaAberta&) = delete;
    BibliotecaAberta& operator=(const BibliotecaAberta&) = delete;
};

// O pintor escreve pontos de 32 bits, com 8 por cor.
bool serve_ao_pintor(const SDL_PixelFormat& f) {
    return f.BytesPerPixel == 4 && f.Rloss == 0 && f.Gloss == 0 && f.Bloss == 0;
}

struct Janela : Hospedeiro {
    BibliotecaAberta biblioteca;
    std::unique_ptr<SDL_Window, SoltaJanela> janela;
    Superficie intermediaria; // onde se pinta quando o formato da janela não serve ao pintor; senão, vazia
    std::map<int, std::unique_ptr<SDL_Cursor, SoltaCursor>> cursores;
    AparelhoDeSom som;
    int ponteiro_a_vista = -1;
    int largura_vista = 0, altura_vista = 0;

    explicit Janela(const char* titulo) {
        prepara_ambiente();
        const SDL_Rect r = lugar_da_janela();
        janela.reset(SDL_CreateWindow(titulo, r.x, r.y, r.w, r.h, SDL_WINDOW_RESIZABLE));
        if (janela) arruma_janela(janela.get());
        if (!janela || superficie_da_janela(janela.get()) == nullptr)
            throw falha("A janela do jogo não pôde ser aberta");
    }

    bool proximo(Evento& e) override {
        SDL_Event s;
        while (SDL_PollEvent(&s) != 0)
            if (traduz(s, e)) return true;
        return false;
    }

    bool espera(std::int64_t ms) override {
        if (ms != 0) espera_evento(static_cast<int>(ms));
        return true;
    }

    SDL_Surface* superficie() override {
        SDL_Surface* s = superficie_da_janela(janela.get());
        if (s == nullptr) return nullptr;
        if (s->w != largura_vista || s->h != altura_vista) esquece_tamanhos();
        largura_vista = s->w;
        altura_vista = s->h;
        if (serve_ao_pintor(*s->format)) {
            intermediaria.reset();
            return s;
        }
        if (!intermediaria || intermediaria->w != s->w || intermediaria->h != s->h)
            intermediaria.reset(SDL_CreateRGBSurfaceWithFormat(0, s->w, s->h, 32, SDL_PIXELFORMAT_XRGB8888));
        return intermediaria.get();
    }

    void apresenta(const SDL_Rect& mudou) override {
        SDL_Rect la = mudou;
        if (intermediaria) SDL_BlitSurface(intermediaria.get(), &mudou, superficie_da_janela(janela.get()), &la);
        mostra_pintura(janela.get(), mudou);
    }

    void mostra_ponteiro(int numero) override {
        if (numero == ponteiro_a_vista) return;
        ponteiro_a_vista = numero;
        auto& cursor = cursores[numero];
        if (!cursor) {
            const auto desenho = desenhos.find(numero);
            cursor = cria_cursor(desenho == desenhos.end() ? DesenhoDoPonteiro{} : desenho->second);
        }
        SDL_SetCursor(cursor.get());
    }

    static std::unique_ptr<SDL_Cursor, SoltaCursor> cria_cursor(const DesenhoDoPonteiro& d) {
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

    void troca_tela_cheia() override { alterna_tela_cheia(janela.get()); }

    int toca(const std::string& caminho) override { return som.toca(caminho); }
};

} // namespace

std::unique_ptr<Hospedeiro> abre_janela(const char* titulo) {
    return std::make_unique<Janela>(titulo);
}

} // namespace verdalia
