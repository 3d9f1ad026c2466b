// As tabelas da agenda: as oito listas, as animações e os lugares.
#pragma once
#include "agenda/age.h"

namespace verdalia {

// Uma lista: a figura da tarefa, as colunas, a barra, e o que se diz quando ela tem linhas e quando não tem.
struct ListaDaAgenda {
    Lista lista;
    const char* titulo;
    int Label1;
    int coluna, fileira; // o quadro: quatro por fileira
    const char* figura;
    const char* repouso;
    const char* dica;
    const char* cultura; // os nomes das colunas; "" na que a lista não tem
    const char* aonde;
    const char* aonde_sem;
    const char* barra;
    int canteiro; // as marcas das colunas, horta e sementeira; -1 sem marca
    int PLS3;
    std::int16_t acao;
    const char* fala_ha;
    const char* fala_nao_ha;
};

namespace agenda_tabelas {

enum : std::int16_t {
    acao_pls = 4,
    acao_pld,
    acao_tr,
    acao_li = 8,
    acao_des,
    acao_amo,
    acao_cop,
    acao_cof,
    acao_horta = 17,
    acao_imp
};

// clang-format off
inline constexpr ListaDaAgenda tabela_das_listas[] = {
    {r_pld, "Plantio", 2, 1, 0, "pld", "\\anima\\pla06.bmp", "Fazer os plantios relacionados abaixo", "PLD1", "PLD2", "", "SCROLL_PLD", 1, -1, acao_pld, "\\agepla.wav", "\\agenpla.wav"},
    {r_pls, "Sementeira", 1, 0, 0, "pls", "\\anima\\sem08.bmp", "Fazer as sementeira relacionadas abaixo", "PLS1", "", "PLS2", "SCROLL_PLS", -1, 0, acao_pls, "\\agesem.wav", "\\agensem.wav"},
    {r_tr, "Transplante", 3, 2, 0, "tr", "\\anima\\tra04.bmp", "Fazer os transplantes relacionados abaixo", "TR1", "TR2", "TR22", "SCROLL_TR", 2, 1, acao_tr, "\\agetra.wav", "\\agentra.wav"},
    {r_li, "Limpeza", 5, 3, 0, "limp", "\\anima\\li06.bmp", "Fazer a limpeza nos locais relacionados abaixo", "LI1", "LI2", "LI22", "SCROLL_LI", 4, 2, acao_li, "\\agelim.wav", "\\l2.wav"},
    {r_des, "Desbaste", 6, 0, 1, "desb", "\\anima\\des06.bmp", "Fazer o desbaste nos locais relacionados abaixo", "des1", "des2", "des22", "SCROLL_des", 5, 3, acao_des, "\\agedes.wav", "\\d2.wav"},
    {r_amo, "Amontoa", 7, 1, 1, "amo", "\\anima\\amo05.bmp", "Fazer a amontoa nos canteiros relacionados abaixo", "amo1", "amo2", "", "SCROLL_amo", 6, -1, acao_amo, "\\ageamo.wav", "\\am2.wav"},
    {r_cop, "Colheita Parcial", 8, 2, 1, "cop", "\\anima\\cop05.bmp", "Fazer a colheita parcial nos canteiros relacionados abaixo", "cop1", "cop2", "", "SCROLL_cop", 7, -1, acao_cop, "\\agecop.wav", "\\cp2.wav"},
    {r_cof, "Colheita Final", 9, 3, 1, "cof", "\\anima\\cof07.bmp", "Fazer a colheita final nos canteiros relacionados abaixo", "cof1", "cof2", "", "SCROLL_cof", 8, -1, acao_cof, "\\agecof.wav", "\\cf2.wav"},
};

constexpr Serie da_tarefa(std::int16_t acao, const char* figura, const char* antes, std::span<const std::int8_t> numeros, std::int16_t do_clique, std::int16_t inicio) {
    return {.acao = acao, .controle = figura, .quadros = {antes, numeros}, .do_clique = do_clique, .inicio = inicio, .no_passeio = true};
}

// Cada tarefa dá seis ou sete voltas e mais um quadro, e acaba na figura em que começou.
inline constexpr Serie series[] = {
    serie_tempo_real,
    serie_previsao,
    da_tarefa(acao_tr, "tr", "\\anima\\tra", de_0_a_12, 79, 5),
    da_tarefa(acao_pls, "pls", "\\anima\\sem", de_0_a_12, 79, 9),
    da_tarefa(acao_cof, "cof", "\\anima\\cof", de_0_a_13, 85, 8),
    da_tarefa(acao_li, "limp", "\\anima\\li", capina, 85, 7),
    da_tarefa(acao_pld, "pld", "\\anima\\pla", de_1_a_10, 61, 6),
    da_tarefa(acao_amo, "amo", "\\anima\\amo", de_0_a_11, 73, 6),
    da_tarefa(acao_cop, "cop", "\\anima\\cop", de_0_a_13, 85, 6),
    da_tarefa(acao_des, "desb", "\\anima\\des", de_0_a_12, 79, 7),
    serie_hortelao,
    serie_mudas,
    serie_enxada(acao_horta),
    {.acao = acao_imp, .controle = "pic_imp", .quadros = {"\\anima\\imp", de_0_a_6}},
};

inline constexpr Lugar lugares[] = {
    {"hortelino", -1, 30, 46, 80, 70, "", "Voltar para a tela da Introdução"},
    {"pic_semen", -1, 30, 122, 80, 62, "", "Ir para a Sementeira"},
    {"pic_horta", -1, 30, 190, 80, 62, "", "Ir para a Horta"},
    {"pic_imp", -1, 30, 258, 80, 62, "", "Imprimir relatórios"},
    {"faixa", -1, 24, 324, 92, 62},
    {"lbl_tempo", -1, 32, 386, 76, 22, "Tempos", "Sobre os Tempos"},
    {"previsao", -1, 32, 414, 70, 68, "", "Previsão"},
    {"terra", -1, 84, 408, 23, 19, "", "Marcador da semana da previsão"},
    {"tempo_real", -1, 30, 494, 75, 61, "", "Tempo Real"},
    {"tempo", -1, 84, 488, 23, 19, "", "Marcador da semana atual do ano"},
};

// O que se lê primeiro: os caminhos e os tempos, e as listas, quadro por quadro.
inline constexpr Retangulo paineis[] = {{0, 0, 120, 592}, {120, 0, 160, 306}, {280, 0, 160, 306}, {440, 0, 160, 306}, {600, 0, 192, 306}, {120, 306, 160, 286}, {280, 306, 160, 286}, {440, 306, 160, 286}, {600, 306, 192, 286}};
// clang-format on

// O quadro de uma lista, e o que há dentro dele a partir do seu canto.
inline constexpr Retangulo primeiro_quadro{122, 44, 156, 258};
inline constexpr double passo_x = 161, passo_y = 263;
inline constexpr Retangulo figura_no_quadro{4, 4, 46, 46}, titulo_no_quadro{52, 6, 102, 42};
inline constexpr double marcas_no_quadro = 51, linhas_no_quadro = 72, altura_da_linha = 18;
inline constexpr double x_da_cultura = 5, x_do_lugar = 81, x_da_leira = 110, largura_do_lugar = 29, x_da_barra = 142;
inline constexpr double largura_da_barra = 12, lado_da_marca = 20;

} // namespace agenda_tabelas
} // namespace verdalia
