#!/bin/sh
# O jogo da memória na janela de verdade: opções, um jogo inteiro, um nome com acentos, o ranking e a volta ao centro.
# As cartas saem ao acaso: viram-se aos pares, e conhece-se cada uma pelo retrato do que mostra.
. "$(dirname "$0")/apoio.sh" "$1"
gm=$pasta/verdalia/gm.mdb
abre_servidor
abre_jogo
clica 416 380 # "Ok"
sleep 1
clica 114 555 # "Opções"
clica 622 381 # "Jogo"
sleep 1

# Vira a carta $1 (0 a 35), e só volta quando o som dela acabou.
vira() { xdotool mousemove $((76 + 87 * ($1 % 6))) $((86 + 87 * ($1 / 6))) sleep 0.05 click 1 sleep 0.55; }
# O que a carta $1 mostra, sem a borda: uma soma dos pontos.
retrato() {
  import -window root -crop "56x56+$((48 + 87 * ($1 % 6)))+$((58 + 87 * ($1 / 6)))" +repage rgb:- | cksum | cut -d' ' -f1
}

# Primeiro conhecem-se todas, de duas em duas; os pares que saem por sorte não se viram mais.
i=0
achados=' '
: >"$pasta/cartas"
while [ $i -lt 36 ]; do
  vira $i
  a=$(retrato $i)
  vira $((i + 1))
  b=$(retrato $((i + 1)))
  # Um par que pisca pode ter sido retratado apagado: o primeiro retrato é o que vale.
  sleep 0.6
  vazia=$(retrato $i)
  if [ "$a" != "$vazia" ] && [ "$a" != "$b" ] && [ "$(retrato $((i + 1)))" != "$b" ]; then
    achados="$achados$i $((i + 1)) "
  elif [ "$a" != "$vazia" ]; then
    achados="$achados$i $((i + 1)) "
  else
    echo "$a $i" >>"$pasta/cartas"
    echo "$b $((i + 1))" >>"$pasta/cartas"
  fi
  i=$((i + 2))
done
