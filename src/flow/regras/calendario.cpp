#include "flow/regras/calendario.h"

#include "data/estado.h"

namespace verdalia {

void passa_semana() {
    for (int i = 0; i < n_canteiros; ++i) {
        const std::int16_t c = st_cod_cult[i];
        if (c <= cult_vago) continue;
        st_check[i] = 0;
        if (++st_idade[i] < ciclo_horta[c]) continue;
        st_last_last_i_cu[i] = st_last_i_cu[i];
        st_last_i_cu[i] = c;
        st_cod_cult[i] = cult_vago;
        st_idade[i] = 0;
        st_nome[i].clear();
    }
    for (int i = 0; i < n_leiras; ++i) {
        const std::int16_t c = sem_cod_cult[i];
        if (c <= cult_vago) continue;
        sem_check[i] = 0;
        // A leira fica a semana inteira do transplante; só a seguinte a perde.
        if (++sem_idade[i] <= ciclo_sem[c]) continue;
        sem_cod_cult[i] = cult_vago;
        sem_idade[i] = 0;
        sem_nome[i].clear();
    }
}

int semanas_ate(Dia desde, Dia ate) {
    using std::chrono::days;
    if (ate <= desde) return 0;
    const Dia domingo = desde - days{dia_da_semana(desde) - 1};
    return static_cast<int>((ate - domingo).count() / 7);
}

void avanca_previsao() {
    if (!previsao_ligada()) {
        bak_st_cod_cult = st_cod_cult;
        bak_st_nome = st_nome;
        bak_st_idade = st_idade;
        bak_st_check = st_check;
        bak_st_last_i_cu = st_last_i_cu;
        bak_st_last_last_i_cu = st_last_last_i_cu;
        bak_sem_cod_cult = sem_cod_cult;
        bak_sem_nome = sem_nome;
        bak_sem_idade = sem_idade;
        bak_sem_check = sem_check;
    }
    passa_semana();
    data_previsao += std::chrono::days{7};
}

void volta_ao_tempo_real() {
    if (!previsao_ligada()) return;
    data_previsao = data_hoje;
    st_cod_cult = bak_st_cod_cult;
    st_nome = bak_st_nome;
    st_idade = bak_st_idade;
    st_check = bak_st_check;
    st_last_i_cu = bak_st_last_i_cu;
    st_last_last_i_cu = bak_st_last_last_i_cu;
    sem_cod_cult = bak_sem_cod_cult;
    sem_nome = bak_sem_nome;
    sem_idade = bak_sem_idade;
    sem_check = bak_sem_check;
}

} // namespace verdalia
