// O jogo da memória, jogado por roteiro: a partida perfeita, os cliques de toda espécie, o nome, o ranking.
#include "memory/regras/ranking.h"
#include "roteiro.h"

namespace verdalia {
namespace {

struct Memoria : PartidaNaTela {
    Memoria() {
        prepara_banco();
        primeira_carga = false;
        prepara_ranking();
        Data1.Refresh();
        pos_tempo = pos_cliques = sem_lugar;
        mostra(TelaId::conf);
        mostra(TelaId::gamedio);
        aprende();
        roteiro.tocados.clear();
    }
    static gamedio& jogo() { return carrega_como<gamedio>(TelaId::gamedio); }
    // Onde estão as duas cartas de cada figura.
    void aprende() {
        for (auto& par : pares) par.clear();
        for (int i = 0; i < n_cartas; ++i) pares[jogo().valor_carta[i]].push_back(i);
    }
    // Vira todos os pares, sem errar, e espera que saiam.
    Roteiro& acha_todos() {
        for (int f = 1; f <= n_pares; ++f)
            roteiro.clica("figura", pares[f][0]).clica("figura", pares[f][1]).espera_ms(700);
        return roteiro;
    }
    Roteiro& mostram(const char* tempo, const char* cliques) {
        return roteiro.confere([=] {
            EXPECT_EQ(jogo().Lbl_timer.texto, tempo);
            EXPECT_EQ(jogo().lbl_contador.texto, cliques);
        });
    }
    static std::string linha(int i) {
        auto& r = carrega_como<rank_form>(TelaId::rank_form);
        return r.nome(i).texto + "|" + r.valor(i).texto + "|" + r.quando(i).texto;
    }
    static std::string ranking() {
        std::string tudo;
        for (const LinhaDoRanking& l : Data1.linhas) tudo += l.tipo + l.valor + l.nome + ' ';
        return tudo;
    }
    // Cinco resultados de cada, melhores que os de qualquer criança.
    static void enche_de_campeoes() {
        nome_jogador = "X";
        for (int i = 0; i < lugares_no_ranking; ++i) {
            grava_tempo("0:01");
            grava_cliques("1");
        }
    }
    // As linhas cujo nome não se vê.
    static std::string escondidos() {
        std::string linhas;
        for (const auto& [i, r] : carrega_como<rank_form>(TelaId::rank_form).nome)
            if (!r->visivel) linhas += std::to_string(i);
        return linhas;
    }

