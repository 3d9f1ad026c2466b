#include "agenda/regras/plano.h"

#include "data/estado.h"
#include "data/plano.h"
#include "platform/base/texto.h"

#include <algorithm>

namespace verdalia {

namespace {

// De onde vêm as linhas de uma lista: primeiro o que se precisa, depois as leiras e os canteiros cujo calendário traz o
// código. Um código que está num calendário só não acha nada no outro.
struct Fonte {
    const char* codigo;
    const std::vector<Precisa>* precisam = nullptr;                             // só nas que vêm do pedido
    std::string LinhaDeTrabalho::*lugar_da_leira = &LinhaDeTrabalho::aonde_sem; // a coluna do nome de uma leira
};
constexpr Fonte fontes[n_listas] = {
    {"PLD", &lista_pld}, //
    {"PLS", &lista_pls, &LinhaDeTrabalho::aonde},
    {"TR"},
    {"LI"},
    {"DES"},
    {"AM"},
    {"COP"},
    {"COF"},
};

std::vector<int> canteiros_com(const std::string& codigo) {
    std::vector<int> achados;
    for (int i = 0; i < n_canteiros; ++i)
        if (oper_canteiro(st_cod_cult[i], st_idade[i]) == codigo) achados.push_back(i);
    return achados;
}

std::vector<int> leiras_com(const std::string& codigo) {
    std::vector<int> achadas;
    for (int i = 0; i < n_leiras; ++i)
        if (oper_leira(sem_cod_cult[i], sem_idade[i]) == codigo) achadas.push_back(i);
    return achadas;
}

std::string metros(std::int16_t quantidade) {
    return texto_de_numero(quantidade) + "m";
}

// O que ainda se precisa, sem lugar: o jogador o escolhe.
LinhaDeTrabalho por_decidir(const Precisa& p, Lista lista) {
    if (lista == r_pls) return {.cultura = nome_cult[p.cod_cult], .aonde = "1x"};
    return {.cultura = nome_cult[p.cod_cult], .aonde = metros(p.quantidade), .densidade = densidade_cult[p.cod_cult]};
}

// Mudas prontas levam a quantidade que o pedido ainda quer delas.
void junta_quantidade(LinhaDeTrabalho& linha, std::int16_t cod_cult) {
    const auto precisa =
        std::find_if(lista_tr.begin(), lista_tr.end(), [cod_cult](const Precisa& p) { return p.cod_cult == cod_cult; });
    if (precisa == lista_tr.end()) return;
    linha.aonde = metros(precisa->quantidade);
    linha.densidade = densidade_cult[cod_cult];
}

} // namespace

void pl_sem_tr() {
    conta_canteiros_novos();
    lista_pld.clear();
    lista_tr.clear();
    for (std::int16_t c = 1; c <= n_culturas; ++c) {
        const std::string celula = celula_plano(c);
        if (celula == "-" || celula == "x") continue;
        (ciclo_sem[c] > 0 ? lista_tr : lista_pld).push_back({c, static_cast<std::int16_t>(std::stoi(celula))});
    }
    conta_leiras_novas();
    lista_pls.clear();
    for (std::int16_t c = 1; c <= n_culturas; ++c)
        if (leiras_a_semear(c) > 0) lista_pls.push_back({c, 1});
}

void monta_listas() {
    pl_sem_tr();
    for (int l = 0; l < n_listas; ++l) {
        const Fonte& fonte = fontes[l];
        auto& lista = listas[l];
        lista.clear();
        if (fonte.precisam != nullptr)
            for (const Precisa& p : *fonte.precisam) lista.push_back(por_decidir(p, static_cast<Lista>(l)));
        for (const int i : leiras_com(fonte.codigo)) {
            LinhaDeTrabalho& linha = lista.emplace_back();
            linha.cultura = sem_nome[i];
            linha.*fonte.lugar_da_leira = nome_leira(i);
            if (l == r_tr) junta_quantidade(linha, sem_cod_cult[i]);
        }
        for (const int i : canteiros_com(fonte.codigo))
            lista.push_back({.cultura = st_nome[i], .aonde = nome_canteiro(i)});
    }
}

int maximo_da_barra(Lista lista) {
    return std::max(0, static_cast<int>(listas[lista].size()) - linhas_a_vista);
}

std::int16_t qt_tratos(const std::string& codigo) {
    return static_cast<std::int16_t>(canteiros_com(codigo).size());
}

std::int16_t qt_sem_tratos(const std::string& codigo) {
    return static_cast<std::int16_t>(leiras_com(codigo).size());
}

} // namespace verdalia
