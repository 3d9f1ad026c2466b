# A janela de verdade, num servidor X próprio: inclua com `. apoio.sh PROGRAMA` e use as funções abaixo.
# Coordenadas são pixels lógicos; a janela é posta no canto da tela, com 792 × 592.
set -eu
programa=$1
pasta=$(mktemp -d)
trap 'kill $jogo $compositor $servidor 2>/dev/null || true; rm -rf "$pasta"' EXIT
export XDG_DATA_HOME=$pasta XDG_RUNTIME_DIR=$pasta SDL_AUDIODRIVER=dummy
banco=$pasta/verdalia/hortas00.mdb
jogo= compositor= servidor=

# Com outra tela, se dada: `abre_servidor 800x600x16`.
abre_servidor() {
  exec 9>"$pasta/tela"
  Xvfb -displayfd 9 -screen 0 "${1:-1600x1200x24}" >"$pasta/servidor.log" 2>&1 &
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
  xdotool windowmove "$janela" 0 0 windowsize --sync "$janela" 792 592
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

# Espera o jogo acabar sozinho, em menos de `$2` décimos de segundo, e confere com que estado saiu.
espera_fim() {
  for _ in $(seq "${2:-100}"); do kill -0 "$jogo" 2>/dev/null || break; sleep 0.1; done
  kill -0 "$jogo" 2>/dev/null && { echo 'falha: o jogo não acabou' >&2; exit 1; }
  estado=0
  wait "$jogo" || estado=$?
  [ $estado -eq "${1:-0}" ] && return
  echo "falha: o jogo saiu com $estado" >&2
  cat "$pasta/jogo.log" >&2
  exit 1
}

# Da abertura à horta parada, com o mouse num canto; e o retrato dela, no arquivo dado.
retrata_a_horta() {
  clica 416 380 # "Ok"
  sleep 1
  clica 124 270 # a horta
  xdotool mousemove 4 588 sleep 2.2
  import -window root -crop 792x570+0+0 +repage "$1" # sem o ponteiro
}

# Dois retratos são o mesmo quadro, a menos do arredondamento das cores.
confere_retratos() {
  diferentes=$(compare -metric AE -fuzz 4% "$1" "$2" null: 2>&1) || true
  [ "$diferentes" = 0 ] && return
  echo "falha: $diferentes pontos diferentes" >&2
  cp "$1" "${TMPDIR:-/tmp}/verdalia-esperado.png"
  cp "$2" "${TMPDIR:-/tmp}/verdalia-falha.png"
  cat "$pasta/jogo.log" >&2
  exit 1
}

# Responde "Sim" ou "Não" à pergunta aberta, pela letra.
responde() { xdotool key "$1"; sleep 0.5; }
