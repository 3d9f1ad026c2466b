#!/bin/sh
# Sem ambiente gráfico, o jogo diz por que não abre e sai com 1, sem criar nada na pasta do jogador.
set -eu
pasta=$(mktemp -d)
trap 'rm -rf "$pasta"' EXIT
rc=0
env -u DISPLAY -u WAYLAND_DISPLAY XDG_DATA_HOME="$pasta/dados" XDG_RUNTIME_DIR="$pasta" \
  timeout 20 "$1" 2>"$pasta/erro" || rc=$?
if [ $rc -ne 1 ] || ! grep -q 'Não há tela onde abrir o jogo' "$pasta/erro" || [ -e "$pasta/dados" ]; then
  echo "falha: saiu com $rc" >&2
  cat "$pasta/erro" >&2
  exit 1
fi
