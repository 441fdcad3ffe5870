#!/usr/bin/env bash
# A standard input that cannot be read is a failed job with a message.
set -uo pipefail
cli=$1
document=$2/examples/waves.zel
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
export LC_ALL=C.UTF-8

# refused NAME MESSAGE STATUS: what the last command said and ended with.
refused() {
  if [[ $3 -ne 1 ]] || ! grep -qx "$2" "$work/err"; then
    echo "$1 ended with $3 and said: $(cat "$work/err")"
    failures=$((failures + 1))
  fi
}

# unreadable MESSAGE ARGUMENTS...: the command with an input that is closed, a folder, or for writing.
unreadable() {
  local message=$1
  shift
  "$cli" "$@" <&- >/dev/null 2>"$work/err"
  refused "$* without input" "$message" $?
  "$cli" "$@" </ >/dev/null 2>"$work/err"
  refused "$* with a folder" "$message" $?
  "$cli" "$@" 0>"$work/for_writing" >/dev/null 2>"$work/err"
  refused "$* with an input for writing" "$message" $?
}

cannot_read='No se pudo leer la entrada.'
cannot_open='Error: No se pudo abrir el archivo.'
unreadable "$cannot_read" evaluate --batch
unreadable "$cannot_read" drive "$document"
unreadable "$cannot_open" check -
unreadable "$cannot_open" resave - -
unreadable "$cannot_open" table - --graph a --from 0 --to 1 --step 1
unreadable "$cannot_open" render - -o -
unreadable "$cannot_open" evaluate x 1 --document -
unreadable 'Cannot read the input.' --lang EN evaluate --batch
exit "$failures"
