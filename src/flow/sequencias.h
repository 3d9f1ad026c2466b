// As sequências de quadros que mais de uma tela mostra.
#pragma once
#include <cstdint>

namespace verdalia {

inline constexpr std::int8_t de_0_a_7[] = {0, 1, 2, 3, 4, 5, 6, 7};
inline constexpr std::int8_t de_0_a_9[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
inline constexpr std::int8_t de_0_a_10[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline constexpr std::int8_t de_0_a_11[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
inline constexpr std::int8_t de_0_a_12[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
inline constexpr std::int8_t de_0_a_13[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
inline constexpr std::int8_t de_5_a_0[] = {5, 4, 3, 2, 1, 0};
inline constexpr std::int8_t porta_abre_e_fecha[] = {1, 2, 3, 4, 4, 3, 2, 1, 0};
inline constexpr std::int8_t capina[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12}; // não há o 10
inline constexpr std::int8_t hortelao_vai_e_volta[] = {1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0};
inline constexpr std::int8_t planeta_gira[] = {9, 10, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline constexpr std::int8_t dias_para_tras[] = {1, 2, 3, 4, 5, 6, 7}; // há quantos dias; o 7 é hoje de novo

} // namespace verdalia
