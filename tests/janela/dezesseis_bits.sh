#!/bin/sh
# Numa tela pequena de 16 bits por ponto, a janela cabe e mostra o mesmo que na de 24.
. "$(dirname "$0")/apoio.sh" "$1"
abre_servidor
abre_jogo
retrata_a_horta "$pasta/de_24.png"
kill -TERM "$jogo"
espera_fim
kill "$servidor"

abre_servidor 800x600x16
abre_jogo
retrata_a_horta "$pasta/de_16.png"
confere_retratos "$pasta/de_24.png" "$pasta/de_16.png"
kill -TERM "$jogo"
espera_fim
echo 'dezesseis bits: certo'
