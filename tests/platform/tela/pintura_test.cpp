// O que se vê: figuras que faltam, o mesmo desenho em dois tamanhos, a barra de rolagem e a quebra do texto.
#include "roteiro.h"

#include "platform/tela/barra.h"
#include "platform/tela/impressao.h"

#include <cmath>

namespace verdalia {
namespace {

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
            const Media um = media(*roteiro.janela, casa), dois = media(*dobro.janela, casa);
            for (int cor = 0; cor < 3; ++cor) pior = std::max(pior, std::abs(um[cor] - dois[cor]));
        }
    EXPECT_LT(pior, 14); // só as letras, que se desenham no tamanho de verdade, mudam um pouco
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
        EXPECT_GT(media(*roteiro.janela, {10, 10, 80, 80})[0], 150);
    }
    EXPECT_EQ(carrega_figura(""), nullptr);
}

struct Leitura : Tela {
    BarraRolagem barra{*this, "barra"};
    int mudancas = 0;
    Leitura() : Tela("leitura") {}
    void Form_Load() override {
        barra.fica_em({700, 0, 20, 500});
        barra.maximo = 100;
        barra.muda = [this] { ++mudancas; };
    }
};

TEST_F(Pintura, BarraAndaComMouseETecladoENaoPassaDasPontas) {
    constexpr TelaId id_leitura{102};
    constexpr FabricaDeTela fabricas[] = {{id_leitura, nova<Leitura>}};
    registra_telas(fabricas, [] { termina(); });
    mostra(id_leitura);
    auto& leitura = carrega_como<Leitura>(id_leitura);
    BarraRolagem& barra = leitura.barra;
    roteiro.clica_em(710, 490).confere([&] { EXPECT_EQ(barra.valor, 10); }); // uma página
    roteiro.arrasta_ponto(710, 50, 710, 900).confere([&] { EXPECT_EQ(barra.valor, 100); });
    roteiro.arrasta_ponto(710, 480, 710, 255).confere([&] { EXPECT_NEAR(barra.valor, 50, 3); });
    roteiro.teclas({SDLK_HOME, SDLK_UP, SDLK_DOWN, SDLK_PAGEDOWN});
    laco();
    EXPECT_EQ(barra.valor, 11);
    EXPECT_GE(leitura.mudancas, 5);
}

TEST_F(Pintura, TextoQuebraNaLarguraSemPerderLetra) {
    const Letra letra{.corpo = 12};
    EXPECT_EQ(quebra_linhas("um  dois\ntrês", letra, 1000), (std::vector<std::string>{"um  dois", "três"}));
    std::string junta;
    for (const std::string& linha : quebra_linhas("um /pasta/açãocomprida/hortas00.mdb", letra, 60)) {
        EXPECT_LE(largura_texto(linha, letra), 60) << linha;
        junta += linha;
    }
    EXPECT_EQ(junta, "um/pasta/açãocomprida/hortas00.mdb"); // nenhuma letra se parte
    EXPECT_NEAR(largura_texto("Chicória", letra) * 2, largura_texto("Chicória", {.corpo = 24}), 1);
}

} // namespace
} // namespace verdalia
