// O que se vê: cada figura é a que se desenhou, o desenho é o mesmo em dois tamanhos, e o que se escreve sobre ele se lê.
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

// A média de cada casa de `colunas` x `linhas` da figura, sobre papel.
template <std::size_t N> std::array<double, N> reduz(SDL_Surface& s, int colunas, int linhas) {
    std::array<double, N> soma{};
    std::array<int, N / 3> pontos{};
    const std::array papel = {cor_papel.r, cor_papel.g, cor_papel.b};
    for (int y = 0; y < s.h; ++y)
        for (int x = 0; x < s.w; ++x) {
            const auto* ponto = static_cast<const std::uint8_t*>(s.pixels) + std::ptrdiff_t{y} * s.pitch + 4 * x;
            const std::size_t casa = std::size_t(y * linhas / s.h * colunas + x * colunas / s.w);
            const double alfa = ponto[3] / 255.0;
            for (std::size_t k = 0; k < 3; ++k) soma[casa * 3 + k] += ponto[k] * alfa + papel[k] * (1 - alfa);
            ++pontos[casa];
        }
    for (std::size_t i = 0; i < N; ++i) soma[i] /= pontos[i / 3];
    return soma;
}

Superficie le_figura(const fs::path& arquivo) {
    const Superficie lida(IMG_Load(arquivo.c_str()));
    return Superficie(lida ? SDL_ConvertSurfaceFormat(lida.get(), SDL_PIXELFORMAT_RGBA32, 0) : nullptr);
}

template <std::size_t N> double diferenca(const std::array<double, N>& a, const std::array<double, N>& b) {
    double soma = 0;
    for (std::size_t i = 0; i < N; ++i) soma += std::abs(a[i] - b[i]);
    return soma / N;
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
        const Miniatura agora = reduz<lado * lado * 3>(*figura, lado, lado);
        auto* pontos = static_cast<std::uint8_t*>(guardada->pixels) + std::ptrdiff_t{i} * lado * guardada->pitch;
        Miniatura antes{};
        for (std::size_t p = 0; p < antes.size(); ++p) {
            std::uint8_t& ponto = pontos[p / 3 * 4 + p % 3];
            if (refaz) ponto = static_cast<std::uint8_t>(std::lround(agora[p])), pontos[p / 3 * 4 + 3] = 255;
            antes[p] = ponto;
        }
        EXPECT_LT(diferenca(agora, antes), 2) << figuras[std::size_t(i)];
    }
    if (refaz) IMG_SavePNG(guardada.get(), prancha.c_str());
}

// A cor média de um retângulo em pixels lógicos: vermelho, verde e azul, de 0 a 255.
using Media = std::array<double, 3>;
Media media(SDL_Surface& s, const Retangulo& onde) {
    const SDL_Rect q = Pintor(&s).na_janela(onde);
    Media m{};
    for (int y = q.y; y < q.y + q.h; ++y)
        for (int x = q.x; x < q.x + q.w; ++x) {
            const std::uint32_t ponto = static_cast<const std::uint32_t*>(s.pixels)[y * (s.pitch / 4) + x];
            for (int cor = 0; cor < 3; ++cor) m[cor] += (ponto >> (16 - 8 * cor) & 255) / double(q.w * q.h);
        }
    return m;
}

using Pintura = PartidaNaTela;

TEST_F(Pintura, OCentroEOMesmoEmQualquerTamanhoDeJanela) {
    prepara_banco();
    primeira_carga = false;
    mostra(TelaId::INTRONEW);
    pinta_tudo();
    Roteiro dobro(relogio_de_teste, 2);
    esquece_tamanhos();
    pinta_tudo();
    hospedeiro = &roteiro;
    double pior = 0;
    for (int linha = 0; linha < 37; ++linha)
        for (int coluna = 0; coluna < 44; ++coluna) {
            const Retangulo casa{coluna * 18.0, linha * 16.0, 18, 16};
            const Media um = media(*roteiro.janela, casa), dois = media(*dobro.janela, casa);
            for (int cor = 0; cor < 3; ++cor) pior = std::max(pior, std::abs(um[cor] - dois[cor]));
        }
    EXPECT_LT(pior, 14); // só as letras, que se desenham no tamanho de verdade, mudam um pouco
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
