// O que se vê: cada figura é a que se desenhou, e o que se escreve sobre uma se lê.
#include "roteiro.h"

#include <SDL_image.h>

#include <array>
#include <cmath>
#include <cstring>

namespace verdalia {
namespace {

namespace fs = std::filesystem;

constexpr int lado = 8; // da miniatura de uma figura, em pontos

using Miniatura = std::array<double, lado * lado * 3>; // R, G e B de 0 a 255, sobre papel

// A média de cada casa da figura.
Miniatura reduz(SDL_Surface& s) {
    Miniatura soma{};
    std::array<int, lado * lado> pontos{};
    const std::array papel = {cor_papel.r, cor_papel.g, cor_papel.b};
    for (int y = 0; y < s.h; ++y)
        for (int x = 0; x < s.w; ++x) {
            const auto* ponto = static_cast<const std::uint8_t*>(s.pixels) + std::ptrdiff_t{y} * s.pitch + 4 * x;
            const std::size_t casa = std::size_t(y * lado / s.h * lado + x * lado / s.w);
            const double alfa = ponto[3] / 255.0;
            for (std::size_t k = 0; k < 3; ++k) soma[casa * 3 + k] += ponto[k] * alfa + papel[k] * (1 - alfa);
            ++pontos[casa];
        }
    for (std::size_t i = 0; i < soma.size(); ++i) soma[i] /= pontos[i / 3];
    return soma;
}

Superficie le_figura(const fs::path& arquivo) {
    const Superficie lida(IMG_Load(arquivo.c_str()));
    return Superficie(lida ? SDL_ConvertSurfaceFormat(lida.get(), SDL_PIXELFORMAT_RGBA32, 0) : nullptr);
}

// A prancha de miniaturas, na ordem dos nomes, faz-se de novo com VERDALIA_MINIATURAS=1 depois de se olharem as
// figuras.
TEST(Figuras, CadaUmaEAQueSeDesenhou) {
    const fs::path programa = VERDALIA_PROGRAMA, prancha = VERDALIA_MINIATURAS_PNG;
    std::vector<fs::path> figuras;
    for (const auto& e : fs::recursive_directory_iterator(programa))
        if (e.path().extension() == ".bmp" || e.path().extension() == ".jpg") figuras.push_back(e.path());
    std::sort(figuras.begin(), figuras.end());
    const int total = static_cast<int>(figuras.size());
    const bool refaz = std::getenv("VERDALIA_MINIATURAS") != nullptr;
    const Superficie guardada =
        refaz ? Superficie(SDL_CreateRGBSurfaceWithFormat(0, lado, lado * total, 32, SDL_PIXELFORMAT_RGBA32))
              : le_figura(prancha);
    ASSERT_TRUE(guardada);
    ASSERT_EQ(guardada->h, lado * total) << "há figuras a mais ou a menos";
    for (int i = 0; i < total; ++i) {
        const Superficie figura = le_figura(figuras[std::size_t(i)]);
        ASSERT_TRUE(figura) << figuras[std::size_t(i)];
        const Miniatura agora = reduz(*figura);
        auto* pontos = static_cast<std::uint8_t*>(guardada->pixels) + std::ptrdiff_t{i} * lado * guardada->pitch;
        double diferenca = 0;
        for (std::size_t p = 0; p < agora.size(); ++p) {
            std::uint8_t& ponto = pontos[p / 3 * 4 + p % 3];
            if (refaz) ponto = static_cast<std::uint8_t>(std::lround(agora[p])), pontos[p / 3 * 4 + 3] = 255;
            diferenca += std::abs(agora[p] - ponto) / double(agora.size());
        }
        EXPECT_LT(diferenca, 2) << figuras[std::size_t(i)];
    }
    if (refaz) IMG_SavePNG(guardada.get(), prancha.c_str());
}

struct Legivel : PartidaNaTela {
    // Pinta a tela e devolve o pedaço dela.
    std::vector<std::uint32_t> pinta(Tela& t, const Retangulo& r) {
        Pintor pintor(roteiro.janela.get());
        t.pinta(pintor);
        std::vector<std::uint32_t> pontos;
        for (int y = int(r.y); y < int(r.y + r.altura); ++y) {
            const auto* linha = reinterpret_cast<const std::uint32_t*>(
                static_cast<std::uint8_t*>(roteiro.janela->pixels) + std::ptrdiff_t{y} * roteiro.janela->pitch);
            pontos.insert(pontos.end(), linha + int(r.x), linha + int(r.x + r.largura));
        }
        return pontos;
    }
};

TEST_F(Legivel, OQueSeEscreveSobreUmaFiguraTemContraste) {
    prepara_banco();
    int escritos = 0;
    for (const auto& fabrica : fabricas_do_jogo) {
        recomeca_laco();
        mostra(fabrica.id);
        Tela& t = carrega(fabrica.id);
        if (t.dialogo || !t.fundo) continue;
        for (Controle* c : t.controles) {
            const auto* rotulo = dynamic_cast<Rotulo*>(c);
            if (rotulo == nullptr || c->texto.empty() || !c->a_vista() || !c->ativo) continue;
            const Cor tinta = rotulo->quente ? cor_ligacao : c->letra.cor;
            const std::string texto = std::exchange(c->texto, "");
            const std::vector<std::uint32_t> vazio = pinta(t, c->lugar());
            c->texto = texto;
            const std::vector<std::uint32_t> escrito = pinta(t, c->lugar());
            int mau = 0, pontos = 0; // dos que a letra cobre
            for (std::size_t i = 0; i < vazio.size(); ++i) {
                if (vazio[i] == escrito[i]) continue;
                const auto canal = [&](int d) { return static_cast<std::uint8_t>(vazio[i] >> d & 255); };
                mau += contraste(tinta, {canal(16), canal(8), canal(0)}) < 4.5;
                ++pontos;
            }
            EXPECT_LE(mau, pontos / 20) << t.nome << ": " << texto;
            ++escritos;
        }
    }
    EXPECT_GT(escritos, 40);
}

} // namespace
} // namespace verdalia
