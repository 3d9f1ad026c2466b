// O laço: o único lugar do programa que espera. Entrega os eventos, dispara os temporizadores entre eles, pinta
// quando algo foi tratado e dorme até o próximo temporizador. Diálogos e sons esperados o rodam aninhado.
#pragma once
#include "platform/tela/hospedeiro.h"
#include "platform/tela/tela.h"

namespace verdalia {

// As perguntas da saída estão abertas: fechar a janela outra vez não acrescenta nada.
extern bool na_saida;

// Roda até `termina` ou até que não haja tela.
void laco();
// O jogo acaba: todos os laços aninhados voltam. Com falha quando foi ela que o impediu de seguir.
void termina(bool com_falha = false);
bool terminando();
// O jogo acaba, ou quem o joga fechou a janela: um diálogo que se fecha agora não foi respondido.
bool querem_sair();
// Algum `termina` foi com falha, desde `recomeca_laco`.
bool terminou_com_falha();
// Roda só a janela (sem clique nem temporizador) por `ms` milissegundos: a espera de um som.
void espera_som(int ms);
// Pinta agora o que está à vista.
void pinta_tudo();
// Desfaz tudo o que o laço guarda, para um novo começo nos testes.
void recomeca_laco();

} // namespace verdalia
