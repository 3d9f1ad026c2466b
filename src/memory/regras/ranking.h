// O ranking do jogo da memória: os cinco melhores tempos e os cinco com menos tentativas, no banco "\gm.mdb".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace verdalia {

inline constexpr std::int16_t sem_lugar = 99;
inline constexpr int lugares_no_ranking = 5;

inline std::string tamanho_jogo = "F"; // o `peq_gra` em uso
inline std::string tipo_tempo = "1";   // os valores de `tipo`
inline std::string tipo_cliques = "2";
inline std::string nome_jogador;             // o que se escreveu em `mem_ok`
inline std::int16_t pos_tempo = sem_lugar;   // 1 a 5: o lugar do último jogo; 0: o ranking estava vazio, e vale 1;
inline std::int16_t pos_cliques = sem_lugar; // `sem_lugar`: nenhum

// Uma linha da tabela `gm`: um lugar de um ranking.
struct LinhaDoRanking {
    std::string peq_gra; // tamanho do jogo
    std::string tipo;
    std::string valor; // cinco caracteres, com zeros à esquerda: "01:05" ou "00042"
    std::string nome;  // até 20 letras
    std::string dta;   // "04/03/26"
};

// A tabela `gm` como a última leitura a achou, em ordem crescente de `peq_gra`, `tipo` e `valor`; de iguais, o mais
// antigo vem antes. Todas as operações lançam ErroBanco, e então nada muda, nem aqui nem no disco.
struct ControleDeDados {
    std::vector<LinhaDoRanking> linhas;

    void Refresh();
    void grava(std::vector<LinhaDoRanking> novas); // a tabela inteira, já em ordem
};
inline ControleDeDados Data1;

// Deixa o banco pronto: criado quando falta, posto de lado quando danificado, com um aviso em `avisos_do_banco`.
void prepara_ranking();

// O jogo entra no ranking? Acertam `pos_tempo` e `pos_cliques`. Um resultado igual a outro não o vence.
bool bate_tempo(const std::string& tempo);     // como em `Lbl_timer`: "1:05"
bool bate_cliques(const std::string& cliques); // como em `lbl_contador`: "42"

// Guardam o resultado de `nome_jogador`, com o dia de hoje, e deixam só os cinco melhores.
void grava_tempo(const std::string& tempo);
void grava_cliques(const std::string& cliques);

// Apaga os dois rankings de `tamanho_jogo`.
void zera_ranking();

// O número no começo de um texto; 0 quando não há.
long numero_do_valor(const std::string& valor);

} // namespace verdalia
