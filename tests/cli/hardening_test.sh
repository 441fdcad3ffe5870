#!/usr/bin/env bash
# The programs are built so that a fault is hard to use: at a random place, with tables that nobody
# can write, a stack that nobody can run, canaries, checked copies and marked targets of jumps.
set -uo pipefail
cli=$1
[[ -x $cli ]] || { echo "there is no $cli"; exit 1; }
failures=0

nm -D "$cli" | grep __asan_init >/dev/null && exit 77 # the sanitizer has checks of its own

# expect PROGRAM WHAT PATTERN COMMAND...: the command says something that matches.
expect() {
  local program=$1 what=$2 pattern=$3 said
  shift 3
  said=$("$@" "$program" 2>&1)
  if ! grep -E "$pattern" <<<"$said" >/dev/null; then
    echo "${program##*/}: no $what"
    failures=$((failures + 1))
  fi
}

for program in "$cli" "${cli%-cli}"; do
  [[ -x $program ]] || continue # a build without windows
  expect "$program" "random place" 'Type: +DYN' readelf -hW
  expect "$program" "random place that the loader knows of" 'FLAGS_1.*PIE' readelf -dW
  expect "$program" "table that is read-only" GNU_RELRO readelf -lW
  expect "$program" "binding at the start" 'FLAGS.*NOW' readelf -dW
  expect "$program" "stack that cannot be run" 'GNU_STACK.* RW +0x' readelf -lW
  expect "$program" "canaries" __stack_chk_fail readelf --dyn-syms -W
  # Debug and coverage builds are not optimised, and cannot have these.
  if nm -C "$program" 2>/dev/null | grep -q ' __gcov_'; then continue; fi
  expect "$program" "checked copies" '__[a-z]+_chk' readelf --dyn-syms -W
  [[ $(uname -m) != x86_64 ]] ||
    expect "$program" "marked targets of jumps" endbr64 objdump -d --section=.text
done
exit "$failures"
