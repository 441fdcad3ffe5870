#!/usr/bin/env bash
# The programs are built so that a fault is hard to use: at a random place, with tables that nobody
# can write, a stack that nobody can run, canaries, checked copies and marked targets of jumps.
set -uo pipefail
export LC_ALL=C # what is read of other programs is English, whatever the user speaks
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

# start_of FUNCTION PROGRAM: its first instruction. What the compiler's own start files bring has
# marks without the option too.
start_of() {
  objdump -d --no-show-raw-insn --disassemble="$1" "$2" | grep -A 1 "<$1>:\$" | tail -n 1
}

# Whether calls of zel-cli can be checked: not without optimisation, in debug builds and in those
# that count for gcov, and not by clang, for which the C library's headers leave them as they are.
checks_copies() {
  ! grep -qs '^CMAKE_BUILD_TYPE:[A-Z]*=Debug$' "$(dirname "$cli")/../CMakeCache.txt" &&
    ! grep -q ' __gcov_' <<<"$(nm "$cli" 2>&1)" &&
    ! grep -q 'clang version' <<<"$(readelf -p .comment "$cli")"
}

for program in "$cli" "${cli%-cli}"; do
  [[ -x $program ]] || continue # a build without windows
  expect "$program" "random place" 'Type: +DYN' readelf -hW
  expect "$program" "random place that the loader knows of" 'FLAGS_1.*PIE' readelf -dW
  expect "$program" "table that is read-only" GNU_RELRO readelf -lW
  expect "$program" "binding at the start" 'FLAGS.*NOW' readelf -dW
  expect "$program" "stack that cannot be run" 'GNU_STACK.* RW +0x' readelf -lW
  expect "$program" "canaries" __stack_chk_fail readelf --dyn-syms -W
  [[ $(uname -m) != x86_64 ]] ||
    expect "$program" "marked target of jumps at the start of main" '^ +[0-9a-f]+:\s+endbr64' start_of main
done
# zel itself calls nothing that could be checked.
if checks_copies; then
  expect "$cli" "checked copies" ' __v?snprintf_chk' readelf --dyn-syms -W
fi
exit "$failures"
