// As regras do plano da semana: o que falta plantar, semear e tratar, segundo o pedido e o estado da horta.
#pragma once

#include "data/estado.h"

#include <cstdint>
#include <span>
#include <string>

namespace verdalia {

// Os lugares de uma tabela, sem a entrada que sobra no fim.
inline std::span<const std::int16_t> canteiros(const PorCanteiro<std::int16_t>& tabela) {
    return {tabela.data(), n_canteiros};
}
inline std::span<const std::int16_t> leiras(const PorLeira<std::int16_t>& tabela) {
    return {tabela.data(), n_leiras};
}

// Algum canteiro tem essa cultura com idade 0?
bool plantou_esta_semana(std::int16_t cod_cult);

// Alguma leira da cultura posta em `cultura_teste` está na semana do transplante?
bool tem_leira_pronta();

// Refazem `n_canteiros_novos` e `n_leiras_novas`: lugares com idade abaixo de `intervalo_plantio`.
void conta_canteiros_novos();
void conta_leiras_novas();

// O veredito da semana para uma cultura de 1 a 21: quantos canteiros faltam ("2"), "-" nada, "x" falta muda, "1" há
// muda pronta que se perderia. Conta com `n_canteiros_novos` em dia; muda `cultura_teste`.
std::string celula_plano(std::int16_t cod_cult);

// Alguma cultura pede plantio? Alguma cultura pedida não tem leira recente? Refazem os contadores.
bool falta_plantar();
bool falta_semear();

// Quantas leiras novas da cultura o pedido ainda exige: 0 ou 1. Conta com `conta_leiras_novas` já feita; uma cultura
// sem fase de sementeira dá 0. Pode pôr 1 em `n_leiras_novas` quando um canteiro novo vem de semeadura recente.
int leiras_a_semear(std::int16_t cod_cult);

// Os tratos da semana nos canteiros e nas leiras: 0 nenhum, 1 há algum por fazer, 2 todos feitos.
int pend_canteiro();
int pend_leira();

// O jogador está olhando uma previsão?
bool previsao_ligada();

// A família pediu alguma coisa?
bool auto_abastecimento();

// "A 1" a "J 10" (n de 0 a 99); "A 1" a "B 11" (n de 0 a 21).
std::string nome_canteiro(int n);
std::string nome_leira(int n);

// O caminho da figura do dia da semana de hoje, e do dia que foi há `n` dias (0 a 7).
std::string fig_dia_semana();
std::string fig_dia_passado(int n);

} // namespace verdalia
