// O plano da agenda: o que há para fazer na semana mostrada, e onde, em oito listas de trabalho.
#pragma once

#include "data/catalogo.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace verdalia {

// O que o pedido ainda exige, por ordem de cultura. Numa semeadura a quantidade é sempre 1.
struct Precisa {
    std::int16_t cod_cult;
    std::int16_t quantidade;
};
inline std::vector<Precisa> lista_pld; // plantar direto no canteiro
inline std::vector<Precisa> lista_tr;  // transplantar da sementeira
inline std::vector<Precisa> lista_pls; // semear

// As listas, pelo código do seu trato: plantio, semeadura, transplante, limpeza, desbaste, amontoa, colheita parcial e
// colheita final.
enum Lista { r_pld, r_pls, r_tr, r_li, r_des, r_amo, r_cop, r_cof, n_listas };

// Uma linha de lista; "" no que ela não tem.
struct LinhaDeTrabalho {
    std::string cultura{};
    std::string aonde{};     // um lugar, ou a quantidade quando o lugar ainda está por escolher: "J 10", " 3m", "1x"
    std::string aonde_sem{}; // a leira, nas listas que misturam horta e sementeira
    std::string densidade{}; // "12 / m2", só nas quantidades
};
inline std::array<std::vector<LinhaDeTrabalho>, n_listas> listas;

inline constexpr int linhas_a_vista = 10; // de cada lista, na tela

// Refaz os contadores `n_canteiros_novos` e `n_leiras_novas` e as três listas do que se precisa.
void pl_sem_tr();

// Refaz tudo: `pl_sem_tr` e as oito listas.
void monta_listas();

// Até onde a barra de rolagem da lista anda; 0 quando as linhas cabem todas.
int maximo_da_barra(Lista lista);

// Em quantos canteiros, e em quantas leiras, a semana pede o trato desse código.
std::int16_t qt_tratos(const std::string& codigo);
std::int16_t qt_sem_tratos(const std::string& codigo);

} // namespace verdalia
