// As tabelas da ajuda: os documentos, as ilustrações dos tópicos, as suas animações e os lugares.
#pragma once
#include "flow/comum/series.h"

namespace verdalia::ajuda_tabelas {

struct Documento {
    const char* topico_help;
    const char* fonte;
    const char* aberto_como; // só se usa até o ponto
};

struct Ilustracao {
    const char* topico;
    const char* figura; // nula: o dia da semana de hoje
    std::int16_t acao = 0;
};

struct Volta {
    const char* tela_origem;
    TelaId tela;
};

constexpr Serie da_ilustracao(std::int16_t acao, const char* antes, std::span<const std::int8_t> numeros,
                              std::int16_t inicio, std::int16_t quadros) {
    return {.acao = acao,
            .controle = "imagespicturebox",
            .quadros = {antes, numeros},
            .do_clique = quadros,
            .inicio = inicio};
}

inline constexpr std::int16_t acao_da_minhoca = 100, passos_da_minhoca = 21;

// clang-format off
inline constexpr Documento documentos[] = {
    {"Atividades", "\\help.Txt", "\\help.XXX"},
    {"Culturas1", "\\cult1.Txt", "\\cult1.XXX"},
    {"Culturas2", "\\cult2.Txt", "\\cult2.XXX"},
    {"Atividades_Sem", "\\helps.Txt", "\\helps.XXX"},
    {"Orgânico", "\\Organico.Txt", "\\Organico.XXX"},
    {"Opções1", "\\Opcoes1.Txt", "\\Opcoes1.XXX"},
    {"PGM", "\\pgm.Txt", "\\pgm.XXX"},
    {"Agenda", "\\helpss.Txt", "\\helpss.XXX"},
};

inline constexpr Volta voltas[] = {
    {"horta", TelaId::trabalhando_na_horta},
    {"Orgânico", TelaId::INTRONEW},
    {"PGM", TelaId::conf},
    {"Agenda", TelaId::age},
};
inline constexpr TelaId volta_das_outras = TelaId::controle_da_sementeira;

inline constexpr Ilustracao ilustracoes[] = {
    {"Construindo sua Horta", "\\anima\\hortel07.bmp", 3},
    {"O Plantio Definitivo", "\\anima\\pla06.bmp", 4},
    {"O Plantio Definitivo (Direto)", "\\anima\\pla06.bmp", 4},
    {"O Plantio em Sementeira", "\\anima\\sem08.bmp", 5},
    {"O Transplante", "\\anima\\tra04.bmp", 6},
    {"A Reposição", "\\anima\\rep03.bmp", 7},
    {"O Desbaste", "\\anima\\des06.bmp", 9},
    {"A Limpeza", "\\anima\\li06.bmp", 8},
    {"A Amontoa", "\\anima\\amo05.bmp", 10},
    {"A Colheita Final e Parcial", "\\anima\\cof05.bmp", 12},
    {"O botão do planeta (tempo virtual)", "\\anima\\planet01.bmp"},
    {"O botão do calendário (tempo real)", nullptr},
    {"O botão da porteira (saída)", "\\anima\\sa00.bmp"},
    {"O Hortelão", "\\anima\\hortelin.bmp"},
    {"O botão da agenda", "\\agenda.bmp"},
    {"O botão do carrinho (feira)", "\\anima\\carrin3.bmp"},
    {"O botão da horta", "\\trab3.bmp"},
    {"O botão da sementeira", "\\semenc.bmp"},
    {"ALFACE", "\\anima\\az_ALF.bmp"},
    {"BETERRABA", "\\anima\\az_BET.bmp"},
    {"CENOURA", "\\anima\\az_CEN.bmp"},
    {"RABANETE", "\\anima\\az_RAB.bmp"},
    {"NABO", "\\anima\\az_NAB.bmp"},
    {"RÚCULA", "\\anima\\az_RUC.bmp"},
    {"CHICÓRIA", "\\anima\\az_chi.bmp"},
    {"BRÓCOLIS", "\\anima\\az_bro.bmp"},
    {"REPOLHO", "\\anima\\az_REP.bmp"},
    {"COUVE", "\\anima\\az_COU.bmp"},
    {"COUVE-FLÔR", "\\anima\\az_FLO.bmp"},
    {"ESPINAFRE", "\\anima\\az_ESP.bmp"},
    {"ALHO-PORÓ", "\\anima\\az_POR.bmp"},
    {"TOMATE", "\\anima\\az_tom.bmp"},
    {"BERINJELA", "\\anima\\az_bgl.bmp"},
    {"PIMENTÃO", "\\anima\\az_PIM.bmp"},
    {"VAGEM", "\\anima\\az_vgm.bmp"},
    {"SALSA", "\\anima\\az_che.bmp"},
    {"CEBOLINHA", "\\anima\\az_che.bmp"},
    {"PEPINO", "\\anima\\az_PEP.bmp"},
    {"AGRIÃO", "\\anima\\az_AGR.bmp"},
    {"QUIABO", "\\anima\\az_qui.bmp"},
};

inline constexpr Serie series[] = {
    da_ilustracao(3, "\\anima\\hortel", de_1_a_10, 7, 61),
    da_ilustracao(4, "\\anima\\pla", de_1_a_10, 6, 61),
    da_ilustracao(5, "\\anima\\sem", de_0_a_12, 9, 79),
    da_ilustracao(6, "\\anima\\tra", de_0_a_12, 5, 79),
    da_ilustracao(7, "\\anima\\rep", de_0_a_12, 4, 79),
    da_ilustracao(8, "\\anima\\li", capina, 7, 85),
    da_ilustracao(9, "\\anima\\des", de_0_a_12, 7, 79),
    da_ilustracao(10, "\\anima\\amo", de_0_a_11, 6, 73),
    da_ilustracao(12, "\\anima\\cof", de_0_a_13, 8, 85),
};

inline constexpr Lugar lugares[] = {
    {"faixa", -1, 0, 4, 106, 514},
    {"TextPictureBox", -1, 112, 4, 632, 514},
    {"TextVScroll", -1, 752, 0, 28, 592},
    {"theLabel1", -1, 16, 540, 138, 32, "Retornar", "Voltar para a tela de onde veio"},
    {"pic_nhoca", -1, 680, 552, 60, 30, "", "Uma minhoca"},
};
// clang-format on

inline constexpr double largura_da_faixa = 1600 * twip, topo_da_ilustracao = 1200 * twip;

} // namespace verdalia::ajuda_tabelas
