// O centro do jogo: o guia e a minhoca.
#include "roteiro.h"

namespace verdalia {
namespace {

struct CentroAberto : PartidaNaTela {
    CentroAberto() {
        prepara_banco();
        primeira_carga = false;
    }
    INTRONEW& abre() { return entra_em<INTRONEW>(TelaId::INTRONEW); }
};

TEST_F(CentroAberto, OGuiaAbreCadaPaginaPelaPalavraEPeloQuadro) {
    const char* const paginas[][2] = {
        {"Vaso ou Canteiro", "help1b.jpg"},
        {"Requisitos", "help111.jpg"},
        {"Auto Abastecimento", "helpauto.jpg"},
        {"Escolher Verduras", "helpfeir.jpg"},
        {"Plantar as Verduras", "help4.jpg"},
        {"Sementeira", "help5.jpg"},
        {"Tempo Real", "help6.jpg"},
        {"Previsão", "help6.jpg"},
        {"Quais Atividades", "help7.jpg"},
        {"Confirmar", "help8.jpg"},
        {"Vaso ou Canteiro", "help9.jpg"},
        {"Help", "help10.jpg"},
        {"Pergunte que o Hortelão responde", "help101.jpg"},
    };
    auto& c = abre();
    for (int i = 0; i < 13; ++i) {
        const Retangulo quadro = c.quadro(i).lugar();
        for (const bool pelo_quadro : {false, true}) {
            (pelo_quadro ? roteiro.clica_em(quadro.x + 20, quadro.y + 20) : roteiro.clica("Label1", i)).confere([&, i] {
                EXPECT_EQ(tela_ativa()->titulo, paginas[i][0]);
                EXPECT_EQ(nome(tela_ativa()->fundo), paginas[i][1]);
            });
            roteiro.tecla(SDLK_ESCAPE);
        }
    }
    laco();
}

TEST_F(CentroAberto, AMinhocaAndaAosPassosEDaAVoltaNasPontas) {
    auto& c = abre();
    const double passo = 50 / 15.0, partida = c.pic_nhoca.esquerda;
    std::string quadros;
    roteiro.espera_ms(5);
    for (int i = 0; i < 7; ++i) roteiro.espera_ms(100).confere([&] { quadros += nome(c.pic_nhoca.figura)[5]; });
    roteiro.confere([&] {
        EXPECT_EQ(quadros, "0123210");
        EXPECT_DOUBLE_EQ(c.pic_nhoca.esquerda, partida - 3 * passo);
        // Cada passo pinta só o lugar dela, e nada fica para trás.
        EXPECT_LT(roteiro.mudou.w, largura_logica / 4);
        const auto pontos = [&] {
            const SDL_Surface& s = *roteiro.janela;
            return std::string(static_cast<const char*>(s.pixels), static_cast<std::size_t>(s.pitch) * s.h);
        };
        const std::string aos_poucos = pontos();
        pinta_tudo();
        EXPECT_TRUE(aos_poucos == pontos());
        c.pic_nhoca.esquerda = 2400 / 15.0;
    });
    roteiro.espera_ms(700).confere([&] {
        EXPECT_FALSE(c.nhoca_esquerda);
        EXPECT_DOUBLE_EQ(c.pic_nhoca.esquerda, 2400 / 15.0 + passo); // um passo para lá, dois de volta
        c.pic_nhoca.esquerda = 10200 / 15.0;
    });
    roteiro.espera_ms(700).confere([&] { EXPECT_TRUE(c.nhoca_esquerda); });
    roteiro.clica("Label2").confere([&] { EXPECT_EQ(c.Timer1.intervalo, 0); }); // as opções a fazem esperar
    laco();
}

} // namespace
} // namespace verdalia
