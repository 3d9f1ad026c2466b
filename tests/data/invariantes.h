// O que vale para as tabelas do jogo em todo momento que uma tela pode ver.
#pragma once

#include "data/estado.h"
#include "data/plano.h"

#include <string>

namespace verdalia {

// O que está fora do lugar, por extenso: "canteiro J 10: cultura 1, idade 8, \"Alface\"". "" quando está tudo certo.
inline std::string invariante_quebrado() {
    const auto marca = [](int check) { return check == 0 || check == -1; };
    const auto nome_certo = [](int c, const std::string& nome) {
        return c > cult_vago ? nome == nome_cult[c] : nome.empty() || (c == cult_vago && nome == nome_cult[c]);
    };
    const auto lembrada = [](int c) { return c == cult_nenhuma || (c > cult_vago && c <= n_culturas); };
    const auto diz = [](const std::string& lugar, int c, int idade, const std::string& nome) {
        return lugar + ": cultura " + std::to_string(c) + ", idade " + std::to_string(idade) + ", \"" + nome + "\"";
    };
    for (int i = 0; i < n_canteiros; ++i) {
        const int c = st_cod_cult[i], idade = st_idade[i];
        const bool existe = c >= cult_nenhuma && c <= n_culturas;
        if (!existe || idade < 0 || (c > cult_vago ? idade >= ciclo_horta[c] : idade != 0) || !marca(st_check[i]) ||
            !nome_certo(c, st_nome[i]))
            return diz("canteiro " + nome_canteiro(i), c, idade, st_nome[i]);
        if (!lembrada(st_last_i_cu[i]) || !lembrada(st_last_last_i_cu[i]))
            return diz("lembrança de " + nome_canteiro(i), st_last_i_cu[i], st_last_last_i_cu[i], "");
    }
    for (int r = 0; r < n_leiras; ++r) {
        const int c = sem_cod_cult[r], idade = sem_idade[r];
        const bool existe = c >= cult_nenhuma && c <= n_culturas && (c <= cult_vago || ciclo_sem[c] > 0);
        if (!existe || idade < 0 || (c > cult_vago ? idade > ciclo_sem[c] : idade != 0) || !marca(sem_check[r]) ||
            !nome_certo(c, sem_nome[r]))
            return diz("leira " + nome_leira(r), c, idade, sem_nome[r]);
    }
    int area = 0;
    for (int c = 0; c <= n_culturas; ++c) {
        if (seq_pedido[c] < 0 || (c == cult_vago && seq_pedido[c] != 0)) return diz("pedido", c, seq_pedido[c], "");
        area += seq_pedido[c] * area_unidade[c];
    }
    if (area > area_maxima) return "pedido: " + std::to_string(area) + " canteiros";
    const auto adiante = data_previsao - data_hoje;
    if (adiante.count() < 0 || adiante % std::chrono::days{7} != std::chrono::seconds{0}) return "data da previsão";
    return "";
}

} // namespace verdalia
