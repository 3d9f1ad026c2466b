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
clica 151 136                 # nabo
clica 151 260                 # rabanete
clica 586 384; clica 586 384  # cenoura, duas vezes
clica 586 384 3               # e uma a menos
clica 720 490                 # "Ir para a horta"
sleep 2
arrasta 255 58 220 185  # cenoura em A 1
arrasta 175 104 640 575 # nabo no fundo da tela: nada
arrasta 175 104 598 563 # nabo em J 10
arrasta 215 104 220 227 # rabanete em B 1: era o que faltava
xdotool key Return sleep 0.5 # "Parabéns"
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
99|11|0"
confere "select group_concat(indice || ':' || seq, ' ') from (select * from seq where seq > 0 order by indice)" \
  "9:1 11:1 12:1"
echo 'partida na janela: certo'
