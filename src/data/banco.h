// O banco da partida, "\hortas00.mdb": o que fica guardado da horta de uma vez para outra.
#pragma once

#include "platform/base/dao.h"
#include "platform/base/relogio.h"

#include <functional>
#include <string>
#include <vector>

namespace verdalia {

// Frases para o jogador sobre o que se achou de errado no banco. Quem as mostra as tira daqui.
inline std::vector<std::string> avisos_do_banco;

// Deixa `nome_banco` pronto para usar, antes de qualquer leitura. O que falta é criado; um arquivo danificado, de outro
// formato ou de versão mais nova é posto de lado com a data no nome, com um aviso. A cópia mais nova que serve toma o
// lugar dele se `aceita_copia`, que recebe a pergunta por extenso, o diz; senão as cópias são postas de lado também, e
// a horta começa vazia. Lança ErroBanco, sem mexer em nada, quando o arquivo não pode ser lido ou gravado por outra
// razão.
void prepara_banco(const std::function<bool(const std::string& pergunta)>& aceita_copia = {});

// Guarda ao lado do banco uma cópia dele como está gravado, no lugar da que já houver desta semana; ficam as das
// últimas oito semanas jogadas. O que a impede não é dito: continua a cópia que havia.
void guarda_copia();

// Leem o banco para as tabelas do estado; pedem `carrega_tabelas` antes. Um registro com valor fora do lugar não entra
// e deixa um aviso. Verdadeiro quando há alguma cultura (le_canteiros lê também as leiras).
bool le_canteiros();
bool le_leiras();
void le_pedido();

// Escrevem as tabelas; grava_canteiros escreve as três. Durante uma previsão gravam o estado verdadeiro, não o
// previsto. Lançam ErroBanco, e então a tabela fica como estava.
void grava_canteiros();
void grava_leiras();
void grava_pedido();

// O campo `cd` da semana, de e para `unidade_cd`; um valor fora de 0 a 5 não é lido.
void le_cd();
void grava_cd();

// O dia em que as semanas foram postas em dia pela última vez; sem data que se entenda, o de hoje.
Dia le_data_semana();

// Esvazia uma tabela do banco e deixa `escreve` enchê-la de novo, numa transação. Lança ErroBanco, e então a tabela
// fica como estava.
void reescreve(const std::string& tabela, const std::function<void(Recordset&)>& escreve);

// Grava a horta inteira e a data numa só transação: fica tudo ou nada.
void grava_semana(Dia dia);

} // namespace verdalia
