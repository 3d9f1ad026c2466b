#!/bin/sh
# Uma partida na janela de verdade: pedir na feira, plantar arrastando, excluir, sair pela porta gravando; e uma
# segunda cópia que se recusa a abrir. Depois, o banco é lido por fora.
. "$(dirname "$0")/apoio.sh" "$1"
abre_servidor
abre_jogo
clica 416 380 # "Ok"
sleep 1
confere "select count(*) from seq" 21

# A segunda cópia avisa e termina quando se fecha o aviso.
"$programa" >"$pasta/segunda.log" 2>&1 &
segunda=$!
sleep 1
xdotool key Return
wait $segunda && { echo 'falha: a segunda cópia devia recusar-se a abrir' >&2; exit 1; }
grep -q 'já está aberto' "$pasta/segunda.log"
xdotool windowmove "$janela" 0 0 windowfocus "$janela"

clica 124 180 # a feira
sleep 2
clica 64 136                  # três verduras da fileira de cima
clica 151 136
clica 238 136; clica 238 136; clica 238 136 3
clica 720 490 # "Ir para a horta"
sleep 2
arrasta 255 58 220 185 # cenoura em A 1
arrasta 176 58 640 575 # quiabo no fundo: nada
arrasta 176 58 598 563 # quiabo em J 10
arrasta 296 58 220 227 # beterraba em B 1
arrasta 220 227 660 300 # e para fora
responde s
clica 58 52 # o hortelão volta ao centro
sleep 2.2
clica 124 74 # a porta
sleep 1.5
responde s
responde s
xdotool key Return # "Pendências"
espera_fim
confere "select indice, cod_cult, idade from st order by indice" "0|9|0
99|7|0"
confere "select sum(seq) from seq" 3
confere "select count(*) from seq where seq = 1" 3
echo 'partida na janela: certo'
