#include "apoio.h"

#include <map>
#include <set>

namespace verdalia {

struct Catalogo : Partida {
    // A última linha em uso de um calendário.
    static std::array<std::int16_t, 2> ultima(const Calendario& calendario, int c) {
        std::array<std::int16_t, 2> achada{-1, 10};
        for (const auto& linha : calendario[c])
            if (linha[0] >= 0) achada = linha;
        return achada;
    }
};

TEST_F(Catalogo, OQueValeParaTodaCultura) {
    std::set<std::string> nomes, abreviaturas;
    for (std::int16_t c = 1; c <= n_culturas; ++c) {
        SCOPED_TRACE(nome_cult[c]);
        EXPECT_EQ(oper_canteiro(c, 0), ciclo_sem[c] > 0 ? "TR" : "PLD");
        EXPECT_EQ(tratos[ultima(oper_horta, c)[1]][0], "COF");
        EXPECT_EQ(ultima(oper_horta, c)[0], ciclo_horta[c] - 1);
        EXPECT_EQ(oper_leira(c, 0), ciclo_sem[c] > 0 ? "PLS" : "");
        EXPECT_EQ(oper_leira(c, ciclo_sem[c]), ciclo_sem[c] > 0 ? "TR" : "");
        EXPECT_EQ(ultima(oper_sem, c)[0], ciclo_sem[c] > 0 ? ciclo_sem[c] : -1);
        EXPECT_EQ(area_unidade[c] * intervalo_plantio[c], ciclo_horta[c]);
        EXPECT_GT(familia_cult[c], 0);
        EXPECT_GT(qtd_unidade[c], 0);
        EXPECT_TRUE(densidade_cult[c].ends_with(" / m2"));
        nomes.insert(nome_cult[c]);
        abreviaturas.insert(abrev_cult[c]);
        for (const auto* calendario : {&oper_horta, &oper_sem}) {
            int antes = -1;
            for (const auto& [semana, trato] : (*calendario)[c]) {
                if (semana < 0) break;
                EXPECT_GT(semana, antes);
                EXPECT_LT(trato, 9);
                antes = semana;
            }
        }
    }
    EXPECT_EQ(nomes.size(), 21U);
    EXPECT_EQ(abreviaturas.size(), 21U);
    EXPECT_EQ(data_hoje, relogio_de_teste.momento);
    EXPECT_EQ(data_previsao, data_hoje);
}

TEST_F(Catalogo, CelulasAoPeDaLetra) {
    EXPECT_EQ(nome_cult[cult_alho_poro], "Alho Poró");
    EXPECT_EQ(nome_cult[cult_vago], "Vago");
    EXPECT_EQ(abrev_cult[cult_berinjela], "Bjl");
    EXPECT_EQ(nome_familia[familia_cult[cult_pepino]], nome_familia[familia_cult[cult_tomate]]);
    EXPECT_EQ(nome_familia[familia_cult[cult_cheiro_verde]], "APIÁCEAS/LILIÁCEAS");
    EXPECT_EQ(tratos[4][1], "Reposição");
    EXPECT_EQ(tratos[10][0], "");

    EXPECT_EQ(oper_canteiro(cult_alface, 3), "");
    EXPECT_EQ(oper_canteiro(cult_alface, 4), "AM");
    EXPECT_EQ(oper_canteiro(cult_alface, 8), "");
    EXPECT_EQ(oper_canteiro(cult_nabo, 8), "COP");
    EXPECT_EQ(oper_canteiro(cult_quiabo, 4), "DES");
    EXPECT_EQ(oper_canteiro(cult_couve, 22), "COP");
    EXPECT_EQ(oper_canteiro(cult_couve, 8), "");
    EXPECT_EQ(oper_leira(cult_berinjela, 8), "TR");
    EXPECT_EQ(oper_leira(cult_alface, 8), "");
    for (const std::int16_t fora : {cult_nenhuma, cult_vago, std::int16_t{22}, std::int16_t{-300}}) {
        EXPECT_EQ(oper_canteiro(fora, 0), "");
        EXPECT_EQ(oper_leira(fora, 0), "");
    }
    EXPECT_EQ(oper_canteiro(cult_alface, -1), "");
}

// Quantas semanas de cada trato há no calendário inteiro: uma faixa errada muda a conta.
TEST_F(Catalogo, ContaDosTratos) {
    std::map<std::string, int> horta, sementeira;
    for (std::int16_t c = 1; c <= n_culturas; ++c)
        for (std::int16_t idade = 0; idade < 30; ++idade) {
            ++horta[oper_canteiro(c, idade)];
            ++sementeira[oper_leira(c, idade)];
        }
    horta.erase("");
    sementeira.erase("");
    const std::map<std::string, int> esperada_horta = {{"AM", 23}, {"COF", 21}, {"COP", 105}, {"DES", 8},
                                                       {"LI", 15}, {"PLD", 8},  {"REP", 9},   {"TR", 13}};
    const std::map<std::string, int> esperada_sem = {{"DES", 9}, {"LI", 13}, {"PLS", 13}, {"TR", 13}};
    EXPECT_EQ(horta, esperada_horta);
    EXPECT_EQ(sementeira, esperada_sem);
}

} // namespace verdalia
