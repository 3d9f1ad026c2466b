// As opções: o que muda na hora, o que espera por "Retornar", e o que fica para a partida seguinte.
#include "roteiro.h"

namespace verdalia {
namespace {

struct Opcoes : PartidaNaTela {
    Opcoes() {
        prepara_banco();
        primeira_carga = false;
        for (std::string* trilha : {&trilha_horta, &trilha_age, &trilha_sem, &trilha_feira}) *trilha = "antes";
        mostra(TelaId::INTRONEW);
        roteiro.clica("Label2").esta_em("conf");
    }
    ~Opcoes() override {
        pastas_de_montagem.clear();
        procura_unidades();
    }
    static bool marcada(int i) { return dynamic_cast<Marca&>(*tela_ativa()->controle("Check1", i)).marcada; }
};

TEST_F(Opcoes, VozMudaNaHoraEMusicaSoAoRetornar) {
    roteiro.clica("Check1", 1).clica("Option1", 0).confere([] {
        EXPECT_FALSE(musica_ligada);
        EXPECT_EQ(dir_audio, "C:\\audio\\correto"); // sem voz não há sotaque que escolher
    });
    // Desligar e ligar de novo volta ao português correto.
    roteiro.clica("Check1", 2).clica("Option1", 0).clica("Check1", 2).confere([] { EXPECT_FALSE(som_ligado); });
    roteiro.clica("Check1", 2).confere([] { EXPECT_EQ(dir_audio, "C:\\audio\\correto"); });
    // A pergunta da saída não desmarca nada; o jogo da memória, sim, traz as marcas ao que vale.
    roteiro.fecha_janela().tecla(SDLK_ESCAPE).esta_em("conf").confere([] { EXPECT_TRUE(marcada(1)); });
    roteiro.clica("Labelgame").esta_em("gamedio").clica("Label1", 0).esta_em("conf").confere([] {
        EXPECT_TRUE(!marcada(1) && marcada(2));
    });
    roteiro.clica("Check1", 1).confere([] { EXPECT_EQ(trilha_horta, "antes"); });
    roteiro.clica("Label1").esta_em("INTRONEW").confere([] { EXPECT_TRUE(som_ligado && musica_ligada); });
    laco();
}

TEST_F(Opcoes, CadaSotaqueMudaTodasAsFalasETrilhasDepois) {
    const struct {
        const char* pasta;
        std::vector<std::string> trilhas;
    } esperados[] = {
        {"C:\\audio\\caipira", {"\\hortafim.wav", "\\agendfim.wav", "\\semefim.wav", "\\feirafim.wav"}},
        {"C:\\audio\\correto", {"\\htfimc.wav", "\\agfimc.wav", "\\sefimc.wav", "\\fefimc.wav"}},
        {"C:\\audio\\ingles", {"\\htfimi.wav", "\\agfimi.wav", "\\seimi.wav", "\\fefimi.wav"}},
    };
    const auto trilhas = [] { return std::vector{trilha_horta, trilha_age, trilha_sem, trilha_feira}; };
    roteiro.clica("Label1").clica("Label2").confere([&] { // sem som, nenhuma trilha muda
        EXPECT_EQ(trilhas(), std::vector<std::string>(4, "antes"));
    });
    roteiro.clica("Check1", 2);
    for (int i = 0; i < 3; ++i) {
        const auto& e = esperados[i];
        roteiro.clica("Option1", i).clica("Label1").esta_em("INTRONEW").confere([&, trilhas] {
            EXPECT_EQ(dir_audio, e.pasta);
            EXPECT_EQ(trilhas(), e.trilhas);
        });
        // Cada visita começa pelo português correto, e com as marcas do que vale.
        roteiro.clica("Label2").esta_em("conf").confere([] {
            EXPECT_EQ(dir_audio, "C:\\audio\\correto");
            EXPECT_TRUE(!marcada(1) && marcada(2));
        });
    }
    laco();
}

TEST_F(Opcoes, SoSeGuardaUnidadeComFigurasEElaEOferecidaDepois) {
    const auto ha = [] { return tela_ativa()->controle("o_que_ha")->texto.substr(0, 10); };
    roteiro.clica("Check1", 1).confere([ha] { EXPECT_EQ(ha(), "As figuras"); });
    roteiro.clica("Combo1").teclas({SDLK_DOWN, SDLK_RETURN}).clica("Label1").esta_em("ok").clica("opções");
    roteiro.esta_em("conf").confere([this, ha] {
        EXPECT_EQ(ha(), "Nenhum dis");
        EXPECT_TRUE(marcada(1)); // nada mais se perde
        le_cd();
        EXPECT_EQ(unidade_cd, 0);
        // Espeta-se então um pendrive com as figuras, que fica na unidade "D:".
        std::filesystem::create_directories(pasta.raiz / "montadas" / "Turma" / "anima");
        pastas_de_montagem = {pasta.raiz / "montadas"};
        procura_unidades();
    });
    roteiro.tecla(SDLK_TAB).confere([] { EXPECT_EQ(dir_media, "D:"); }); // ao largar a lista
    roteiro.clica("Label1").esta_em("INTRONEW").confere([] {
        EXPECT_TRUE(musica_ligada);
        EXPECT_EQ(dir_audio, "D:\\audio\\correto");
    });
    laco();
    recomeca_laco();
    roteiro.esta_em("Conf_cd").confere(
        [] { EXPECT_EQ(dynamic_cast<ListaSuspensa&>(*tela_ativa()->controle("Combo1")).escolhido, 1); });
    joga();
}

} // namespace
} // namespace verdalia
