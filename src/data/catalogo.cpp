#include "data/catalogo.h"

#include "data/estado.h"

#include <string_view>

namespace verdalia {

namespace {

struct Cultura {
    const char *nome, *abreviatura;
    std::int16_t familia;
    const char* densidade;
    std::int16_t horta, sementeira, intervalo, area, quantidade;
};

constexpr std::array<Cultura, n_culturas + 1> culturas = {{
    {"Vago", "", 0, "...", 0, 0, 0, 0, 0},
    {"Alface", "Alf", 4, "12 / m2", 8, 4, 2, 4, 6},
    {"Chicória", "Chi", 4, "12 / m2", 8, 4, 4, 2, 3},
    {"Alho Poró", "Alh", 5, "16 / m2", 16, 6, 4, 4, 4},
    {"Agrião", "Agr", 1, "16 / m2", 12, 5, 4, 3, 1},
    {"Couve", "Cou", 1, "4 / m2", 24, 5, 12, 2, 1},
    {"Espinafre", "Esp", 3, "12 / m2", 16, 5, 8, 2, 400},
    {"Quiabo", "Qui", 8, "4 / m2", 24, 0, 8, 3, 500},
    {"Rúcula", "Rúc", 1, "16 / m2", 10, 0, 5, 2, 1},
    {"Cenoura", "Cen", 2, "30 / m2", 14, 0, 2, 7, 1},
    {"Beterraba", "Bet", 3, "16 / m2", 12, 0, 3, 4, 700},
    {"Nabo", "Nab", 1, "16 / m2", 10, 0, 2, 5, 1},
    {"Rabanete", "Rab", 1, "30 / m2", 6, 0, 3, 2, 1},
    {"Cheiro Verde", "Che", 9, "16 / m2", 24, 6, 12, 2, 1},
    {"Tomate", "Tom", 7, "1 / m2", 16, 5, 4, 4, 500},
    {"Pimentão", "Pim", 7, "4 / m2", 20, 6, 10, 2, 400},
    {"Berinjela", "Bjl", 7, "1 / m2", 24, 8, 12, 2, 500},
    {"Repolho", "Rep", 1, "4 / m2", 12, 5, 4, 3, 1},
    {"Brocolis", "Bro", 1, "4 / m2", 12, 5, 4, 3, 1},
    {"Couve Flor", "Flo", 1, "4 / m2", 16, 5, 4, 4, 1},
    {"Vagem", "Vgm", 6, "8 / m2", 12, 0, 3, 4, 400},
    {"Pepino", "Pep", 7, "8 / m2", 12, 0, 4, 3, 400},
}};

constexpr std::array<const char*, 10> familias = {
    "",         "BRASSICAS",   "APIÁCEAS",     "QUENOPODIÁCEAS", "CHICOREÁCEA",
    "LILIÁCEA", "LEGUMINOSAE", "CURCUBITÁCIA", "MALVÁCEA",       "APIÁCEAS/LILIÁCEAS",
};

enum Trato : std::int16_t { PLD, TR, PLS, LI, REP, AM, COP, COF, DES, pontos, nenhum };

constexpr std::array<std::array<const char*, 2>, 11> nomes_dos_tratos = {{
    {"PLD", "Plantio Direto"},
    {"TR", "Transplante"},
    {"PLS", "Plantio em Sementeira"},
    {"LI", "Limpeza"},
    {"REP", "Reposição"},
    {"AM", "Amontoa"},
    {"COP", "Colheita Parcial"},
    {"COF", "Colheita Final"},
    {"DES", "Desbaste"},
    {"..", ".............."},
    {"", ""},
}};

// O mesmo trato da semana `de` à semana `ate`. O fim da lista tem `ate` 0 e não é a primeira faixa.
struct Faixa {
    std::int16_t de, ate;
    Trato trato;
};

struct Faixas {
    std::int16_t cultura;
    std::array<Faixa, 8> faixas;
};

constexpr Faixas na_horta[] = {
    {cult_alface, {{{0, 0, TR}, {1, 1, REP}, {2, 2, LI}, {4, 4, AM}, {6, 6, COP}, {7, 7, COF}}}},
    {cult_chicoria, {{{0, 0, TR}, {1, 1, REP}, {2, 2, LI}, {3, 3, AM}, {4, 6, COP}, {7, 7, COF}}}},
    {cult_alho_poro, {{{0, 0, TR}, {2, 2, REP}, {4, 4, LI}, {7, 7, AM}, {12, 14, COP}, {15, 15, COF}}}},
    {cult_agriao, {{{0, 0, TR}, {1, 1, REP}, {2, 2, LI}, {4, 4, AM}, {8, 10, COP}, {11, 11, COF}}}},
    {cult_couve, {{{0, 0, TR}, {3, 3, LI}, {7, 7, AM}, {9, 22, COP}, {23, 23, COF}}}},
    {cult_espinafre, {{{0, 0, TR}, {2, 2, LI}, {4, 4, AM}, {8, 14, COP}, {15, 15, COF}}}},
    {cult_quiabo, {{{0, 0, PLD}, {4, 4, DES}, {8, 8, AM}, {10, 22, COP}, {23, 23, COF}}}},
    {cult_rucula, {{{0, 0, PLD}, {2, 2, DES}, {4, 4, AM}, {5, 8, COP}, {9, 9, COF}}}},
    {cult_cenoura, {{{0, 0, PLD}, {2, 2, LI}, {4, 4, DES}, {8, 8, AM}, {12, 12, COP}, {13, 13, COF}}}},
    {cult_beterraba, {{{0, 0, PLD}, {2, 2, LI}, {4, 4, DES}, {7, 7, AM}, {9, 10, COP}, {11, 11, COF}}}},
    {cult_nabo, {{{0, 0, PLD}, {2, 2, DES}, {5, 5, AM}, {8, 8, COP}, {9, 9, COF}}}},
    {cult_rabanete, {{{0, 0, PLD}, {2, 2, DES}, {3, 3, AM}, {4, 4, COP}, {5, 5, COF}}}},
    {cult_cheiro_verde, {{{0, 0, TR}, {3, 3, LI}, {7, 7, AM}, {10, 22, COP}, {23, 23, COF}}}},
    {cult_tomate, {{{0, 0, TR}, {2, 2, REP}, {4, 4, LI}, {6, 6, AM}, {10, 10, AM}, {12, 14, COP}, {15, 15, COF}}}},
    {cult_pimentao, {{{0, 0, TR}, {2, 2, REP}, {5, 5, AM}, {8, 18, COP}, {19, 19, COF}}}},
    {cult_berinjela, {{{0, 0, TR}, {2, 2, REP}, {5, 5, AM}, {10, 10, LI}, {12, 22, COP}, {23, 23, COF}}}},
    {cult_repolho, {{{0, 0, TR}, {1, 1, REP}, {2, 2, LI}, {5, 5, AM}, {8, 10, COP}, {11, 11, COF}}}},
    {cult_brocolis, {{{0, 0, TR}, {2, 2, LI}, {5, 5, AM}, {7, 7, AM}, {8, 10, COP}, {11, 11, COF}}}},
    {cult_couve_flor, {{{0, 0, TR}, {1, 1, REP}, {2, 2, LI}, {5, 5, AM}, {9, 9, LI}, {12, 14, COP}, {15, 15, COF}}}},
    {cult_vagem, {{{0, 0, PLD}, {3, 3, DES}, {7, 7, AM}, {9, 10, COP}, {11, 11, COF}}}},
    {cult_pepino, {{{0, 0, PLD}, {3, 3, DES}, {6, 6, AM}, {8, 10, COP}, {11, 11, COF}}}},
};

constexpr Faixas na_sementeira[] = {
    {cult_alface, {{{0, 0, PLS}, {2, 2, LI}, {4, 4, TR}}}},
    {cult_chicoria, {{{0, 0, PLS}, {2, 2, LI}, {4, 4, TR}}}},
    {cult_alho_poro, {{{0, 0, PLS}, {2, 2, LI}, {4, 4, DES}, {6, 6, TR}}}},
    {cult_agriao, {{{0, 0, PLS}, {1, 1, LI}, {3, 3, DES}, {5, 5, TR}}}},
    {cult_couve, {{{0, 0, PLS}, {2, 2, LI}, {3, 3, DES}, {5, 5, TR}}}},
    {cult_espinafre, {{{0, 0, PLS}, {2, 2, LI}, {5, 5, TR}}}},
    {cult_cheiro_verde, {{{0, 0, PLS}, {2, 2, LI}, {4, 4, DES}, {6, 6, TR}}}},
    {cult_tomate, {{{0, 0, PLS}, {2, 2, LI}, {5, 5, TR}}}},
    {cult_pimentao, {{{0, 0, PLS}, {2, 2, LI}, {3, 3, DES}, {6, 6, TR}}}},
    {cult_berinjela, {{{0, 0, PLS}, {2, 2, LI}, {4, 4, DES}, {8, 8, TR}}}},
    {cult_repolho, {{{0, 0, PLS}, {2, 2, LI}, {3, 3, DES}, {5, 5, TR}}}},
    {cult_brocolis, {{{0, 0, PLS}, {2, 2, LI}, {3, 3, DES}, {5, 5, TR}}}},
    {cult_couve_flor, {{{0, 0, PLS}, {2, 2, LI}, {3, 3, DES}, {5, 5, TR}}}},
};

template <std::size_t N> void estende(Calendario& calendario, const Faixas (&tabela)[N]) {
    for (auto& linhas : calendario) linhas.fill({-1, nenhum});
    for (const Faixas& linha : tabela) {
        std::size_t i = 0;
        for (const Faixa& faixa : linha.faixas) {
            if (i > 0 && faixa.ate == 0) break;
            for (std::int16_t semana = faixa.de; semana <= faixa.ate; ++semana)
                calendario[linha.cultura][i++] = {semana, faixa.trato};
        }
    }
}

std::string procura(const Calendario& calendario, std::int16_t cod_cult, std::int16_t idade) {
    if (cod_cult <= cult_vago || cod_cult > n_culturas) return "";
    for (const auto& [semana, trato] : calendario[cod_cult])
        if (semana == idade) return tratos[trato][0];
    return "";
}

} // namespace

void carrega_tabelas() {
    for (std::size_t c = 0; c < culturas.size(); ++c) {
        const Cultura& cultura = culturas[c];
        nome_cult[c] = cultura.nome;
        abrev_cult[c] = cultura.abreviatura;
        familia_cult[c] = cultura.familia;
        densidade_cult[c] = cultura.densidade;
        ciclo_horta[c] = cultura.horta;
        ciclo_sem[c] = cultura.sementeira;
        intervalo_plantio[c] = cultura.intervalo;
        area_unidade[c] = cultura.area;
        qtd_unidade[c] = cultura.quantidade;
    }
    for (std::size_t i = 0; i < familias.size(); ++i) nome_familia[i] = familias[i];
    for (std::size_t i = 0; i < tratos.size(); ++i) tratos[i] = {nomes_dos_tratos[i][0], nomes_dos_tratos[i][1]};
    estende(oper_horta, na_horta);
    estende(oper_sem, na_sementeira);
    data_hoje = data_previsao = relogio->agora();
}

std::string oper_canteiro(std::int16_t cod_cult, std::int16_t idade) {
    return procura(oper_horta, cod_cult, idade);
}

std::string oper_leira(std::int16_t cod_cult, std::int16_t idade) {
    return procura(oper_sem, cod_cult, idade);
}

} // namespace verdalia
