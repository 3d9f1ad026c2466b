#include "flow/regras/calendario.h"

#include "apoio.h"

namespace verdalia {

using Semanas = Partida;

TEST_F(Semanas, UmaPorDomingo) {
    EXPECT_EQ(semanas_ate(dia(2026, 3, 9), dia(2026, 3, 1)), 0); // relógio atrasado
    EXPECT_EQ(semanas_ate(dia(2026, 3, 8), dia(2026, 3, 14)), 0);
    // Contando os domingos um a um, por cima de viradas de ano e de mudanças de hora.
    const Dia desde = dia(2018, 2, 14);
    int domingos = 0;
    for (Dia d = desde; d < dia(2020, 3, 1); d += std::chrono::days{1}) {
        if (dia_da_semana(d) == 1) ++domingos;
        ASSERT_EQ(semanas_ate(desde, d), domingos) << texto_iso(d);
    }
}

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
            EXPECT_EQ(st_idade[c], no_canteiro ? semana : 0);
            EXPECT_EQ(st_nome[c], no_canteiro ? nome_cult[c] : "");
            EXPECT_EQ(st_last_i_cu[c], no_canteiro ? cult_nenhuma : c);
            EXPECT_EQ(st_check[c], 0);
            if (ciclo_sem[c] == 0) continue;
            EXPECT_EQ(sem_cod_cult[c], semana <= ciclo_sem[c] ? c : cult_vago);
            EXPECT_EQ(sem_idade[c], semana <= ciclo_sem[c] ? semana : 0);
        }
    }
    EXPECT_EQ(st_cod_cult[0], cult_nenhuma);
}

TEST_F(Semanas, OCanteiroLembraAsDuasUltimas) {
    for (const std::int16_t c : {cult_rabanete, cult_alface, cult_nabo}) {
        planta(40, c, ciclo_horta[c] - 1);
        passa_semana();
    }
    passa_semana(); // num lugar vago nada muda
    EXPECT_EQ(st_last_i_cu[40], cult_nabo);
    EXPECT_EQ(st_last_last_i_cu[40], cult_alface);
}

TEST_F(Semanas, PrevisaoVaiEVolta) {
    planta(3, cult_alface, 7);
    st_check[3] = -1;
    st_last_i_cu[3] = cult_tomate;
    semeia(5, cult_couve, 5);
    sem_check[5] = -1;
    const std::string de_hoje = horta();
    volta_ao_tempo_real(); // sem previsão, nada muda
    EXPECT_EQ(horta(), de_hoje);
    for (int semana = 1; semana <= 53; ++semana) {
        avanca_previsao();
        EXPECT_TRUE(previsao_ligada());
        EXPECT_EQ(data_previsao, data_hoje + std::chrono::days{7 * semana});
    }
    EXPECT_EQ(st_cod_cult[3], cult_vago);
    EXPECT_EQ(sem_cod_cult[5], cult_vago);
    planta(60, cult_nabo, 0); // o que se faz na previsão se perde
    volta_ao_tempo_real();
    EXPECT_FALSE(previsao_ligada());
    EXPECT_EQ(horta(), de_hoje);
}

} // namespace verdalia
