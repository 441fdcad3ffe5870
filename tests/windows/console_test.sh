#!/usr/bin/env bash
# zel-cli.exe takes every letter on its command line and passes bytes through its streams as they are.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"

document="$work/ondas_é_Ω_日本.zel"
cp "$root/examples/waves.zel" "$document"
says "letters of no code page" 'Ω+é+日' cli compile 'Ω+é+日'
cli resave "$document" "$work/copia_é_Ω.zel" || complain "a document under such a name"
same "its copy" "$document" "$work/copia_é_Ω.zel"
says "a message in UTF-8" \
  $'error\tError en Función \'ln\'\\nDetalle: El logaritmando debe ser numérico y mayor que cero.' \
  cli evaluate 'ln(x)' 0
says "a message in English" $'error\tCannot find operator.' cli --lang EN evaluate 'x)' 1

printf '1\tx+1\n\t7*x\n2\tx\x1a\n3\tx^2\r\n4\tx' >"$work/lines"
cli evaluate --batch <"$work/lines" >"$work/found"
printf 'ok\t2\nok\t7\nerror\tNo se encuentra el operador.\nok\t9\nok\t4\n' >"$work/expected"
same "lines with a Ctrl-Z" "$work/expected" "$work/found"

cli render "$document" -o "$work/Ω.svg"
[[ -s $work/Ω.svg ]] || complain "no picture"

cli check /no/such/document.zel >"$work/said" 2>&1
[[ $? -eq 1 ]] || complain "a path that begins with a stroke is no option: $(<"$work/said")"
cli check --nada >"$work/said" 2>&1
[[ $? -eq 2 ]] || complain "an option that does not exist"

[[ $failures -eq 0 ]]
