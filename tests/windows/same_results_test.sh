#!/usr/bin/env bash
# What is drawn and computed is the same as on Linux, to the byte: pictures of every example (a PDF
# but for its date), transcripts of drives, checks, tables, and a hundred thousand values.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"
# The same library compresses the pictures of both.
[[ $cli_path != */mingw-core/* ]] || linux_path=$root/build/asan-ubsan/bin/zel-cli
[[ -x $linux_path ]] || skip "there is no ${linux_path#"$root/"}"

# Wine's own services start with its first program, and complain where that one does: here one that
# waits for the end of the test.
mkfifo "$work/waiting"
"$root/scripts/wine.sh" "$cli_path" evaluate --batch <>"$work/waiting" >"$work/services" 2>&1 &
waiting=$!
trap 'kill "$waiting"; wait; rm -rf "$work"' EXIT

# both NAME INPUT ARGUMENT...: the same command by both programs, with their outputs in files.
both() {
  local name=$1 input=$2
  shift 2
  linux_cli "$@" <"$input" >"$work/linux" 2>"$work/linux.err"
  local status=$?
  cli "$@" <"$input" >"$work/windows" 2>"$work/windows.err"
  [[ $? -eq $status ]] || complain "$name: another status"
  same "$name" "$work/linux" "$work/windows"
  same "$name, complaints" "$work/linux.err" "$work/windows.err"
}

without_date() { sed -E 's/(CreationDate|ModDate) ?\([^)]*\)//; s/(Date>)[^<]*/\1/' "$1"; }

# picture EXAMPLE ENDING
picture() {
  linux_cli render "$1" -o "$work/linux.$2" --width 640 --height 480
  cli render "$1" -o "$work/windows.$2" --width 640 --height 480
  [[ -s $work/linux.$2 ]] || complain "no picture $2 of $1"
  without_date "$work/linux.$2" >"$work/linux"
  without_date "$work/windows.$2" >"$work/windows"
  same "$(basename "$1") as $2" "$work/linux" "$work/windows"
}

cat >"$work/commands" <<'END'
Recorrer
Recorrer_Adelante
Recorrer_Adelante
Recorrer_Adelante
Recorrer_Atras
Buscar_Max_Min
Buscar_Max_Min
Parar
Acercar
Derecha
Arriba
Izquierda
Abajo
Alejar
answer 2
answer 0,5
Calcular_Y
down left 3000 4000
up left 3000 4000
Recorrer_Adelante
CmdGrafSiguiente
Recorrer
Recorrer_Adelante
Buscar_Max_Min
CmdGrafAnterior
Zoom_a_Medida
down left 2000 2000
move left 5000 4000
move left 7000 6000
up left 7000 6000
Zoom_a_Medida
key 27
key 67
resize 500 400
Copiar_Grafico
lang EN
Buscar_Max_Min
Acercar
Alejar
down right 100 100
END
[[ $(wc -l <"$work/commands") -eq 40 ]] || complain "not forty commands"

for example in "$root"/examples/*.zel; do
  name=$(basename "$example")
  for ending in svg png pdf; do picture "$example" "$ending"; done
  both "check of $name" /dev/null check "$example"
  both "resaved $name" /dev/null resave "$example" -
  both "drive of $name" "$work/commands" drive "$example"
done
both "a table" /dev/null table "$root/examples/waves.zel" --graph a --from -50 --to 50 --step 0,037

# A hundred thousand values: each function and operator at places of every size.
awk 'BEGIN {
  split("sen(x) cos(x) tan(x) atn(x) exp(x/50) ln(abs(x)+1) log(abs(x)+1) raiz2(abs(x)) trpl(x) inv(x) " \
    "gamma(x/20) lngamma(abs(x)) x^2 x^3 x^7 x^0,5 x^(-3) 2^x (abs(x))! x\\7 x/3 sig(x) abs(x) " \
    "sen(x)*exp(x/90)+x^5/7", formulas, " ")
  srand(13)
  for (i = 0; i < 100000; ++i) {
    x = (rand() - 0.5) * 10 ^ int(rand() * 7)
    if (i % 5 == 0) x = int(x)
    if (i % 7 == 0) x = 15 * int(x)
    text = sprintf("%.15g", x)
    sub(/e/, "e", text)
    printf "%s\t%s\n", text, formulas[1 + i % 24]
  }
}' >"$work/values"
both "a hundred thousand values" "$work/values" evaluate --batch
paste "$work/linux" "$work/windows" | awk -F '\t' '$0 !~ /^ok/ {next} {++n; if ($1 FS $2 != $3 FS $4) ++d} END {print n " values, " d+0 " differ"}'

[[ $failures -eq 0 ]]
