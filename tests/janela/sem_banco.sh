#!/bin/sh
# O jogo que não pode começar por causa do seu banco diz por quê e sai com 1, na abertura ou na primeira carga.
. "$(dirname "$0")/apoio.sh" "$1"
abre_servidor
mkdir -p "$(dirname "$banco")"
ln -s "$banco" "$banco" # um atalho para si mesmo não se abre
abre_jogo
xdotool key Return
espera_fim 1

rm "$banco"
abre_jogo
rm "$banco"
mkdir "$banco"
xdotool key Return # "Ok"
for _ in 1 2 3; do sleep 0.7; xdotool key Return; done # a unidade que não se grava nem se lê, e a horta
espera_fim 1
echo 'sem banco: certo'
