// Um macaco ao mouse e ao teclado: clica, arrasta, escreve, fecha, deixa passar semanas, sem saber o que faz. Depois de
// cada evento valem as invariantes das tabelas, e da previsão volta-se sempre ao que é de verdade.
#include "data/invariantes.h"
#include "flow/comum/telas.h"
#include "roteiro.h"

#include <random>
#include <tuple>

namespace verdalia {
namespace {

// Os canteiros e as leiras: o pedido não é da previsão, e o que nela se muda na feira fica.
auto terra() {
    return std::tuple(st_cod_cult, st_nome, st_idade, st_check, st_last_i_cu, st_last_last_i_cu, sem_cod_cult, sem_nome,
                      sem_idade, sem_check);
}
auto guardada() {
    return std::tuple(bak_st_cod_cult, bak_st_nome, bak_st_idade, bak_st_check, bak_st_last_i_cu, bak_st_last_last_i_cu,
                      bak_sem_cod_cult, bak_sem_nome, bak_sem_idade, bak_sem_check);
}

struct Macaco : Hospedeiro {
    Macaco(RelogioDeTeste& relogio_do_teste, unsigned semente, int quantos)
        : tempo(relogio_do_teste), sorte(semente), restam(quantos) {
        janela.reset(SDL_CreateRGBSurfaceWithFormat(0, 264, 197, 32, SDL_PIXELFORMAT_XRGB8888)); // pinta-se depressa
        hospedeiro = this;
    }

    bool proximo(Evento& e) override {
        confere();
        if (fila.empty()) {
            if (restam <= 0 || tempo.ms < dorme_ate) return false;
            inventa();
            dorme_ate = tempo.ms + (um_em(4) ? ate(1500) : 0);
        }
        if (fila.empty()) return false;
        e = fila.front();
        fila.pop_front();
        --restam;
        ultimo = std::to_string(e.tipo) + " em " + std::to_string(e.x) + "," + std::to_string(e.y) + ", tela " +
                 (tela_ativa() != nullptr ? tela_ativa()->nome : "nenhuma") + ", faltam " + std::to_string(restam);
        return true;
    }
    bool espera(std::int64_t ms) override {
        tempo.ms += ms < 0 ? 500 : std::min<std::int64_t>(ms, 500);
        return restam > 0;
    }
    SDL_Surface* superficie() override { return janela.get(); }
    void apresenta(const SDL_Rect&) override {}
    void mostra_ponteiro(int) override {}
    void troca_tela_cheia() override {}
    int toca(const std::string&) override { return um_em(3) ? 300 : 0; }

    // A terra verdadeira é a que a previsão guarda ao começar, e confere-se quando ela acaba: antes dela, dois eventos
    // que esperaram um som podem semear e prever de uma vez.
    void confere() {
        if (erro.empty()) erro = invariante_quebrado();
        if (erro.empty() && prevendo && !previsao_ligada() && terra() != verdadeira) erro = "a previsão mexeu na horta";
        if (!prevendo && previsao_ligada()) verdadeira = guardada();
        prevendo = previsao_ligada();
        if (!erro.empty()) restam = 0;
    }

    bool um_em(int n) { return ate(n) == 0; }
    int ate(int n) { return int(sorte() % unsigned(n)); }
    static Evento mouse(Evento::Tipo tipo, int x, int y, int botao = 1) {
        return {.tipo = tipo, .x = x, .y = y, .botao = botao};
    }
    // O meio de um controle qualquer da tela, ou um ponto qualquer da janela.
    std::pair<int, int> lugar() {
        const Tela* t = tela_ativa();
        if (t == nullptr || t->controles.empty() || um_em(5)) return {ate(janela->w), ate(janela->h)};
        const Controle& c = *t->controles[std::size_t(ate(int(t->controles.size())))];
        const Retangulo r = c.lugar();
        return {int((t->origem_x() + r.x + r.largura / 2) / 3), int((t->origem_y() + r.y + r.altura / 2) / 3)};
    }
    void inventa() {
        const auto [x, y] = lugar();
        const auto [x2, y2] = lugar();
        const int botao = um_em(8) ? 1 << ate(3) : 1, que = ate(100);
        constexpr int teclas[] = {SDLK_TAB,    SDLK_TAB,       SDLK_LEFT,   SDLK_RIGHT, SDLK_UP,  SDLK_DOWN,
                                  SDLK_RETURN, SDLK_SPACE,     SDLK_ESCAPE, SDLK_MINUS, SDLK_F11, SDLK_HOME,
                                  SDLK_END,    SDLK_BACKSPACE, SDLK_s,      SDLK_n};
        fila.push_back(mouse(Evento::move, x, y));
        if (que < 50) {
            fila.push_back(mouse(Evento::aperta, x, y, botao));
            if (!um_em(20)) fila.push_back(mouse(Evento::solta, x, y, botao));
        } else if (que < 75) {
            fila.push_back(mouse(Evento::aperta, x, y));
            fila.push_back(mouse(Evento::move, (x + x2) / 2, (y + y2) / 2));
            fila.push_back(mouse(Evento::move, x2, y2));
            fila.push_back(mouse(Evento::solta, x2, y2, botao));
        } else if (que < 92) {
            for (int i = ate(4); i >= 0; --i)
                fila.push_back({.tipo = Evento::tecla,
                                .tecla_apertada = {teclas[ate(std::size(teclas))], um_em(4), false, um_em(20)}});
        } else if (que < 95) {
            fila.push_back({.tipo = Evento::texto, .escrito = um_em(2) ? "Zé" : "um nome que não acaba mais, \t'; --"});
        } else if (que < 98) {
            fila.push_back({.tipo = Evento::roda, .botao = ate(7) - 3});
        } else if (que < 99) {
            tempo.momento += std::chrono::hours{ate(40)}; // a meia-noite passa com o programa aberto
        } else {
            fila.push_back({.tipo = um_em(10) ? Evento::encerra : Evento::fecha});
        }
    }

    RelogioDeTeste& tempo;
    std::mt19937 sorte;
    int restam;
    std::deque<Evento> fila;
    std::int64_t dorme_ate = 0;
    bool prevendo = false;
    decltype(terra()) verdadeira;
    std::string erro, ultimo;
    Superficie janela;
};

struct Macacada : PartidaNaTela {
    Macacada() { setenv("PATH", "/nao/ha/nada", 1); } // nem impressora nem leitor de folhas
    ~Macacada() override { setenv("PATH", path.c_str(), 1); }

    const std::string path = std::getenv("PATH");
};

// Com VERDALIA_LONGO no ambiente, um milhão de eventos.
TEST_F(Macacada, NadaSeQuebra) {
    const int sementes = vezes(4, 20), eventos = vezes(5'000, 50'000);
    for (int semente = 1; semente <= sementes; ++semente) {
        std::filesystem::remove_all(jogador);
        Macaco macaco(relogio_de_teste, unsigned(semente), eventos);
        // Cada volta é uma vez que se abre o programa, dias depois da anterior.
        while (macaco.restam > 0) {
            recomeca_laco();
            esvazia();
            data_previsao = data_hoje;
            macaco.prevendo = false; // o que não se gravou foi-se
            relogio_de_teste.momento += std::chrono::hours{macaco.ate(24 * 12)};
            mostra(TelaId::fundo);
            laco();
        }
        ASSERT_EQ(macaco.erro, "") << "semente " << semente << ": depois de " << macaco.ultimo;
    }
    hospedeiro = &roteiro;
}

} // namespace
} // namespace verdalia
