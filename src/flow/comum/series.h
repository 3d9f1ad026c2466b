// As sequências de quadros, e as séries que mais de uma tela mostra.
#pragma once
#include "data/plano.h"
#include "flow/comum/animacao.h"

namespace verdalia {

inline constexpr std::int8_t de_0_a_7[] = {0, 1, 2, 3, 4, 5, 6, 7};
inline constexpr std::int8_t de_0_a_9[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
inline constexpr std::int8_t de_0_a_10[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline constexpr std::int8_t de_0_a_11[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
inline constexpr std::int8_t de_0_a_12[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
inline constexpr std::int8_t de_0_a_13[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
inline constexpr std::int8_t de_1_a_10[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline constexpr std::int8_t de_0_a_6[] = {0, 1, 2, 3, 4, 5, 6};
inline constexpr std::int8_t de_5_a_0[] = {5, 4, 3, 2, 1, 0};
inline constexpr std::int8_t porta_abre_e_fecha[] = {1, 2, 3, 4, 4, 3, 2, 1, 0};
inline constexpr std::int8_t capina[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12}; // não há o 10
inline constexpr std::int8_t hortelao_vai_e_volta[] = {1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0};
inline constexpr std::int8_t planeta_gira[] = {9, 10, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
inline constexpr std::int8_t dias_para_tras[] = {1, 2, 3, 4, 5, 6, 7}; // há quantos dias; o 7 é hoje de novo

inline constexpr Viagem viagem_a_sementeira{"\\vamsem.wav", TelaId::controle_da_sementeira};
inline constexpr Viagem viagem_a_horta{"\\vamhor.wav", TelaId::trabalhando_na_horta};

// Os dois tempos e os caminhos entre as telas, com o número de animação que têm em toda parte.
// clang-format off
inline constexpr Serie serie_tempo_real{.acao = 0, .controle = "tempo_real", .quadros = {.numeros = dias_para_tras, .arquivo = fig_dia_passado}};
inline constexpr Serie serie_previsao{.acao = 1, .controle = "previsao", .quadros = {"\\anima\\planet", planeta_gira}, .repouso = 1};
inline constexpr Serie serie_hortelao{.acao = 14, .controle = "hortelino", .quadros = {"\\anima\\hort", hortelao_vai_e_volta}, .viagem = {nullptr, TelaId::INTRONEW}};
inline constexpr Serie serie_agenda{.acao = 15, .controle = "pic_agenda", .quadros = {"\\anima\\age", de_0_a_10}, .viagem = {"\\vamage.wav", TelaId::age}};
inline constexpr Serie serie_mudas{.acao = 16, .controle = "pic_semen", .quadros = {"\\anima\\mudas", de_0_a_7, 3}, .repouso = 7, .viagem = viagem_a_sementeira};
// clang-format on

// A enxada de `pic_horta`, que tem um número em cada tela.
constexpr Serie serie_enxada(std::int16_t acao) {
    return {.acao = acao,
            .controle = "pic_horta",
            .quadros = {"\\anima\\enx", de_0_a_10, 2, "c.bmp"},
            .do_clique = 12,
            .repouso = 0,
            .viagem = viagem_a_horta};
}

// A face de um botão de trabalho, que também gira na apresentação; com destino, leva a outra tela no fim.
constexpr Serie serie_de_botao(std::int16_t acao, const char* botoes, int indice, const char* antes,
                               std::span<const std::int8_t> numeros, std::int16_t do_clique, std::int16_t inicio,
                               Viagem viagem = {}) {
    return {.acao = acao,
            .controle = botoes,
            .indice = indice,
            .quadros = {antes, numeros},
            .do_clique = do_clique,
            .inicio = inicio,
            .no_passeio = true,
            .viagem = viagem};
}

} // namespace verdalia