    std::vector<int> pares[n_pares + 1];
    std::filesystem::path gm = jogador / "gm.mdb";
};

TEST_F(Memoria, CliquesDeTodaEspecie) {
    const int a = pares[1][0], a2 = pares[1][1], b = pares[2][0], c = pares[3][0];
    const auto veem = [=, this](const char* esperado) -> Roteiro& {
        return roteiro.confere([=] {
            std::string caras;
            for (const int i : {a, a2, b, c})
                caras += jogo().figura(i).visivel ? nome(jogo().figura(i).figura) : "fora";
            EXPECT_EQ(caras, esperado);
        });
    };
    roteiro.clica("figura", a).clica("figura", a);
    veem("1.jpg0.jpg0.jpg0.jpg"); // a mesma outra vez: nada muda, mas ouve-se
    mostram(":", "0").confere([this] { EXPECT_EQ(roteiro.tocados, std::vector<std::string>(2, "\\quickly.wav")); });
    roteiro.clica("figura", b);
    // Um clique numa das duas que falharam: a outra se vira, e ela fica como a primeira.
    veem("1.jpg0.jpg2.jpg0.jpg").clica("figura", b);
    veem("0.jpg0.jpg2.jpg0.jpg");
    mostram(":", "1").clica("figura", c).clica("figura", a);
    veem("1.jpg0.jpg0.jpg0.jpg");
    // O par pisca cinco vezes e sai; enquanto isso, clicar não vale nem se ouve.
    roteiro.clica("figura", a2).clica("figura", c).espera_ms(150);
    veem("forafora0.jpg0.jpg").espera_ms(100);
    veem("1.jpg1.jpg0.jpg0.jpg").espera_ms(300);
    veem("forafora0.jpg0.jpg").confere([this] { EXPECT_EQ(roteiro.tocados.back(), "\\oia.wav"); });
    mostram("0:01", "3");
    // Reiniciar: tudo de novo, e o relógio espera pela primeira carta.
    roteiro.clica("Label1", 2).espera_ms(3000);
    veem("0.jpg0.jpg0.jpg0.jpg");
    mostram(":", "0").clica("figura", 0).espera_ms(1100);
    mostram("0:01", "0");
    // O ranking para o relógio; na volta, é outro jogo.
    roteiro.clica("Label1", 1).esta_em("rank_form").espera_ms(500).clica("Label1", 1).esta_em("gamedio");
    mostram(":", "0").clica("Label1", 0).esta_em("conf");
    laco();
    EXPECT_TRUE(ranking().empty() && !carregada(TelaId::gamedio));
}

TEST_F(Memoria, CadaRankingPorSiESoPedeONomeDeQuemEntra) {
    enche_de_campeoes();
    // Três dos campeões em tentativas dão lugar a quem fez vinte.
    std::erase_if(Data1.linhas, [n = 0](const LinhaDoRanking& l) mutable { return l.tipo == "2" && ++n > 2; });
    nome_jogador = "Y";
    for (int i = 0; i < 3; ++i) grava_cliques("20");
    roteiro.clica("figura", pares[1][0]).clica("figura", pares[2][0]); // um erro
    acha_todos().espera_ms(1100).esta_em("mem_ok").escreve("Zé").clica("opções");
    roteiro.esta_em("rank_form").confere([] { EXPECT_EQ(linha(7), "Zé|19|04/03/26"); });
    // Só pisca o nome novo, doze vezes, e acaba à vista.
    roteiro.espera_ms(110).confere([this] { EXPECT_EQ(escondidos(), "7"); });
    roteiro.espera_ms(1300).confere([this] { EXPECT_EQ(escondidos(), ""); });
    roteiro.clica("Label1", 1).esta_em("gamedio");
    mostram(":", "0").confere([this] {
        EXPECT_EQ(ranking(), "100:01X 100:01X 100:01X 100:01X 100:01X 200001X 200001X 200019Zé 200020Y 200020Y ");
        // Fora dos cinco ninguém escreve o nome, e um comando não corta o fim do jogo.
        enche_de_campeoes();
        aprende();
        acha_todos().clica("Label1", 2).confere([] { EXPECT_EQ(jogo().lbl_contador.texto, "18"); }).espera_ms(1500);
        roteiro.esta_em("gamedio").confere([] { EXPECT_TRUE(jogo().Lbl_timer.visivel); }).clica("Label1", 2);
        // Zerar pergunta antes.
        mostram(":", "0").clica("Label1", 1);
        for (const bool sim : {false, true})
            roteiro.clica("Label1", 0).pergunta("Atenção|Deseja 'zerar' o ranking ?", sim).confere([sim] {
                EXPECT_EQ(linha(0), sim ? "||" : "X|0:01|04/03/26");
            });
    });
    laco();
    EXPECT_EQ(consulta(gm, "SELECT * FROM gm"), "");
}

TEST_F(Memoria, NomeTemVinteLetrasEmQualquerAlfabeto) {
    const auto confere = [this](const char* texto, bool ok) {
        roteiro.confere([=] {
            const auto& caixa = carrega_como<mem_ok>(TelaId::mem_ok);
            EXPECT_EQ(caixa.Text1.texto + (caixa.opções.ativo ? "*" : ""), texto + std::string(ok ? "*" : ""));
        });
    };
    acha_todos().espera_ms(2000).tecla(SDLK_RETURN).clica("opções").escreve("É");
    confere("É", false); // o botão só acende com a segunda tecla
    roteiro.clica("apaga").escreve("漢");
    confere("漢", false); // o "×" deixa tudo como no começo, e o foco na caixa
    for (int i = 0; i < 17; ++i) roteiro.escreve("ã");
    roteiro.escreve("mais"); // só cabem duas letras
    roteiro.teclas({SDLK_BACKSPACE, SDLK_DELETE, SDLK_HOME, SDLK_RETURN}).escreve("x");
    roteiro.teclas({SDLK_TAB, SDLK_RETURN}).esta_em("rank_form").confere([] {
        EXPECT_EQ(linha(5), "漢ãããããããããããããããããma|18|04/03/26");
    });
    laco();
}

} // namespace
} // namespace verdalia
