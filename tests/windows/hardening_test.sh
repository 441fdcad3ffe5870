#!/usr/bin/env bash
# The programs lie at a random place out of 64 bits, run no data, and have canaries on the stack;
# zel-cli.exe checks its copies.
set -uo pipefail
export LC_ALL=C # what is read of other programs is English, whatever the user speaks
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"

for program in "$cli_path" "${cli_path%-cli.exe}.exe"; do
  [[ -f $program ]] || continue
  x86_64-w64-mingw32-objdump -p "$program" >"$work/headers"
  for flag in DYNAMIC_BASE HIGH_ENTROPY_VA NX_COMPAT; do
    grep -q "$flag" "$work/headers" || complain "${program##*/}: no $flag"
  done
  x86_64-w64-mingw32-nm "$program" >"$work/names" 2>/dev/null
  grep -q __stack_chk_fail "$work/names" || complain "${program##*/}: no canaries"
done
x86_64-w64-mingw32-nm "$cli_path" >"$work/names" 2>/dev/null
grep -q ' __memcpy_chk$' "$work/names" || complain "zel-cli.exe: no checked copies"
[[ $failures -eq 0 ]]
