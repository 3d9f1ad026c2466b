// O que se vê: figuras que faltam, o mesmo desenho em dois tamanhos, a barra de rolagem e a caixa de impressão.
#include "roteiro.h"

#include "platform/tela/barra.h"
#include "platform/tela/impressao.h"

#include <cmath>

namespace verdalia {
namespace {

// A cor média de um retângulo em pixels lógicos, como números de 0 a 255.
struct Media {
    double r = 0, g = 0, b = 0;
};
Media media(SDL_Surface& s, const Retangulo& onde) {
    const Pintor p(&s);
    const SDL_Rect q = p.na_janela(onde);
    Media m;
    for (int y = q.y; y < q.y + q.h; ++y)
        for (int x = q.x; x < q.x + q.w; ++x) {
            const auto* linha = static_cast<const std::uint8_t*>(s.pixels) + std::ptrdiff_t{y} * s.pitch;
            const std::uint32_t ponto = reinterpret_cast<const std::uint32_t*>(linha)[x];
            m.r += (ponto >> 16) & 255;
            m.g += (ponto >> 8) & 255;
            m.b += ponto & 255;
        }
    const double n = std::max(1, q.w * q.h);
    return {m.r / n, m.g / n, m.b / n};
}
double distancia(const Media& a, const Media& b) {
    return std::max({std::abs(a.r - b.r), std::abs(a.g - b.g), std::abs(a.b - b.b)});
}

struct Pintura : PartidaNaTela {};

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
            pior = std::max(pior, distancia(media(*roteiro.janela, casa), media(*dobro.janela, casa)));
        }
    EXPECT_LT(pior, 14); // só as letras, que se desenham no tamanho de verdade, mudam um pouco
}

TEST_F(Pintura, JanelaLargaGuardaAProporcaoEEscureceAFolga) {
    const Superficie larga(SDL_CreateRGBSurfaceWithFormat(0, 1600, 592, 32, SDL_PIXELFORMAT_XRGB8888));
    Pintor p(larga.get());
    EXPECT_DOUBLE_EQ(p.escala, 1);
    EXPECT_EQ(p.folga_x, 404);
    p.retangulo({0, 0, 792, 592}, cor_papel);
    p.pinta_folgas();
    const auto* pontos = static_cast<const std::uint32_t*>(larga->pixels);
    EXPECT_NE(pontos[403], pontos[404 + 5]);
    EXPECT_EQ(pontos[0], pontos[1599]);
}

TEST_F(Pintura, FiguraQueFaltaOuEstaEstragadaViraCartao) {
    escreve(jogador / "estragada.bmp", "BM isto não é um bitmap");
    for (const char* caminho : {"\\nao_existe.bmp", "\\estragada.bmp"}) {
        testing::internal::CaptureStderr();
        const ImagemRef figura = carrega_figura(caminho);
        EXPECT_NE(testing::internal::GetCapturedStderr().find(caminho), std::string::npos);
        ASSERT_TRUE(figura && figura->falta);
        Pintor p(roteiro.janela.get());
        p.retangulo({0, 0, 100, 100}, {0, 0, 0});
        p.imagem(*figura, {0, 0, 100, 100});
        EXPECT_GT(media(*roteiro.janela, {10, 10, 80, 80}).r, 150);
    }
    EXPECT_EQ(carrega_figura(""), nullptr);
}

TEST_F(Pintura, FiguraTransparenteNaoGanhaFranjaAoEstirar) {
    // Um disco claro sobre transparente preto, estirado sobre fundo claro: nada escurece.
    const Superficie disco(SDL_CreateRGBSurfaceWithFormat(0, 80, 80, 32, SDL_PIXELFORMAT_ARGB8888));
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x)
            static_cast<std::uint32_t*>(disco->pixels)[y * 80 + x] =
                std::hypot(x - 40, y - 40) < 30 ? 0xffffffffU : 0x00000000U;
    std::filesystem::create_directories(jogador);
    ASSERT_EQ(SDL_SaveBMP(disco.get(), (jogador / "disco.bmp").c_str()), 0);
    Pintor p(roteiro.janela.get());
    p.retangulo({0, 0, 60, 60}, {255, 255, 255});
    p.imagem(*carrega_figura("\\disco.bmp"), {0, 0, 37, 37});
    EXPECT_GT(media(*roteiro.janela, {0, 0, 40, 40}).g, 253.5);
}

constexpr TelaId id_leitura{102};
struct Leitura : Tela {
    BarraRolagem barra{*this, "barra"};
    CaixaImpressao papel{*this, "papel"};
    int mudancas = 0;
    Leitura() : Tela("leitura") {}
    void Form_Load() override {
        constexpr Lugar lugares[] = {{"barra", -1, 700, 0, 20, 500}, {"papel", -1, 100, 100, 400, 300}};
        arruma(*this, lugares);
        barra.maximo = 100;
        barra.muda = [this] { ++mudancas; };
    }
};
constexpr FabricaDeTela fabricas[] = {{id_leitura, nova<Leitura>}};

TEST_F(Pintura, BarraAndaComMouseTecladoERodaENaoPassaDasPontas) {
    registra_telas(fabricas, [] { termina(); });
    mostra(id_leitura);
    BarraRolagem& barra = carrega_como<Leitura>(id_leitura).barra;
    roteiro.clica_em(710, 490).confere([&] { EXPECT_EQ(barra.valor, 10); }); // uma página
    roteiro.arrasta_ponto(710, 50, 710, 900).confere([&] { EXPECT_EQ(barra.valor, 100); });
    roteiro.arrasta_ponto(710, 480, 710, 255).confere([&] { EXPECT_NEAR(barra.valor, 50, 3); });
    roteiro.tecla(SDLK_HOME).tecla(SDLK_UP).tecla(SDLK_DOWN).tecla(SDLK_PAGEDOWN).confere([&] {
        EXPECT_EQ(barra.valor, 11);
    });
    laco();
    EXPECT_GE(carrega_como<Leitura>(id_leitura).mudancas, 5);
}

TEST_F(Pintura, ImpressaoAvancaMedeEQuebraIgualEmQualquerTamanho) {
    registra_telas(fabricas, [] { termina(); });
    mostra(id_leitura);
    CaixaImpressao& papel = carrega_como<Leitura>(id_leitura).papel;
    papel.cor_fundo = {255, 255, 255};
    papel.letra = {.corpo = 20, .negrito = true, .cor = {0, 0, 0}};
    const double largura = papel.mede("Alface");
    papel.imprime("Alface");
    EXPECT_DOUBLE_EQ(papel.pos_x, largura);
    papel.letra.sublinhado = true;
    papel.imprime(" e couve");
    papel.nova_linha();
    EXPECT_EQ(papel.pos_x, 0);
    EXPECT_DOUBLE_EQ(papel.pos_y, papel.mede_linha());
    pinta_tudo();
    EXPECT_LT(media(*roteiro.janela, {100, 100, largura, papel.mede_linha()}).r, 230);
    papel.limpa();
    pinta_tudo();
    EXPECT_GT(media(*roteiro.janela, {100, 100, 400, 300}).r, 254);
    const Letra letra{.corpo = 12};
    EXPECT_EQ(quebra_linhas("um  dois\ntrês", letra, 1000), (std::vector<std::string>{"um  dois", "três"}));
    EXPECT_EQ(quebra_linhas("palavracomprida curta", letra, 20).size(), 2U);
    EXPECT_NEAR(largura_texto("Chicória", letra) * 2, largura_texto("Chicória", {.corpo = 24}), 1);
}

} // namespace
} // namespace verdalia
