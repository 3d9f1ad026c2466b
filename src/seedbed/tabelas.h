// As tabelas da tela da sementeira: culturas, tratos, animações, avisos e lugares, em twips onde multiplicados.
#pragma once
#include "data/catalogo.h"
#include "data/plano.h"
#include "flow/comum/tela_de_tratos.h"

namespace verdalia::sementeira_tabelas {

inline constexpr const char* dica_semeadas = "Quantidade de 'leiras' que devem ser semeadas";

// Um botão de cultura com o rótulo no canto de cima, à direita.
constexpr BotaoDeCultura botao(int k, std::int16_t cultura, const char* nome, double esquerda, double topo,
                               const char* abreviatura, const char* figura, const char* clipe, const char* dica) {
    const Retangulo lugar{esquerda * twip, topo * twip, 585 * twip, 600 * twip};
    const Retangulo rotulo{(esquerda + 585 - 195) * twip, topo * twip, 195 * twip, 255 * twip};
    return {k, cultura, nome, lugar, rotulo, abreviatura, figura, clipe, dica, dica_semeadas};
}

// clang-format off
inline constexpr BotaoDeCultura culturas[] = {
    botao(0, cult_alface, "c_alf", 3090, 930, "alf", "\\anima\\az_alf.bmp", "\\alface.wav", "Alface"),
    botao(1, cult_chicoria, "c_chi", 4170, 930, "chi", "\\anima\\az_chi.bmp", "\\chicoria.wav", "Chicória"),
    botao(2, cult_cheiro_verde, "c_che", 7860, 1695, "che", "\\anima\\az_che.bmp", "\\cheiro.wav", "Cheiro-Verda (Salsa & Cebolinha)"),
    botao(3, cult_agriao, "c_agr", 6450, 930, "agr", "\\anima\\az_agr.bmp", "\\agriao.wav", "Agrião"),
    botao(4, cult_couve, "c_cou", 7560, 930, "cou", "\\anima\\az_cou.bmp", "\\couve.wav", "Couve"),
    botao(5, cult_espinafre, "c_esp", 8640, 930, "esp", "\\anima\\az_esp.bmp", "\\espinafr.wav", "Espinafre"),
    botao(6, cult_tomate, "c_tom", 2340, 1695, "tom", "\\anima\\az_tom.bmp", "\\tomate.wav", "Tomate"),
    botao(7, cult_pimentao, "c_pim", 3420, 1695, "pim", "\\anima\\az_pim.bmp", "\\pimentao.wav", "Pimentão"),
    botao(8, cult_berinjela, "c_bgl", 4530, 1695, "bgl", "\\anima\\az_bgl.bmp", "\\beringel.wav", "Beringela"),
    botao(9, cult_repolho, "c_rep", 5640, 1695, "rep", "\\anima\\az_rep.bmp", "\\repolho.wav", "Repolho"),
    botao(10, cult_brocolis, "c_bro", 6750, 1695, "bro", "\\anima\\az_bro.bmp", "\\brocolis.wav", "Brócolis"),
    botao(11, cult_couve_flor, "c_flo", 5310, 930, "flo", "\\anima\\az_flo.bmp", "\\cflor.wav", "Couve-Flôr"),
    botao(12, cult_alho_poro, "c_alh", 8910, 1695, "por", "\\anima\\az_por.bmp", "\\alho.wav", "Alho-Poró"),
};
// clang-format on

// O que se diz de um lote por semear, na ordem de Label3.
struct Aviso {
    const char* titulo;
    const char* texto;
};
inline constexpr Aviso avisos[] = {
    {"Alface", "Voce deve plantar 1 lote de Alface na sementeira"},
    {"Chicória", "Voce deve plantar 1 lote de Chicória na sementeira"},
    {"Cheiro-Verde", "Voce deve plantar 1 lote de Cheiro-Verde na sementeira"},
    {"Agrião", "Voce deve plantar 1 lote de Agrião na sementeira"},
    {"Couve", "Voce deve plantar 1 lote de Couve na sementeira"},
    {"Espinhafre", "Voce deve plantar 1 lote de Espinafre na sementeira"},
    {"Tomate", "Voce deve plantar 1 lote de Tomate na sementeira"},
    {"Pimentão", "Voce deve plantar 1 lote de Pimentão na sementeira"},
    {"Beringela", "Voce deve plantar 1 lote de Beringela na sementeira"},
    {"Repolho", "Voce deve plantar 1 lote de Repolho na sementeira"},
    {"Brocólis", "Voce deve plantar 1 lote de Brócolis na sementeira"},
    {"Couve-Flor", "Voce deve plantar 1 lote de Couve-Flor na sementeira"},
    {"Alho-Poró", "Voce deve plantar 1 lote de Alho-Poró sementeira"},
};
static_assert(std::size(avisos) == std::size(culturas));

inline constexpr int botao_horta = 4;
inline constexpr Cor preto{0, 0, 0};
inline constexpr Cor cor_tra{255, 0, 255}, cor_horta{0, 192, 0};
enum : std::int16_t { acao_li = 4, acao_des, acao_tra, acao_botao_horta, acao_horta = 16 };

// clang-format off
inline constexpr Trabalho trabalhos[] = {
    {1, "LI", {255, 255, 192}, preto, "\\anima\\li06.bmp", "\\anima\\li06bw.bmp", false, "\\mudlimp.wav", "\\nlimp.wav", acao_li},
    {2, "DES", {255, 255, 0}, preto, "\\anima\\des06.bmp", "\\anima\\des06bw.bmp", false, "\\muddesb.wav", "\\ndesb.wav", acao_des},
    {3, "TR", cor_tra, preto, "\\anima\\tra04.bmp", "\\anima\\tra04bw.bmp", false, "\\mudtran.wav", "\\ntran.wav", acao_tra},
    {botao_horta, "", cor_horta, preto, "\\trab3.bmp", "\\trab3pb.bmp", true, "", "", acao_botao_horta},
};
// clang-format on

// clang-format off
inline constexpr Serie series[] = {
    serie_tempo_real,
    serie_previsao,
    serie_de_botao(acao_li, "Command4", 1, "\\anima\\li", capina, 13, 7),
    serie_de_botao(acao_des, "Command4", 2, "\\anima\\des", de_0_a_12, 14, 7),
    serie_de_botao(acao_tra, "Command4", 3, "\\anima\\tra", de_0_a_12, 14, 5),
    serie_de_botao(acao_botao_horta, "Command4", botao_horta, "\\anima\\enx", de_0_a_10, 12, 1, viagem_a_horta),
    serie_hortelao,
    serie_agenda,
    serie_enxada(acao_horta),
};
// clang-format on

// As leiras: dois blocos de onze colunas.
inline constexpr int colunas = n_leiras / 2;
inline constexpr double primeira_coluna = 2490 * twip, passo_da_coluna = 660 * twip;
inline constexpr double largura_da_leira = 585 * twip;
inline constexpr double topo_da_muda[] = {3810 * twip, 6090 * twip}, altura_da_muda = 600 * twip;
inline constexpr double topo_do_crescimento[] = {4500 * twip, 6780 * twip}, altura_do_crescimento = 1275 * twip;

// clang-format off
inline constexpr Lugar lugares[] = {
    {"lbl_verduras", -1, 350, 33, 110, 23, "Sementes"},
    {"lbl_atividades", -1, 705, 30, 82, 22, "Atividades"},
    {"Command4", 1, 10650 * twip, 900 * twip, 1155 * twip, 1215 * twip, "Limpar", "Fazer a limpeza das mudas indicadas de branco"},
    {"Command4", 2, 10650 * twip, 3000 * twip, 1155 * twip, 1215 * twip, "Desbastar", "Fazer o desbaste das mudas indicadas de amarelo"},
    {"Command4", 3, 10650 * twip, 5010 * twip, 1155 * twip, 1215 * twip, "Transplantar", "Fazer o transplante para os canteiros das  mudas indicadas em violeta. Vá para a Tela da Horta"},
    {"Command4", 4, 10650 * twip, 7050 * twip, 1155 * twip, 1215 * twip, "Horta", "Ir para a Tela da Horta"},
    {"hortelino", -1, 20, 20, 80, 70, "", "Voltar para a tela da Introdução"},
    {"pic_horta", -1, 20, 112, 80, 62, "", "Ir para a Horta"},
    {"pic_agenda", -1, 20, 200, 80, 60, "", "Ir para a Agenda"},
    {"faixa", -1, 8, 282, 108, 66},
    {"lbl_tempo", -1, 20, 405, 82, 23, "Tempos"},
    {"previsao", -1, 20, 446, 70, 68, "", "Previsão"},
    {"terra", -1, 78, 438, 23, 19, "", "Marcador da semana da previsão"},
    {"tempo_real", -1, 18, 520, 75, 61},
    {"tempo", -1, 78, 516, 23, 19, "", "Marcador da semana atual do ano"},
};

// O que se lê primeiro: os caminhos e os tempos, as sementes, as leiras, os tratos.
inline constexpr Retangulo paineis[] = {{0, 0, 130, 592}, {130, 0, 560, 165}, {130, 165, 560, 427}, {690, 0, 102, 592}};
// clang-format on

} // namespace verdalia::sementeira_tabelas
