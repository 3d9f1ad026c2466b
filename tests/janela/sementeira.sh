#!/bin/sh
# A sementeira na janela de verdade: semear duas culturas arrastando, ser recusado numa leira ocupada, tirar uma muda,
# e sair pelo hortelão e pela porta gravando. Depois, o banco é lido por fora.
. "$(dirname "$0")/apoio.sh" "$1"
abre_servidor
abre_jogo
clica 416 380 # "Ok"
sleep 1
confere "select count(*) from sem" 0

clica 124 361 # a sementeira
sleep 2
arrasta 225 82 186 274  # alface em A 1
arrasta 175 133 626 426 # tomate em B 11
arrasta 247 133 626 426 # pimentão na do tomate: ocupada
xdotool key Return
sleep 0.5
arrasta 247 133 230 274 # pimentão em A 2
arrasta 230 274 274 274 # leira sobre leira: nada
arrasta 230 274 420 575 # e para fora
responde s
clica 60 55 # o hortelão volta ao centro
sleep 2.2
clica 124 74 # a porta
sleep 1.5
responde s
responde s
espera_fim # sem pedido e sem trato, não há pendências
confere "select indice, cod_cult, idade, \"check\" from sem order by indice" "0|1|0|0
21|14|0|0"
confere "select count(*) from st" 0
echo 'sementeira na janela: certo'
