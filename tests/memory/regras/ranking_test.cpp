// As regras do ranking e do baralho, sem tela.
#include "apoio.h"
#include "memory/regras/baralho.h"
#include "memory/regras/ranking.h"

#include <map>
#include <random>
#include <sqlite3.h>

namespace verdalia {
namespace {

struct Ranking : Partida {
    Ranking() {
        prepara_ranking();
        Data1.Refresh();
        nome_jogador = "Ana";
    }

    // Guarda os resultados, um por um, na ordem dada; o nome é o número da vez.
    static void tempos(std::initializer_list<const char*> resultados) {
        for (const char* r : resultados) {
            nome_jogador = std::to_string(Data1.linhas.size() + 1);
            grava_tempo(r);
        }
    }
    // O que está no disco: "tipo valor nome" de cada linha, na ordem em que estão.
    std::string no_disco() const {
        sqlite3* banco = nullptr;
        std::string tudo;
        EXPECT_EQ(sqlite3_open((jogador / "gm.mdb").c_str(), &banco), SQLITE_OK);
        const auto junta = [](void* texto, int, char** campos, char**) {
            *static_cast<std::string*>(texto) += std::string(campos[0]) + " " + campos[1] + " " + campos[2] + "\n";
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(banco, "select tipo, valor, nome from gm", junta, &tudo, nullptr), SQLITE_OK);
        sqlite3_close(banco);
        return tudo;
    }
    void no_banco(const std::string& sql) const {
        sqlite3* banco = nullptr;
        ASSERT_EQ(sqlite3_open((jogador / "gm.mdb").c_str(), &banco), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(banco, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(banco);
        sqlite3_close(banco);
    }
};

TEST_F(Ranking, VazioDeixaEntrarNoLugarZeroEQuatroLinhasDaoOQuinto) {
    EXPECT_TRUE(bate_tempo("59:59") && bate_cliques("999"));
    EXPECT_EQ(pos_tempo, 0);
    EXPECT_EQ(pos_cliques, 0);
    tempos({"1:01", "1:02", "1:03", "1:04"});
    EXPECT_TRUE(bate_tempo("9:00"));
    EXPECT_EQ(pos_tempo, 5);
    EXPECT_TRUE(bate_tempo("1:00"));
    EXPECT_EQ(pos_tempo, 1);
    EXPECT_TRUE(bate_cliques("40")); // um ranking não enche o outro
    EXPECT_EQ(pos_cliques, 0);
}

TEST_F(Ranking, ComCincoSoEntraQuemVenceEOIgualFicaDepois) {
    tempos({"1:05", "1:01", "1:04", "1:02", "1:03"});
    EXPECT_FALSE(bate_tempo("1:05"));
    EXPECT_EQ(pos_tempo, sem_lugar);
    EXPECT_TRUE(bate_tempo("1:02"));
    EXPECT_EQ(pos_tempo, 3);
    nome_jogador = "nova";
    grava_tempo("1:02");
    EXPECT_EQ(no_disco(), "1 01:01 2\n1 01:02 4\n1 01:02 nova\n1 01:03 5\n1 01:04 3\n");
    EXPECT_EQ(Data1.linhas[2].dta, "04/03/26");
    for (const char* r : {"18", "100", "42", "9", "42", "41"}) grava_cliques(r);
    EXPECT_TRUE(bate_cliques("17"));
    EXPECT_EQ(pos_cliques, 2);
    EXPECT_FALSE(bate_cliques("42"));
    EXPECT_EQ(Data1.linhas.size(), 10U);
    EXPECT_EQ(Data1.linhas.back().valor, "00042"); // os 100 saíram
    Data1.linhas.clear();
    Data1.Refresh();
    EXPECT_EQ(Data1.linhas.size(), 10U);
}

TEST_F(Ranking, TemposLongosFicamComCincoCaracteres) {
    tempos({"10:05", "100:07", "9:59"});
    EXPECT_EQ(no_disco(), "1 00:07 2\n1 09:59 3\n1 10:05 1\n");
    EXPECT_TRUE(bate_tempo("10:00"));
    EXPECT_EQ(pos_tempo, 3);
}

TEST_F(Ranking, NomeComAspasOuComandoEUmNomeEZerarLimpaOsDois) {
    nome_jogador = "O'Ç \"x\"); DROP TABLE gm;--";
    grava_tempo("1:00");
    grava_cliques("30");
    EXPECT_EQ(no_disco(), "1 01:00 " + nome_jogador + "\n2 00030 " + nome_jogador + "\n");
    zera_ranking();
    EXPECT_EQ(no_disco(), "");
    EXPECT_TRUE(Data1.linhas.empty());
}

TEST_F(Ranking, LinhasForaDeOrdemOuEstranhasNaoAtrapalham) {
    no_banco("insert into gm (peq_gra, tipo, valor, nome) values ('F','2','00050','a'), ('P','1','00:01','b'), "
             "('F','1',' 02:00','c'), ('F','1',null,'d'), ('F','1','01:00','e')");
    Data1.Refresh();
    EXPECT_TRUE(bate_tempo("1:30"));
    EXPECT_EQ(pos_tempo, 3); // depois da linha sem valor e de 01:00; a de outro tamanho não conta
    zera_ranking();
    EXPECT_EQ(no_disco(), "1 00:01 b\n");
}

TEST_F(Ranking, ArquivoEstragadoEPostoDeLadoEOPresoNaoMudaNada) {
    tempos({"1:00"});
    sqlite3* outro = nullptr;
    ASSERT_EQ(sqlite3_open((jogador / "gm.mdb").c_str(), &outro), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(outro, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_THROW(grava_tempo("0:50"), ErroBanco);
    EXPECT_THROW(prepara_ranking(), ErroBanco);
    sqlite3_close(outro);
    EXPECT_EQ(Data1.linhas.size(), 1U);
    EXPECT_EQ(no_disco(), "1 01:00 1\n");

    escreve(jogador / "gm.mdb", "isto não é um banco");
    prepara_ranking();
    ASSERT_EQ(avisos_do_banco.size(), 1U);
    EXPECT_NE(avisos_do_banco[0].find("gm 2026-03-04.mdb"), std::string::npos);
    EXPECT_EQ(conteudo(jogador / "gm 2026-03-04.mdb"), "isto não é um banco");
    Data1.Refresh();
    EXPECT_TRUE(Data1.linhas.empty());
}

// Cada lugar recebe cada figura tantas vezes quanto as outras. Com 2000 baralhos, o desvio padrão de uma casa é 14.
TEST(Baralho, TemDezoitoParesETodaCasaRecebeTodaFigura) {
    std::mt19937 semente(7);
    acaso = [&semente] { return static_cast<std::uint32_t>(semente()); };
    constexpr int vezes = 2000;
    int recebeu[n_cartas][n_pares + 1] = {};
    int vizinhas = 0;
    for (int v = 0; v < vezes; ++v) {
        const Baralho cartas = baralha();
        std::map<int, int> quantas;
        for (int i = 0; i < n_cartas; ++i) {
            ++quantas[cartas[i]];
            ++recebeu[i][cartas[i]];
            if (i > 0 && cartas[i] == cartas[i - 1]) ++vizinhas;
        }
        ASSERT_EQ(quantas.size(), std::size_t{n_pares});
        for (const auto& [carta, n] : quantas) ASSERT_EQ(n, 2) << carta;
    }
    for (const auto& casa : recebeu)
        for (int f = 1; f <= n_pares; ++f) EXPECT_NEAR(casa[f], 2.0 * vezes / n_cartas, 55);
    EXPECT_NEAR(vizinhas, vezes, 150); // em média, um par de vizinhas iguais por baralho
    semente.seed(7);
    const Baralho primeiro = baralha();
    semente.seed(7);
    EXPECT_EQ(baralha(), primeiro);
    acaso = acaso_do_sistema;
    EXPECT_NE(baralha(), baralha());
}

} // namespace
} // namespace verdalia
