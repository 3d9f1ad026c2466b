// As regras do ranking e do baralho, sem tela.
#include "apoio.h"
#include "memory/regras/baralho.h"
#include "memory/regras/ranking.h"

#include <random>

namespace verdalia {
namespace {

struct Ranking : Partida {
    Ranking() {
        prepara_ranking();
        Data1.Refresh();
    }

    // Guarda os tempos, um por um, na ordem dada; o nome é o número da vez.
    static void tempos(std::initializer_list<const char*> resultados) {
        for (const char* r : resultados) {
            nome_jogador = std::to_string(Data1.linhas.size() + 1);
            grava_tempo(r);
        }
    }
    std::string no_disco() const { return consulta(gm, "SELECT tipo, valor, nome FROM gm"); }

    std::filesystem::path gm = jogador / "gm.mdb";
};

TEST_F(Ranking, CadaUmTemCincoLugaresSoEntraQuemVenceEOIgualFicaDepois) {
    EXPECT_TRUE(bate_tempo("59:59") && pos_tempo == 0);
    tempos({"1:05", "1:01", "1:04", "1:02"});
    EXPECT_TRUE(bate_tempo("9:00") && pos_tempo == 5);
    tempos({"1:03"});
    EXPECT_TRUE(!bate_tempo("1:05") && pos_tempo == sem_lugar);
    EXPECT_TRUE(bate_tempo("1:02") && pos_tempo == 3);
    EXPECT_TRUE(bate_cliques("999") && pos_cliques == 0); // um ranking não enche o outro
    nome_jogador = "O'Ç \"x\"); DROP TABLE gm;--";        // um nome como outro qualquer
    grava_tempo("1:02");
    EXPECT_EQ(no_disco(), "1|01:01|2\n1|01:02|4\n1|01:02|" + nome_jogador + "\n1|01:03|5\n1|01:04|3\n");
    for (const char* r : {"18", "100", "42", "9", "42", "41"}) grava_cliques(r);
    EXPECT_TRUE(bate_cliques("17") && pos_cliques == 2);
    EXPECT_FALSE(bate_cliques("42"));
    EXPECT_EQ(Data1.linhas.back().valor, "00042"); // os 100 saíram
    Data1.linhas.clear();
    Data1.Refresh();
    EXPECT_EQ(Data1.linhas.size(), 10U);
}

// Cada lugar recebe cada figura tantas vezes quanto as outras. Com 2000 baralhos, o desvio padrão de uma casa é 14.
TEST(Baralho, TemDezoitoParesETodaCasaRecebeTodaFigura) {
    acaso = [semente = std::mt19937(7)]() mutable { return static_cast<std::uint32_t>(semente()); };
    constexpr int vezes = 2000;
    int recebeu[n_cartas][n_pares + 1] = {};
    for (int v = 0; v < vezes; ++v) {
        Baralho cartas = baralha();
        for (int i = 0; i < n_cartas; ++i) ++recebeu[i][cartas[i]];
        std::sort(cartas.begin(), cartas.end());
        for (int i = 0; i < n_cartas; ++i) ASSERT_EQ(cartas[i], i / 2 + 1);
    }
    for (const auto& casa : recebeu)
        for (int f = 1; f <= n_pares; ++f) EXPECT_NEAR(casa[f], 2.0 * vezes / n_cartas, 55);
    acaso = acaso_do_sistema;
    EXPECT_NE(baralha(), baralha());
}

} // namespace
} // namespace verdalia
