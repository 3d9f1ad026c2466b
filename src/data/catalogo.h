// O catálogo: o que a agronomia diz de cada cultura. `carrega_tabelas` o enche uma vez; depois ninguém o muda.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace verdalia {

inline constexpr int n_culturas = 21;
inline constexpr std::size_t codigos_de_cultura = 22; // com o 0, de um lugar vago

// Códigos de cultura. `cult_nenhuma` é um lugar fora do jogo; `cult_vago`, um lugar do jogo sem nada plantado.
inline constexpr std::int16_t cult_nenhuma = -1, cult_vago = 0, cult_alface = 1, cult_chicoria = 2, cult_alho_poro = 3,
                              cult_agriao = 4, cult_couve = 5, cult_espinafre = 6, cult_quiabo = 7, cult_rucula = 8,
                              cult_cenoura = 9, cult_beterraba = 10, cult_nabo = 11, cult_rabanete = 12,
                              cult_cheiro_verde = 13, cult_tomate = 14, cult_pimentao = 15, cult_berinjela = 16,
                              cult_repolho = 17, cult_brocolis = 18, cult_couve_flor = 19, cult_vagem = 20,
                              cult_pepino = 21;

// Tabelas por cultura, entradas 0 (`Vago`) a 21.
template <typename T> using PorCultura = std::array<T, codigos_de_cultura>;

inline PorCultura<std::string> nome_cult;                 // "Alho Poró"
inline PorCultura<std::string> abrev_cult;                // três letras, para o mapa do relatório
inline PorCultura<std::int16_t> familia_cult;             // índice em `nome_familia`
inline PorCultura<std::string> densidade_cult;            // mudas por metro quadrado, "12 / m2"
inline PorCultura<std::int16_t> ciclo_horta;              // semanas no canteiro
inline PorCultura<std::int16_t> ciclo_sem;                // semanas na sementeira; 0: planta-se direto no canteiro
inline PorCultura<std::int16_t> intervalo_plantio;        // de quantas em quantas semanas se planta de novo
inline PorCultura<std::int16_t> area_unidade;             // canteiros que uma unidade do pedido ocupa
inline PorCultura<std::int16_t> qtd_unidade;              // só importa se é zero: a barraca a multiplica pelo pedido
inline std::array<std::string, 10> nome_familia;          // "" e nove famílias
inline std::array<std::array<std::string, 2>, 11> tratos; // código e nome por extenso; a linha 10 fica vazia

// O que cada cultura pede em cada semana: até 21 linhas de {semana, linha de `tratos`}, em ordem de semana.
// As linhas que sobram têm a semana -1 e a linha 10.
using Calendario = std::array<std::array<std::array<std::int16_t, 2>, 21>, n_culturas + 1>;
inline Calendario oper_horta;
inline Calendario oper_sem;

// Enche o catálogo e põe o momento presente em `data_hoje` e `data_previsao`. Vem antes de ler o banco.
void carrega_tabelas();

// O código do trato que um canteiro (ou uma leira) com essa cultura e essa idade pede na semana: "TR", "LI"...
// "" quando nada pede, e para `Vago`, `cult_nenhuma` ou um código que não existe.
std::string oper_canteiro(std::int16_t cod_cult, std::int16_t idade);
std::string oper_leira(std::int16_t cod_cult, std::int16_t idade);

} // namespace verdalia
