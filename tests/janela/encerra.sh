#!/bin/sh
# O sistema manda acabar (fim da sessão, desligamento, terminal fechado, servidor X que cai): o que se plantou é gravado
# sem pergunta e o jogo sai logo, em repouso ou com uma pergunta aberta, e em repouso não gasta nada.
. "$(dirname "$0")/apoio.sh" "$1"
abre_servidor
# Da pergunta da unidade à horta, com o pedido da primeira vez.
vai_a_horta() {
  abre_jogo
  clica 416 380 # "Ok"
  sleep 1
  clica 124 270 # a horta
  sleep 2
}
# O que o laço já gastou; o som aberto tem o seu próprio fio.
tiques() { awk '{ print $14 + $15 }' "/proc/$jogo/task/$jogo/stat"; }

abre_jogo
clica 416 380
sleep 1
clica 124 180                # a feira
sleep 2
clica 586 384; clica 586 384 # cenoura, duas vezes
clica 720 490                # "Ir para a horta"
sleep 2
arrasta 255 58 220 185 # cenoura em A 1
sleep 2
antes=$(tiques)
sleep 5
gastou=$(($(tiques) - antes))
[ $gastou -le 1 ] || { echo "falha: gastou $gastou centésimos de segundo em repouso" >&2; exit 1; }
kill -TERM "$jogo"
espera_fim 0 20
confere "select indice, cod_cult from st" "0|9"

vai_a_horta
arrasta 255 58 262 185 # cenoura em A 2
arrasta 262 185 660 300 # e para fora: pergunta
kill -HUP "$jogo"
espera_fim 0 20
confere "select group_concat(indice) from (select * from st order by indice)" "0,1"

vai_a_horta
arrasta 255 58 304 185 # cenoura em A 3
kill -KILL "$servidor"
espera_fim 1 30 # quem acaba com o programa é a biblioteca do X
confere "select group_concat(indice) from (select * from st order by indice)" "0,1,2"
echo 'ordem de acabar: certo'
