#!/bin/sh
# O jogo da memória na janela de verdade: opções, um jogo inteiro, um nome com acentos, o ranking e a volta ao centro.
# As cartas saem ao acaso: viram-se todas uma vez, e o retrato de cada uma diz qual é o par dela.
. "$(dirname "$0")/apoio.sh" "$1"
export SDL_AUDIODRIVER=nenhum # sem aparelho, os sons do jogo não se esperam
abre_servidor
abre_jogo
clica 416 380 # "Ok"
sleep 1
clica 114 555 # "Opções"
sleep 0.5
clica 128 192 # "Voz do Hortelão"
clica 622 381 # "Jogo"
sleep 1

# Vira a carta $1, de 0 a 35, e espera que se pinte.
vira() { xdotool mousemove $((76 + 87 * ($1 % 6))) $((86 + 87 * ($1 / 6))) sleep 0.05 click 1 sleep 0.2; }
# O meio da carta: uma soma dos pontos, e se ela já saiu da mesa (é tudo de uma cor).
meio() {
  n=$1
  shift
  import -window root -crop "56x56+$((48 + 87 * (n % 6)))+$((58 + 87 * (n / 6)))" +repage "$@"
}
retrata() { meio "$1" rgb:- | cksum | cut -d' ' -f1; }
saiu() { [ "$(meio "$1" -format '%k' info:)" = 1 ]; }

i=0
tentativas=0
while [ $i -lt 36 ]; do
  vira $i
  a=$(retrata $i)
  vira $((i + 1))
  tentativas=$((tentativas + 1))
  sleep 0.6 # um par sai depois de piscar
  if ! saiu $i; then
    echo "$a $i" >>"$pasta/cartas"
    echo "$(retrata $((i + 1))) $((i + 1))" >>"$pasta/cartas"
  fi
  i=$((i + 2))
done
sort "$pasta/cartas" | cut -d' ' -f2 | while read -r carta; do
  read -r par
  vira "$carta"
  vira "$par"
  sleep 0.7
done
tentativas=$((tentativas + $(wc -l <"$pasta/cartas") / 2))
sleep 1.5

xdotool type --delay 80 'José Conceição'
sleep 0.3
xdotool key Return sleep 0.5
banco=$pasta/verdalia/gm.mdb
confere "select group_concat(tipo || nome, ' ') from gm" "1José Conceição 2José Conceição"
confere "select valor from gm where tipo = '2'" "$(printf %05d $tentativas)"
confere "select count(*) from gm where valor between '00:20' and '02:00'" 1
sleep 1.4     # o nome pisca
clica 655 527 # "Retornar" do ranking
clica 668 454 # do jogo
clica 622 500 # das opções
clica 124 74  # a porta, que só há no centro
sleep 2.5
responde s
sleep 0.5
responde n
espera_fim
confere "select count(*) from gm" 2
echo 'jogo da memória na janela: certo'
