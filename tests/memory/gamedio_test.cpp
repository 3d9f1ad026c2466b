// O jogo da memória, jogado por roteiro: a partida perfeita, os cliques de toda espécie, o nome, o ranking.
#include "memory/regras/ranking.h"
#include "roteiro.h"

#include <optional>

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
    // Vira um par e espera que ele saia.
    Roteiro& acha(int figura) {
        for (const int carta : pares[figura]) roteiro.clica("figura", carta);
        return roteiro.espera_ms(700);
    }
    // Todos os pares, sem errar.
    Roteiro& acha_todos() {
        for (int f = 1; f <= n_pares; ++f) acha(f);
        return roteiro;
    }
    Roteiro& mostram(const char* tempo, const char* cliques) {
        return roteiro.confere([=] {
            EXPECT_EQ(jogo().Lbl_timer.texto, tempo);
            EXPECT_EQ(jogo().lbl_contador.texto, cliques);
        });
    }
    // O que se vê da carta.
    static std::string cara(int carta) {
        return jogo().figura(carta).visivel ? nome(jogo().figura(carta).figura) : "fora";
    }
    static std::string linha(int i) {
        const auto& r = carrega_como<rank_form>(TelaId::rank_form);
        return r.nome.elementos.at(i)->texto + "|" + r.valor.elementos.at(i)->texto + "|" +
               r.quando.elementos.at(i)->texto;
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
    static std::vector<int> escondidos() {
        std::vector<int> linhas;
        for (const auto& [i, r] : carrega_como<rank_form>(TelaId::rank_form).nome)
            if (!r->visivel) linhas.push_back(i);
        return linhas;
    }

    std::vector<int> pares[n_pares + 1];
    std::filesystem::path gm = jogador / "gm.mdb";
};

TEST_F(Memoria, CliquesDeTodaEspecie) {
    const int a = pares[1][0], a2 = pares[1][1], b = pares[2][0], c = pares[3][0];
    roteiro.clica("figura", a).clica("figura", a).confere([=, this] {
        EXPECT_EQ(cara(a), "1.jpg"); // a mesma outra vez: nada muda, mas ouve-se
        EXPECT_EQ(roteiro.tocados, std::vector<std::string>(2, "\\quickly.wav"));
    });
    mostram(":", "0");
    roteiro.clica("figura", b).confere([=] { EXPECT_EQ(cara(a) + cara(b), "1.jpg2.jpg"); });
    // Um clique numa das duas que falharam: a outra se vira, e ela fica como a primeira.
    roteiro.clica("figura", b).confere([=] { EXPECT_EQ(cara(a) + cara(b), "0.jpg2.jpg"); });
    mostram(":", "1").clica("figura", c);
    mostram(":", "2").clica("figura", a).confere([=] { EXPECT_EQ(cara(a) + cara(b) + cara(c), "1.jpg0.jpg0.jpg"); });
    // O par pisca cinco vezes e sai; enquanto isso, clicar não vale nem se ouve.
    roteiro.clica("figura", a2).confere([this] { roteiro.tocados.clear(); }).clica("figura", c);
    roteiro.espera_ms(150).confere([=, this] {
        EXPECT_TRUE(roteiro.tocados.empty());
        EXPECT_EQ(cara(a) + cara(a2) + cara(c), "forafora0.jpg");
    });
    roteiro.espera_ms(100).confere([=] { EXPECT_EQ(cara(a), "1.jpg"); }).espera_ms(300).confere([=, this] {
        EXPECT_EQ(cara(a) + cara(a2), "forafora");
        EXPECT_EQ(roteiro.tocados, (std::vector<std::string>{"\\oia.wav"}));
    });
    mostram("0:01", "3");
    // Reiniciar: tudo de novo, e o relógio espera pela primeira carta.
    roteiro.clica("Label1", 2).espera_ms(3000).confere([=] { EXPECT_EQ(cara(a) + cara(c), "0.jpg0.jpg"); });
    mostram(":", "0").clica("figura", 0).espera_ms(1100);
    mostram("0:01", "0");
    // O ranking para o relógio e não pisca; na volta, é outro jogo.
    roteiro.clica("Label1", 1).esta_em("rank_form").espera_ms(500).confere([] {
        EXPECT_TRUE(carrega_como<rank_form>(TelaId::rank_form).nome(0).visivel);
    });
    roteiro.clica("Label1", 1).esta_em("gamedio");
    mostram(":", "0").clica("Label1", 0).esta_em("conf").confere([] { EXPECT_FALSE(carregada(TelaId::gamedio)); });
    laco();
    EXPECT_TRUE(ranking().empty());
}

TEST_F(Memoria, TempoEDoRelogioAindaQueOsSonsSegurem) {
    roteiro.duracao_dos_sons = 900;
    for (int i = 0; i < 40; ++i) roteiro.clica("figura", pares[1 + i % 2][0]);
    roteiro.espera_ms(65000).clica("figura", pares[1][0]);
    laco();
    EXPECT_NEAR(jogo().segundos, static_cast<double>(relogio_de_teste.ms) / 1000, 2);
    roteiro.duracao_dos_sons = 0;
    jogo().iniciar();
    jogo().figura(0).clique();
    const std::int64_t comeco = relogio_de_teste.ms;
    for (const auto& [ms, texto] : {std::pair{599'999, "9:59"}, {605'000, "10:05"}, {6'007'000, "100:07"}}) {
        relogio_de_teste.ms = comeco + ms;
        jogo().Timer2_Timer();
        EXPECT_EQ(jogo().Lbl_timer.texto, texto);
    }
}

