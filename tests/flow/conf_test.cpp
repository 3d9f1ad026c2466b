// As opções: o que muda na hora, o que espera por "Retornar", e o que fica para a partida seguinte.
#include "flow/comum/falas.h"
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
    // Um pendrive com as figuras na unidade "D:".
    void poe_pendrive() {
        std::filesystem::create_directories(pasta.raiz / "montadas" / "Turma" / "anima");
        pastas_de_montagem = {pasta.raiz / "montadas"};
        procura_unidades();
    }
    ~Opcoes() override {
        pastas_de_montagem.clear();
        procura_unidades();
    }
    static bool marcada(int i) { return dynamic_cast<Marca&>(*tela_ativa()->controle("Check1", i)).marcada; }
};

TEST_F(Opcoes, VozMudaNaHoraEMusicaSoAoRetornar) {
    roteiro.clica("Check1", 1).confere([] {
        EXPECT_FALSE(musica_ligada);
        EXPECT_FALSE(tela_ativa()->controle("Option1", 0)->ativo); // sem voz não há sotaque que escolher
    });
    roteiro.clica("Option1", 0).confere([] { EXPECT_EQ(dir_audio, "C:\\audio\\correto"); });
    roteiro.clica("Check1", 2).clica("Option1", 0).confere([] {
        EXPECT_TRUE(som_ligado && !musica_ligada);
        EXPECT_EQ(dir_audio, "C:\\audio\\caipira");
        EXPECT_EQ(trilha_horta, "antes");
    });
    // Desligar e ligar de novo volta ao português correto, até que se escolha ou se retorne.
    roteiro.clica("Check1", 2).confere([] { EXPECT_FALSE(som_ligado); }).clica("Check1", 2).confere([] {
        EXPECT_EQ(dir_audio, "C:\\audio\\correto");
    });
    // A pergunta da saída não desmarca nada; o jogo da memória, sim, traz as marcas ao que vale.
    roteiro.fecha_janela().tecla(SDLK_ESCAPE).esta_em("conf").confere([] { EXPECT_TRUE(marcada(1)); });
    roteiro.clica("Labelgame").esta_em("gamedio").clica("Label1", 0).esta_em("conf").confere([] {
        EXPECT_FALSE(marcada(1));
        EXPECT_TRUE(marcada(2));
    });
    roteiro.clica("Check1", 1).clica("Label1").esta_em("INTRONEW").confere([] {
        EXPECT_TRUE(som_ligado && musica_ligada);
        EXPECT_EQ(dir_audio, "C:\\audio\\caipira");
    });
    // A visita seguinte começa pelo português correto; as trilhas esperam por outro "Retornar".
    roteiro.clica("Label2").esta_em("conf").confere([] {
        EXPECT_TRUE(marcada(1) && marcada(2));
        EXPECT_EQ(dir_audio, "C:\\audio\\correto");
        EXPECT_EQ(trilha_feira, "\\feirafim.wav");
    });
    laco();
}

TEST_F(Opcoes, RetornarSemSomNaoMudaTrilhaNenhuma) {
    roteiro.clica("Check1", 2).clica("Option1", 2).clica("Check1", 2).clica("Label1").esta_em("INTRONEW");
    laco();
    EXPECT_FALSE(som_ligado || musica_ligada);
    EXPECT_EQ(trilha_horta + trilha_age + trilha_sem + trilha_feira, "antesantesantesantes");
}

