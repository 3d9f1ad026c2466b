// As tabelas da tela da horta: culturas, tratos, animações e lugares.
#pragma once
#include "data/catalogo.h"
#include "data/plano.h"
#include "flow/comum/tela_de_tratos.h"

namespace verdalia::horta_tabelas {

inline constexpr const char* dica_plantados = "A quantidade de canteiros que devem ser plantados na horta";
inline constexpr const char* dica_plantada = "A quantidade de canteiros que deve ser plantada na horta";
inline constexpr const char* dica_transplantados = "A quantidade de canteiros que devem ser transplantados na horta";

// Um botão de cultura de 39 por 40, com o rótulo a 28 pixels da sua esquerda.
constexpr BotaoDeCultura botao(int k, std::int16_t cultura, const char* nome, double esquerda, double topo,
                               const char* abreviatura, const char* figura, const char* clipe, const char* dica,
                               const char* dica_do_rotulo, double largura = 39) {
    return {k,
            cultura,
            nome,
            {esquerda, topo, largura, 40},
            {esquerda + 28, topo, 16, 17},
            abreviatura,
            figura,
            clipe,
            dica,
            dica_do_rotulo};
}

// clang-format off
inline constexpr BotaoDeCultura culturas[] = {
    botao(0, cult_alface, "c_alf", 362, 38, "alf", "\\anima\\az_alf.bmp", "\\alface.wav", "Alface", dica_transplantados),
    botao(1, cult_chicoria, "c_chi", 402, 38, "chi", "\\anima\\az_chi.bmp", "\\chicoria.wav", "Chicória", dica_transplantados, 40),
    botao(2, cult_cheiro_verde, "c_che", 546, 84, "che", "\\anima\\az_che.bmp", "\\cheiro.wav", "Cheiro-Verde (Salsa & Cebolinha)", dica_transplantados),
    botao(3, cult_agriao, "c_agr", 484, 38, "agr", "\\anima\\az_agr.bmp", "\\agriao.wav", "Agrião", dica_transplantados),
    botao(4, cult_couve, "c_cou", 524, 38, "cou", "\\anima\\az_cou.bmp", "\\couve.wav", "Couve", dica_transplantados),
    botao(5, cult_espinafre, "c_esp", 564, 38, "esp", "\\anima\\az_esp.bmp", "\\espinafr.wav", "Espinafre", dica_transplantados),
    botao(6, cult_quiabo, "c_ber", 156, 38, "qui", "\\anima\\az_qui.bmp", "\\quiabo.wav", "Quiabo", dica_plantados),
    botao(7, cult_rucula, "c_ruc", 196, 38, "ruc", "\\anima\\az_ruc.bmp", "\\rucula.wav", "Rúcula", dica_plantados),
    botao(8, cult_cenoura, "c_cen", 236, 38, "cen", "\\anima\\az_cen.bmp", "\\cenoura.wav", "Cenoura", dica_plantados),
    botao(9, cult_beterraba, "c_bet", 276, 38, "bet", "\\anima\\az_bet.bmp", "\\beterrab.wav", "Beterraba", dica_plantados),
    botao(10, cult_nabo, "c_nab", 156, 84, "nab", "\\anima\\az_nab.bmp", "\\nabo.wav", "Nabo", dica_plantados),
    botao(11, cult_rabanete, "c_rab", 196, 84, "rab", "\\anima\\az_rab.bmp", "\\rabanete.wav", "Rabanete", dica_plantados),
    botao(12, cult_tomate, "c_tom", 604, 38, "tom", "\\anima\\az_tom.bmp", "\\tomate.wav", "Tomate", dica_transplantados),
    botao(13, cult_pimentao, "c_pim", 378, 84, "pim", "\\anima\\az_pim.bmp", "\\pimentao.wav", "Pimentão", dica_transplantados),
    botao(14, cult_berinjela, "c_bgl", 504, 84, "bgl", "\\anima\\az_bgl.bmp", "\\beringel.wav", "Beringela", dica_transplantados),
    botao(15, cult_repolho, "c_rep", 462, 84, "rep", "\\anima\\az_rep.bmp", "\\repolho.wav", "Repolho", dica_transplantados),
    botao(16, cult_brocolis, "c_bro", 420, 84, "bro", "\\anima\\az_bro.bmp", "\\brocolis.wav", "Brócolis", dica_transplantados),
    botao(17, cult_couve_flor, "c_flo", 444, 38, "flo", "\\anima\\az_flo.bmp", "\\cflor.wav", "Couve-Flor", dica_transplantados),
    botao(18, cult_vagem, "c_vgm", 236, 84, "vgm", "\\anima\\az_vgm.bmp", "\\vagem.wav", "Vagem", dica_plantados),
    botao(19, cult_pepino, "c_pep", 276, 84, "pep", "\\anima\\az_pep.bmp", "\\pepino.wav", "Pepino", dica_plantada),
    botao(20, cult_alho_poro, "c_alh", 588, 84, "por", "\\anima\\az_por.bmp", "\\alho.wav", "Alho-Poró", dica_transplantados),
};
// clang-format on

inline constexpr int botao_sementeira = 2;
inline constexpr Cor cor_sem{255, 0, 0};
inline constexpr Cor preto{0, 0, 0}, branco{255, 255, 255};
enum : std::int16_t { acao_li = 8, acao_des, acao_am, acao_cop, acao_cof, acao_botao_sementeira };

// clang-format off
inline constexpr Trabalho trabalhos[] = {
    {botao_sementeira, "", cor_sem, preto, "\\semenc.bmp", "\\semencpb.bmp", true, "", "", acao_botao_sementeira},
    {5, "LI", {255, 255, 192}, preto, "\\anima\\li06.bmp", "\\anima\\li06bw.bmp", false, "\\l1.wav", "\\l2.wav", acao_li},
    {6, "DES", {255, 255, 0}, preto, "\\anima\\des06.bmp", "\\anima\\des06bw.bmp", false, "\\d1.wav", "\\d2.wav", acao_des},
    {7, "AM", {128, 64, 64}, branco, "\\anima\\amo05.bmp", "\\anima\\amo05bw.bmp", false, "\\am1.wav", "\\am2.wav", acao_am},
    {8, "COP", {255, 0, 255}, preto, "\\anima\\cop05.bmp", "\\anima\\cop05bw.bmp", false, "\\cp1.wav", "\\cp2.wav", acao_cop},
    {9, "COF", {0, 192, 0}, preto, "\\anima\\cof05.bmp", "\\anima\\cof05bw.bmp", false, "\\cf1.wav", "\\cf2.wav", acao_cof},
};

inline constexpr Serie series[] = {
    serie_tempo_real,
    serie_previsao,
    serie_de_botao(acao_li, "Command2", 5, "\\anima\\li", capina, 13, 7),
    serie_de_botao(acao_des, "Command2", 6, "\\anima\\des", de_0_a_12, 13, 7),
    serie_de_botao(acao_am, "Command2", 7, "\\anima\\amo", de_0_a_11, 12, 6),
    serie_de_botao(acao_cop, "Command2", 8, "\\anima\\cop", de_0_a_13, 15, 6),
    serie_de_botao(acao_cof, "Command2", 9, "\\anima\\cof", de_0_a_13, 14, 8),
    serie_de_botao(acao_botao_sementeira, "Command2", botao_sementeira, "\\anima\\ssem", de_0_a_7, 8, 1, viagem_a_sementeira),
    serie_hortelao,
    serie_agenda,
    serie_mudas,
};

inline constexpr Lugar lugares[] = {
    {"horta", -1, 200, 164, 419, 419},
    {"lbl_verduras", 0, 188, 2, 93, 23, "Sementes"},
    {"lbl_verduras", 1, 474, 2, 64, 23, "Mudas"},
    {"lbl_atividades", -1, 694, 6, 100, 23, "Atividades"},
    {"Command2", 2, 710, 36, 77, 77, "Sementeira", "Ir para a Tela da Sementeira"},
    {"Command2", 5, 710, 130, 77, 77, "Limpar", "Fazer limpeza nos canteiros marcados de 'branco'"},
    {"Command2", 6, 710, 224, 77, 77, "Desbastar", "Fazer o desbaste nos canteiros marcados de 'amarelo'"},
    {"Command2", 7, 710, 318, 77, 77, "Amontoar", "Fazer a amontoa nos canteiros marcados de 'marrom'"},
    {"Command2", 8, 710, 412, 77, 77, "ColherParte", "Fazer a colheita parcial nos canteiros marcados de 'rosa'"},
    {"Command2", 9, 710, 506, 77, 77, "ColherTotal", "Fazer a colheita total nos canteiros marcados de 'verde'"},
    {"hortelino", -1, 18, 18, 80, 70, "", "Voltar para tela da Introdução"},
    {"pic_semen", -1, 20, 108, 80, 62, "", "Ir para a Sementeira"},
    {"pic_agenda", -1, 14, 202, 80, 60, "", "Ir para a Agenda"},
    {"faixa", -1, 8, 282, 108, 66},
    {"lbl_tempo", -1, 14, 406, 76, 23, "Tempos", "Sobre os Tempos"},
    {"previsao", -1, 20, 446, 70, 68, "", "Previsão"},
    {"terra", -1, 68, 438, 23, 19, "", "Marcador da semana da previsão"},
    {"tempo_real", -1, 16, 520, 75, 61, "", "Tempo Real"},
    {"tempo", -1, 70, 516, 23, 19, "", "Marcador da semana atual do ano"},
};
// clang-format on

// O que se lê primeiro: os caminhos e os tempos, as sementes, as mudas, a horta, os tratos.
inline constexpr Retangulo paineis[] = {
    {0, 0, 130, 592}, {130, 0, 210, 136}, {340, 0, 340, 136}, {130, 136, 550, 456}, {680, 0, 112, 592}};

} // namespace verdalia::horta_tabelas
