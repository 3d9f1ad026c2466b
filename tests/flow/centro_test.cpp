// O centro do jogo, figura por figura: os quadros, a fala, o destino, a ampulheta; o guia e a minhoca.
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

TEST_F(CentroAberto, CadaFiguraMostraOsSeusQuadrosEVaiAoSeuLugar) {
    const struct {
        const char *figura, *palavra;
        int indice; // da palavra que faz o mesmo
        const char* quadros;
        bool ampulheta;
        const char* fala;
        TelaId destino;
    } figuras[] = {
        {"pic_feira", "legenda", 0, "cesta0 cesta1 cesta2 cesta3 cesta4 cesta5 cesta6 cesta7 cesta8 cesta9", false,
         "\\vamfei.wav", TelaId::feira_horta},
        {"pic_horta", "legenda", 1,
         "enx00c enx01c enx02c enx03c enx04c enx05c enx06c enx07c enx08c enx09c enx10c enx00c", false, "\\vamhor.wav",
         TelaId::trabalhando_na_horta},
        {"pic_semen", "legenda", 2, "mudas000 mudas001 mudas002 mudas003 mudas004 mudas005 mudas006 mudas007", true,
         "\\vamsem.wav", TelaId::controle_da_sementeira},
        {"pic_agenda", "legenda", 3, "age00 age01 age02 age03 age04 age05 age06 age07 age08 age09 age10", false,
         "\\vamage.wav", TelaId::age},
        {"saida", "legenda", 4, "port01 port02 port03 port04 port04 port03 port02 port01 port00", false, "\\s1.wav",
         TelaId::form_ok_nao},
        {"interroga", "interroga", -1, "int05 int04 int03 int02 int01 int00", true, "", TelaId::help},
    };
    som_ligado = true;
    for (const auto& f : figuras)
        for (const bool pela_palavra : {false, true}) {
            SCOPED_TRACE(f.figura);
            abre();
            topico_help.clear();
            roteiro.tocados.clear();
            std::string vistos;
            roteiro.clica(pela_palavra ? f.palavra : f.figura, pela_palavra ? f.indice : -1).espera_ms(5);
            for (std::size_t i = 0; i < std::string(f.quadros).size(); i += std::string(f.quadros).find(' ') + 1)
                roteiro.espera_ms(100).confere([&] {
                    const Controle* c = tela_ativa()->controle(f.figura);
                    vistos += (vistos.empty() ? "" : " ") + nome(c->figura).substr(0, nome(c->figura).find('.'));
                    EXPECT_EQ(c->ponteiro == ponteiro_ampulheta, f.ampulheta);
                });
            roteiro.espera_ms(100).confere([&] { EXPECT_TRUE(carregada(f.destino)); });
            laco();
            EXPECT_EQ(vistos, f.quadros);
            if (*f.fala != '\0') {
                EXPECT_EQ(falas(f.fala), 1);
            }
            EXPECT_EQ(topico_help, f.destino == TelaId::help ? "Orgânico" : "");
        }
}

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
        EXPECT_TRUE(quadro.contem(c.Label1(i).lugar().x, c.Label1(i).lugar().y)) << i;
        for (const bool pelo_quadro : {false, true}) {
            if (pelo_quadro)
                roteiro.clica_em(quadro.x + 20, quadro.y + 20);
            else
                roteiro.clica("Label1", i);
            roteiro.confere([&paginas, i] {
                EXPECT_EQ(tela_ativa()->titulo, paginas[i][0]);
                EXPECT_EQ(nome(tela_ativa()->fundo), paginas[i][1]);
            });
            roteiro.tecla(SDLK_ESCAPE);
        }
    }
    laco();
}

TEST_F(CentroAberto, AMinhocaAndaAosPassosEDaAVolta) {
    auto& c = abre();
    const double passo = 50 / 15.0, partida = c.pic_nhoca.esquerda;
    std::string quadros;
    for (int i = 0; i < 7; ++i)
        roteiro.espera_ms(i == 0 ? 105 : 100).confere([&] { quadros += nome(c.pic_nhoca.figura) + " "; });
    roteiro.confere([&] {
        EXPECT_EQ(quadros, "nhoca0p.bmp nhoca1p.bmp nhoca2p.bmp nhoca3p.bmp nhoca2p.bmp nhoca1p.bmp nhoca0p.bmp ");
        EXPECT_DOUBLE_EQ(c.pic_nhoca.esquerda, partida - 3 * passo);
        c.pic_nhoca.esquerda = 2400 / 15.0;
    });
    // Passa da ponta e volta, com a figura do outro lado, até a outra ponta.
    roteiro.espera_ms(700).confere([&] {
        EXPECT_FALSE(c.nhoca_esquerda);
        EXPECT_TRUE(nome(c.pic_nhoca.figura).starts_with("nh")) << nome(c.pic_nhoca.figura);
        EXPECT_DOUBLE_EQ(c.pic_nhoca.esquerda, 2400 / 15.0 + passo); // um passo para lá, dois de volta
        c.pic_nhoca.esquerda = 10200 / 15.0;
    });
    roteiro.espera_ms(700).confere([&] {
        EXPECT_TRUE(c.nhoca_esquerda);
        EXPECT_LT(c.pic_nhoca.esquerda, 10200 / 15.0 + passo);
    });
    // Com as opções abertas, ela espera.
    roteiro.clica("Label2").confere([&] { EXPECT_EQ(c.Timer1.intervalo, 0); });
    laco();
}

} // namespace
} // namespace verdalia