// Pelo teclado, como pelo mouse, cada sotaque muda as falas que vêm depois e as trilhas das quatro telas.
TEST_F(Opcoes, CadaSotaqueMudaTodasAsFalasETrilhasDepois) {
    const struct {
        int indice;
        const char* pasta;
        std::vector<std::string> trilhas;
    } esperados[] = {
        {0, "C:\\audio\\caipira", {"\\hortafim.wav", "\\agendfim.wav", "\\semefim.wav", "\\feirafim.wav"}},
        {1, "C:\\audio\\correto", {"\\htfimc.wav", "\\agfimc.wav", "\\sefimc.wav", "\\fefimc.wav"}},
        {2, "C:\\audio\\ingles", {"\\htfimi.wav", "\\agfimi.wav", "\\seimi.wav", "\\fefimi.wav"}},
    };
    roteiro.tecla(SDLK_TAB)
        .confere([] { EXPECT_EQ(tela_ativa()->foco->nome, "Check1"); })
        .teclas({SDLK_DOWN, SDLK_SPACE});
    for (const auto& e : esperados) {
        roteiro.confere([&e] { tela_ativa()->foco = tela_ativa()->controle("Option1", e.indice); });
        roteiro.tecla(SDLK_SPACE).confere([this, &e] {
            EXPECT_EQ(dir_audio, e.pasta);
            roteiro.tocados.clear();
            fala("\\s1.wav", sem_esperar);
            EXPECT_EQ(roteiro.tocados, (std::vector{e.pasta + std::string("\\s1.wav")}));
        });
        roteiro.clica("Label1").esta_em("INTRONEW").confere([&e] {
            EXPECT_EQ(dir_audio, e.pasta);
            EXPECT_EQ((std::vector{trilha_horta, trilha_age, trilha_sem, trilha_feira}), e.trilhas);
        });
        roteiro.clica("Label2").esta_em("conf");
    }
    laco();
}

TEST_F(Opcoes, UnidadeEscolhidaFicaGuardadaEEOferecidaDepois) {
    poe_pendrive();
    roteiro.clica("Combo1").teclas({SDLK_DOWN, SDLK_RETURN}).confere([] { EXPECT_EQ(dir_media, "C:"); });
    roteiro.tecla(SDLK_TAB).confere([] {
        EXPECT_EQ(dir_media, "D:"); // ao largar a lista
        EXPECT_EQ(dir_audio, "C:\\audio\\correto");
    });
    roteiro.clica("Check1", 2).clica("Label1").esta_em("INTRONEW").confere([] {
        EXPECT_EQ(dir_audio, "D:\\audio\\correto");
    });
    laco();
    recomeca_laco();
    roteiro.esta_em("Conf_cd").confere(
        [] { EXPECT_EQ(dynamic_cast<ListaSuspensa&>(*tela_ativa()->controle("Combo1")).escolhido, 1); });
    joga();
}

TEST_F(Opcoes, UnidadeSemFigurasNaoSeGuardaENadaMaisSePerde) {
    roteiro.clica("Check1", 1).clica("Combo1").teclas({SDLK_DOWN, SDLK_RETURN}).clica("Label1").esta_em("ok");
    roteiro.clica("opções").esta_em("conf").confere([] { EXPECT_TRUE(marcada(1)); });
    roteiro.clica("Combo1").teclas({SDLK_UP, SDLK_RETURN}).clica("Label1").esta_em("INTRONEW");
    laco();
    EXPECT_TRUE(musica_ligada);
    EXPECT_EQ(dir_media, "C:");
    le_cd();
    EXPECT_EQ(unidade_cd, 0);
}

TEST_F(Opcoes, InterrogacaoGiraELevaAAjudaDoPrograma) {
    roteiro.clica("Check1", 2).clica("interroga").espera_ms(650).confere([this] {
        EXPECT_EQ(nome(tela_ativa()->controle("interroga")->figura), "int00.bmp");
        EXPECT_TRUE(roteiro.tocados.empty());
    });
    roteiro.espera_ms(100).confere([this] {
        EXPECT_EQ(topico_help + tela_origem, "PGMPGM");
        EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{"\\silencio.wav"}));
        EXPECT_TRUE(carregada(TelaId::conf));
        EXPECT_NE(tela_ativa()->nome, "conf");
    });
    laco();
}

} // namespace
} // namespace verdalia
