#!/bin/sh
# O jogo num compositor Wayland, sem passar pelo X: abre, ouve o mouse, pinta o mesmo que no X e acaba quando se manda.
. "$(dirname "$0")/apoio.sh" "$1"
abre_servidor
abre_jogo
retrata_a_horta "$pasta/no_x.png"
kill -TERM "$jogo"
espera_fim

# O compositor só existe dentro do servidor X da prova, que lhe dá mouse; um sem mouse algum derruba a SDL.
weston --no-config --backend=x11-backend.so --use-pixman --width=792 --height=592 --shell=kiosk-shell.so \
  --socket=compositor >"$pasta/compositor.log" 2>&1 &
compositor=$!
for _ in $(seq 100); do [ -S "$pasta/compositor" ] && break; sleep 0.1; done
env -u DISPLAY WAYLAND_DISPLAY=compositor SDL_VIDEODRIVER=wayland "$programa" >"$pasta/jogo.log" 2>&1 &
jogo=$!
sleep 3
retrata_a_horta "$pasta/no_wayland.png"
confere_retratos "$pasta/no_x.png" "$pasta/no_wayland.png"
kill -TERM "$jogo"
espera_fim 0 30
if grep '^verdalia' "$pasta/jogo.log" >&2; then exit 1; fi
echo 'Wayland: certo'
