#include "flow/regras/calendario.h"

#include "apoio.h"

namespace verdalia {

using Semanas = Partida;

TEST_F(Semanas, ACulturaCumpreOCicloInteiro) {
    for (std::int16_t c = 1; c <= n_culturas; ++c) {
        planta(c, c, 0);
        if (ciclo_sem[c] > 0) semeia(c, c, 0);
    }
    for (int semana = 1; semana <= 30; ++semana) {
        for (int i = 0; i < n_canteiros; ++i) st_check[i] = st_cod_cult[i] > 0 ? -1 : 0;
        passa_semana();
        for (std::int16_t c = 1; c <= n_culturas; ++c) {
            SCOPED_TRACE(nome_cult[c] + " " + std::to_string(semana));
            const bool no_canteiro = semana < ciclo_horta[c];
            EXPECT_EQ(st_cod_cult[c], no_canteiro ? c : cult_vago);
            EXPECT_EQ(st_nome[c] + std::to_string(st_idade[c]),
                      no_canteiro ? nome_cult[c] + std::to_string(semana) : "0");
            EXPECT_EQ(st_last_i_cu[c], no_canteiro ? cult_nenhuma : c);
            EXPECT_EQ(st_check[c], 0);
            if (ciclo_sem[c] == 0) continue;
            EXPECT_EQ(sem_cod_cult[c], semana <= ciclo_sem[c] ? c : cult_vago);
            EXPECT_EQ(sem_idade[c], semana <= ciclo_sem[c] ? semana : 0);
        }
    }
    EXPECT_EQ(st_cod_cult[0], cult_nenhuma);
}

} // namespace verdalia
