#!/usr/bin/env bash
# A write past the process's limit for the size of a file fails with a message and status 1, and
# leaves what was there; the reader of a pipe who goes away ends the program, as it ends any other.
# What cannot be said because a standard stream is closed is said nowhere else.
set -uo pipefail
cli=$1
document=$2/examples/all_kinds.zel
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
export LC_ALL=C.UTF-8
cd "$work" || exit 1
ulimit -c 0

fail() {
  echo "failed: $1, and said: $(cat err)"
  failures=$((failures + 1))
}

# limited ARGUMENTS...: the program with files of 1024 bytes at the most.
limited() { (ulimit -f 1 && exec env --default-signal=XFSZ "$cli" "$@" 2>err); }

# refused MESSAGE STATUS WHAT: what the last command ended with and said.
refused() {
  if [[ $2 -ne 1 ]] || ! grep -qx "$1" err; then fail "$3 ended with $2"; fi
}

printf older >there
cp there older
cannot_save='No se pudo salvar el archivo.'
for out in there new; do
  limited resave "$document" "$out"
  refused "$cannot_save" $? "resave to $out"
done
for kind in png svg pdf; do
  limited render "$document" -o "new.$kind"
  refused "$cannot_save" $? "render to $kind"
done
cmp there older || fail "the older file is another one"
[[ $(ls -A) == $'err\nolder\nthere' ]] || fail "files are left: $(ls -A)"

limited table "$document" --graph a --from 0 --to 1000 --step 1 >rows
refused 'No se pudo escribir la salida.' $? "a table"

mkfifo pipe
true <pipe &
exec 3>pipe
wait
env --default-signal=PIPE "$cli" compile x >&3 2>err
status=$?
[[ $status -eq 141 && ! -s err ]] || fail "a pipe without a reader ended it with $status"

"$cli" compile x >&- 2>err
refused 'No se pudo escribir la salida.' $? "output that is closed"
"$cli" evaluate --batch <&- >rows 2>err
refused 'No se pudo leer la entrada.' $? "input that is closed"

# While the complaint about a document comes, the next one's picture is a file that is open.
cp "$document" one.zel
cp "$document" two.zel
"$cli" render one.zel two.zel -o whole/ --format svg 2>err || fail "two pictures"
for _ in {1..12}; do
  "$cli" render gone1.zel one.zel gone2.zel two.zel -o drawn/ --format svg 2>&-
  status=$?
  [[ $status -eq 1 ]] || fail "with standard error closed it ended with $status"
  diff -r whole drawn >/dev/null || fail "with standard error closed other pictures are drawn"
done
exit "$failures"
