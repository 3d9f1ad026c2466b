#include "data/plano.h"

#include "data/estado.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string_view>

namespace verdalia {

namespace {

using Coluna = std::span<const std::int16_t>; // uma entrada por lugar

void conta_novos(PorCultura<std::int16_t>& contador, Coluna cod_cult, Coluna idade) {
    contador.fill(0);
    for (std::size_t i = 0; i < cod_cult.size(); ++i)
        if (const int c = cod_cult[i]; c > cult_vago && idade[i] < intervalo_plantio[c]) ++contador[c];
}

// O estado dos tratos de um grupo de lugares; os tratos de `livres` não são trabalho por fazer.
int pendencia(Coluna cod_cult, Coluna idade, Coluna check, std::string (*oper)(std::int16_t, std::int16_t),
              std::initializer_list<std::string_view> livres) {
    int estado = 0;
    for (std::size_t i = 0; i < cod_cult.size(); ++i) {
        if (cod_cult[i] < cult_vago) continue;
        if (std::find(livres.begin(), livres.end(), oper(cod_cult[i], idade[i])) != livres.end()) continue;
        if (check[i] == 0) return 1;
        estado = 2;
    }
    return estado;
}

std::string nome_do_lugar(int n, int colunas) {
    return std::string(1, static_cast<char>('A' + n / colunas)) + ' ' + std::to_string(n % colunas + 1);
}

} // namespace

bool plantou_esta_semana(std::int16_t cod_cult) {
    for (int i = 0; i < n_canteiros; ++i)
        if (st_cod_cult[i] == cod_cult && st_idade[i] == 0) return true;
    return false;
}

bool tem_leira_pronta() {
    for (int i = 0; i < n_leiras; ++i)
        if (const int c = sem_cod_cult[i]; c > cult_vago && c == cultura_teste && sem_idade[i] == ciclo_sem[c])
            return true;
    return false;
}

void conta_canteiros_novos() {
    conta_novos(n_canteiros_novos, canteiros(st_cod_cult), canteiros(st_idade));
}

void conta_leiras_novas() {
    conta_novos(n_leiras_novas, leiras(sem_cod_cult), leiras(sem_idade));
}

std::string celula_plano(std::int16_t cod_cult) {
    const int faltam = seq_pedido[cod_cult] - n_canteiros_novos[cod_cult];
    cultura_teste = cod_cult;
    const bool pronta = tem_leira_pronta();
    if (ciclo_sem[cod_cult] > 0 && !pronta) return "x";
    if (faltam > 0) return std::to_string(faltam);
    return pronta && !plantou_esta_semana(cod_cult) ? "1" : "-";
}

bool falta_plantar() {
    conta_canteiros_novos();
    for (std::int16_t c = 1; c <= n_culturas; ++c)
        if (const std::string celula = celula_plano(c); celula != "-" && celula != "x") return true;
    return false;
}

int leiras_a_semear(std::int16_t cod_cult) {
    if (ciclo_sem[cod_cult] == 0) return 0;
    // Um canteiro tão novo veio de uma leira do mesmo intervalo, que ainda conta.
    for (int i = 0; i < n_canteiros && n_leiras_novas[cod_cult] == 0; ++i)
        if (st_cod_cult[i] == cod_cult && ciclo_sem[cod_cult] + st_idade[i] < intervalo_plantio[cod_cult])
            n_leiras_novas[cod_cult] = 1;
    // Por maior que seja o pedido, uma leira recente basta.
    return std::max(0, std::min<int>(seq_pedido[cod_cult], 1) - n_leiras_novas[cod_cult]);
}

bool falta_semear() {
    conta_leiras_novas();
    for (std::int16_t c = 1; c <= n_culturas; ++c)
        if (leiras_a_semear(c) > 0) return true;
    return false;
}

int pend_canteiro() {
    return pendencia(canteiros(st_cod_cult), canteiros(st_idade), canteiros(st_check), oper_canteiro,
                     {"", "TR", "PLD", "REP"});
}

int pend_leira() {
    return pendencia(leiras(sem_cod_cult), leiras(sem_idade), leiras(sem_check), oper_leira, {"", "PLS"});
}

// Compara as datas, não as semanas do ano: uma previsão de um ano inteiro volta ao mesmo número.
bool previsao_ligada() {
    return data_previsao != data_hoje;
}

bool auto_abastecimento() {
    return std::any_of(seq_pedido.begin() + 1, seq_pedido.end(), [](std::int16_t pedido) { return pedido != 0; });
}

std::string nome_canteiro(int n) {
    return nome_do_lugar(n, 10);
}

std::string nome_leira(int n) {
    return nome_do_lugar(n, n_leiras / 2);
}

std::string fig_dia_semana() {
    return fig_dia_passado(0);
}

std::string fig_dia_passado(int n) {
    return dir_media + "\\anima\\seman0" + std::to_string(dia_da_semana(hoje() - std::chrono::days{n})) + ".bmp";
}

} // namespace verdalia
