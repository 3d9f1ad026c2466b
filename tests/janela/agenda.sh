#!/bin/sh
# A agenda na janela de verdade: uma horta com trabalho, o planeta, a volta a hoje e a impressão; o que sai no papel é o
# que a agenda listou.
. "$(dirname "$0")/apoio.sh" "$1"
mkdir "$pasta/bin"
printf '#!/bin/sh\ncp "$1" "%s/impresso.pdf"\n' "$pasta" >"$pasta/bin/lp"
chmod +x "$pasta/bin/lp"
PATH=$pasta/bin:$PATH
abre_servidor
abre_jogo # só para que o banco exista
kill -TERM $jogo
espera_fim
sqlite3 "$banco" "insert into st values (0,1,2,0,-1,-1), (9,21,3,0,-1,-1), (55,0,0,0,9,1), (99,1,6,0,-1,-1);
  insert into sem values (0,5,2,0), (21,13,4,0); update seq set seq = 2 where indice = 9"

abre_jogo
clica 416 380 # "Ok"
sleep 1
clica 124 450 # a agenda
sleep 2
hoje="0|0|Plantio| 2m|Cenoura (30 / m2)
0|2|Limpeza|A 1|Alface
0|3|Desbaste|A 10|Pepino
0|5|Colheita Parcial|J 10|Alface
1|2|Limpeza|A 1|Couve
1|3|Desbaste|B 11|Cheiro Verde"
lista="select hs, ord, trato, aonde, cultura from relat order by hs, ord, rowid"
confere "$lista" "$hoje"
semana=$(sqlite3 "$banco" "select distinct sem from relat")
clica 67 448 # o planeta
confere "select distinct sem from relat" $((semana + 1))
confere "select count(*) from relat where trato = 'Colheita Final'" 1
clica 67 524 # o calendário volta a hoje
sleep 1
confere "select distinct sem from relat" "$semana"
clica 70 289 # a impressora
sleep 1.2
responde s
sleep 1
[ -s "$pasta/impresso.pdf" ] || { echo 'falha: nada chegou à impressora' >&2; exit 1; }
guardado=$(ls "$pasta"/verdalia/relatorios/semana*.pdf)
pdftotext -layout "$guardado" "$pasta/papel.txt"
sqlite3 -separator ' ' "$banco" "select trim(aonde), cultura from relat" | while read -r aonde; do
  lugar=${aonde%% [A-Z][a-zA-Zé]*}
  grep -q "$lugar" "$pasta/papel.txt" || { echo "falha: falta no papel: $aonde" >&2; cat "$pasta/papel.txt" >&2; exit 1; }
done
for cultura in $(sqlite3 "$banco" "select distinct substr(cultura, 1, 6) from relat"); do
  grep -q "$cultura" "$pasta/papel.txt" || { echo "falha: falta no papel: $cultura" >&2; exit 1; }
done
grep -q 'Livre\|Cenoura' "$pasta/papel.txt"
xdotool key Return # o aviso de onde ficou
sleep 0.3
clica 70 80 # o hortelão volta ao centro
sleep 2.2
kill -TERM $jogo
espera_fim
echo 'agenda na janela: certo'