TEST_F(Memoria, CadaRankingPorSiESoPedeONomeDeQuemEntra) {
    enche_de_campeoes();
    // Três dos campeões em tentativas dão lugar a quem fez vinte.
    std::erase_if(Data1.linhas, [n = 0](const LinhaDoRanking& l) mutable { return l.tipo == "2" && ++n > 2; });
    nome_jogador = "Y";
    for (int i = 0; i < 3; ++i) grava_cliques("20");
    roteiro.clica("figura", pares[1][0]).clica("figura", pares[2][0]); // um erro
    acha_todos().espera_ms(1100).esta_em("mem_ok").escreve("Zé").clica("opções");
    roteiro.esta_em("rank_form").confere([] {
        EXPECT_EQ(pos_tempo, sem_lugar);
        EXPECT_EQ(pos_cliques, 3);
        EXPECT_EQ(linha(7), "Zé|19|04/03/26");
    });
    // Só pisca o nome novo, doze vezes, e acaba à vista.
    roteiro.espera_ms(50).confere([this] { EXPECT_EQ(escondidos(), std::vector<int>{}); });
    roteiro.espera_ms(60).confere([this] { EXPECT_EQ(escondidos(), std::vector<int>{7}); });
    roteiro.espera_ms(1300).confere([this] { EXPECT_EQ(escondidos(), std::vector<int>{}); });
    roteiro.clica("Label1", 1).esta_em("gamedio");
    mostram(":", "0").confere([this] {
        EXPECT_EQ(ranking(), "100:01X 100:01X 100:01X 100:01X 100:01X 200001X 200001X 200019Zé 200020Y 200020Y ");
        // Fora dos cinco ninguém escreve o nome, e um comando não corta o fim do jogo.
        enche_de_campeoes();
        aprende();
        acha_todos().clica("Label1", 2).confere([] { EXPECT_EQ(jogo().lbl_contador.texto, "18"); }).espera_ms(1500);
        roteiro.esta_em("gamedio").confere([] { EXPECT_TRUE(jogo().Lbl_timer.visivel); }).clica("Label1", 2);
        mostram(":", "0");
    });
    laco();
    EXPECT_EQ(ranking().find("18"), std::string::npos);
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
    roteiro.tecla(SDLK_BACKSPACE);
    confere("", true);
    roteiro.clica("apaga").escreve("漢");
    confere("漢", false); // o "×" deixa tudo como no começo, e o foco na caixa
    for (int i = 0; i < 17; ++i) roteiro.escreve("ã");
    roteiro.escreve("mais"); // só cabem duas letras
    roteiro.teclas({SDLK_BACKSPACE, SDLK_DELETE, SDLK_HOME, SDLK_RETURN}).escreve("x");
    roteiro.teclas({SDLK_TAB, SDLK_RETURN}).esta_em("rank_form").confere([] {
        EXPECT_EQ(linha(5), "漢ãããããããããããããããããma|18|04/03/26");
    });
    // No jogo seguinte a caixa volta vazia.
    roteiro.clica("Label1", 1).confere([=, this] {
        aprende();
        acha_todos().espera_ms(2000);
        confere("", false);
        // Fechar a janela guarda o jogo com o nome que houver, e pergunta se sai.
        roteiro.escreve("Lu").fecha_janela().esta_em("form_ok_nao").tecla(SDLK_ESCAPE).esta_em("rank_form");
    });
    laco();
    EXPECT_NE(ranking().find("200018Lu "), std::string::npos);
}

TEST_F(Memoria, RankingMostraQuatroCaracteresEZerarPergunta) {
    nome_jogador = "Ana";
    grava_tempo("10:05");
    grava_cliques("107");
    const auto mostra_os_dois = [] { EXPECT_EQ(linha(0) + linha(5), "Ana|0:05|04/03/26Ana|107|04/03/26"); };
    roteiro.clica("Label1", 1).confere(mostra_os_dois);
    roteiro.clica("Label1", 0).pergunta("Atenção|Deseja 'zerar' o ranking ?", false).esta_em("rank_form");
    roteiro.confere(mostra_os_dois);
    roteiro.clica("Label1", 0).pergunta("Atenção|Deseja 'zerar' o ranking ?", true).espera_ms(300).confere([] {
        EXPECT_EQ(linha(0) + linha(5), "||||");
    });
    laco();
    EXPECT_EQ(consulta(gm, "SELECT * FROM gm"), "");
}

TEST_F(Memoria, DesistirDeSairNaoPerdeOJogoEOBancoPresoSoPerdeOResultado) {
    // Pelo teclado: a segunda carta da segunda fileira.
    const int virada = jogo().valor_carta[7];
    roteiro.tecla(SDLK_TAB).teclas({SDLK_RIGHT, SDLK_DOWN, SDLK_RETURN});
    roteiro.fecha_janela().esta_em("form_ok_nao").tecla(SDLK_ESCAPE).esta_em("gamedio");
    roteiro.confere([virada] { EXPECT_EQ(cara(7), std::to_string(virada) + ".jpg"); });
    std::swap(pares[1], pares[virada]);
    acha_todos();
    // Com a pergunta aberta, o fim do jogo espera.
    roteiro.fecha_janela().espera_ms(3000).esta_em("form_ok_nao").tecla(SDLK_ESCAPE).espera_ms(1700).esta_em("mem_ok");
    std::optional<BancoPreso> outro;
    roteiro.confere([&] { outro.emplace(gm); }).escreve("Rui").clica("opções").esta_em("ok");
    roteiro.confere([&] { outro.reset(); }).clica("opções").esta_em("rank_form").espera_ms(150);
    roteiro.confere([this] { EXPECT_TRUE(escondidos().empty()); });
    laco();
    EXPECT_EQ(consulta(gm, "SELECT * FROM gm"), "");
}

} // namespace
} // namespace verdalia
