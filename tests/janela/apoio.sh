# A janela de verdade, num servidor X próprio: inclua com `. apoio.sh PROGRAMA` e use as funções abaixo.
# Coordenadas são pixels lógicos (792 × 592); a janela é posta no canto da tela.
set -eu
programa=$1
pasta=$(mktemp -d)
trap 'kill $jogo $servidor 2>/dev/null || true; rm -rf "$pasta"' EXIT
export XDG_DATA_HOME=$pasta XDG_RUNTIME_DIR=$pasta SDL_AUDIODRIVER=dummy
banco=$pasta/verdalia/hortas00.mdb
jogo= servidor=

abre_servidor() {
  exec 9>"$pasta/tela"
  Xvfb -displayfd 9 -screen 0 1600x1200x24 >"$pasta/servidor.log" 2>&1 &
  servidor=$!
  for _ in $(seq 100); do [ -s "$pasta/tela" ] && break; sleep 0.1; done
  DISPLAY=:$(cat "$pasta/tela")
  export DISPLAY
}

# Abre o jogo e espera a janela.
abre_jogo() {
  "$programa" >"$pasta/jogo.log" 2>&1 &
  jogo=$!
  for _ in $(seq 100); do
    janela=$(xdotool search --name '^Verdalia$' 2>/dev/null | tail -1) && [ -n "$janela" ] && break
    sleep 0.1
  done
  xdotool windowmove "$janela" 0 0
  sleep 0.5
}

clica() { xdotool mousemove "$1" "$2" sleep 0.05 click "${3:-1}"; sleep 0.3; }
arrasta() {
  xdotool mousemove "$1" "$2" sleep 0.05 mousedown 1 sleep 0.05 \
    mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) sleep 0.05 mousemove "$3" "$4" sleep 0.05 mouseup 1
  sleep 0.5
}

# Compara o que o banco diz com o esperado.
confere() {
  achado=$(sqlite3 "$banco" "$1")
  if [ "$achado" != "$2" ]; then
    printf 'falha: %s\n  esperado: %s\n  achado:   %s\n' "$1" "$2" "$achado" >&2
    import -window root "${TMPDIR:-/tmp}/verdalia-falha.png" || true
    cat "$pasta/jogo.log" >&2
    exit 1
  fi
}

# Espera o jogo acabar sozinho.
espera_fim() {
  for _ in $(seq 100); do kill -0 "$jogo" 2>/dev/null || return 0; sleep 0.1; done
  echo 'falha: o jogo não acabou' >&2
  exit 1
}

# Responde "Sim" ou "Não" à pergunta aberta, pela letra.
responde() { xdotool key "$1"; sleep 0.5; }
