#include "apoio.h"

namespace verdalia {

using Catalogo = Partida;

TEST_F(Catalogo, OQueValeParaTodaCultura) {
    // A última linha em uso de um calendário: semana e trato.
    const auto ultima = [](const Calendario& calendario, int c) {
        std::array<std::int16_t, 2> achada{-1, 10};
        for (const auto& linha : calendario[c])
            if (linha[0] >= 0) achada = linha;
        return achada;
    };
    for (std::int16_t c = 1; c <= n_culturas; ++c) {
        SCOPED_TRACE(nome_cult[c]);
        const bool de_muda = ciclo_sem[c] > 0;
        EXPECT_EQ(oper_canteiro(c, 0), de_muda ? "TR" : "PLD");
        EXPECT_EQ(tratos[ultima(oper_horta, c)[1]][0], "COF");
        EXPECT_EQ(ultima(oper_horta, c)[0], ciclo_horta[c] - 1);
        EXPECT_EQ(oper_leira(c, 0), de_muda ? "PLS" : "");
        EXPECT_EQ(oper_leira(c, ciclo_sem[c]), de_muda ? "TR" : "");
        EXPECT_EQ(ultima(oper_sem, c)[0], de_muda ? ciclo_sem[c] : -1);
        EXPECT_EQ(area_unidade[c] * intervalo_plantio[c], ciclo_horta[c]);
        EXPECT_GT(familia_cult[c], 0);
    }
    for (const std::int16_t fora : {cult_nenhuma, cult_vago, std::int16_t{22}, std::int16_t{-300}})
        EXPECT_EQ(oper_canteiro(fora, 0) + oper_leira(fora, 0), "") << fora;
    EXPECT_EQ(oper_canteiro(cult_alface, -1), "");
}

} // namespace verdalia
