// O estado do jogo: tabelas e variáveis globais que todas as telas leem e escrevem. Nas tabelas, falso é 0 e verdadeiro
// é -1; índices e códigos são inteiros de 16 bits.
#pragma once

#include "data/catalogo.h"
#include "platform/base/relogio.h"

namespace verdalia {

inline constexpr int n_canteiros = 100; // 10 por 10; índice = linha vezes 10 mais coluna
inline constexpr int n_leiras = 22;     // dois blocos de 11

template <typename T> using PorCanteiro = std::array<T, n_canteiros + 1>; // a última entrada sobra
template <typename T> using PorLeira = std::array<T, n_leiras + 1>;

// Canteiros. Com cultura, a idade fica abaixo de `ciclo_horta`; sem cultura, é 0.
inline PorCanteiro<std::int16_t> st_cod_cult;       // cultura, `cult_vago` ou `cult_nenhuma`
inline PorCanteiro<std::string> st_nome;            // "" quando o tempo esvaziou o canteiro
inline PorCanteiro<std::int16_t> st_idade;          // em semanas; 0 na do plantio
inline PorCanteiro<std::int16_t> st_check;          // o trato da semana foi feito
inline PorCanteiro<std::int16_t> st_last_i_cu;      // a última cultura que terminou ali, ou -1
inline PorCanteiro<std::int16_t> st_last_last_i_cu; // a anterior a essa, ou -1

// Leiras da sementeira. Com cultura, a idade vai até `ciclo_sem`, inclusive; sem cultura, é 0.
inline PorLeira<std::int16_t> sem_cod_cult;
inline PorLeira<std::string> sem_nome;
inline PorLeira<std::int16_t> sem_idade;
inline PorLeira<std::int16_t> sem_check;

// O pedido da família: unidades por semana de cada cultura, 1 a 21; nunca negativo.
inline PorCultura<std::int16_t> seq_pedido;

// Plantios recentes de cada cultura; `conta_canteiros_novos` e `conta_leiras_novas` os refazem a cada uso.
inline PorCultura<std::int16_t> n_canteiros_novos;
inline PorCultura<std::int16_t> n_leiras_novas;

// O estado verdadeiro enquanto o jogador olha uma previsão.
inline PorCanteiro<std::int16_t> bak_st_cod_cult;
inline PorCanteiro<std::string> bak_st_nome;
inline PorCanteiro<std::int16_t> bak_st_idade;
inline PorCanteiro<std::int16_t> bak_st_check;
inline PorCanteiro<std::int16_t> bak_st_last_i_cu;
inline PorCanteiro<std::int16_t> bak_st_last_last_i_cu;
inline PorLeira<std::int16_t> bak_sem_cod_cult;
inline PorLeira<std::string> bak_sem_nome;
inline PorLeira<std::int16_t> bak_sem_idade;
inline PorLeira<std::int16_t> bak_sem_check;

inline Momento data_hoje;     // o começo desta partida; não muda mais
inline Momento data_previsao; // igual a `data_hoje` quando não há previsão

inline std::string nome_banco = "\\hortas00.mdb";
inline std::int16_t num_banco = 0; // o algarismo do nome acima
inline bool primeira_carga = true;
inline bool data_por_gravar = false; // a semana nova envelheceu a horta e a data dela ainda não foi ao disco

inline std::int16_t unidade_cd = 0; // 0 a 5, índice de `letras_de_unidade`
inline std::string dir_media;       // "D:"
inline std::string dir_audio;       // "D:\audio\correto", ou caipira, ou ingles

inline bool som_ligado = false;    // "Voz do Hortelão"
inline bool musica_ligada = false; // "Trilha de Fundo"
inline std::string trilha_horta;
inline std::string trilha_age;
inline std::string trilha_sem;
inline std::string trilha_feira;
inline std::string som_atual; // o último som pedido

inline std::int16_t area_maxima = 100; // canteiros que o pedido pode ocupar
inline bool auto_abastecido = false;   // a família pediu alguma coisa

inline std::string msg_texto;     // a mensagem do próximo diálogo
inline bool resposta_sim = false; // a resposta do último

inline std::int16_t anim_acao = 0;    // o que `timer_` está animando
inline std::int16_t anim_quadros = 0; // quadros que faltam
inline std::int16_t ponteiro_salvo = 0;
inline std::int16_t cultura_teste = 0; // a cultura que `tem_leira_pronta` procura

inline std::string topico_help; // o tópico em que a ajuda abre
inline std::string tela_origem; // a tela a que a ajuda volta

} // namespace verdalia
