#!/usr/bin/env bash
# scripts/long.sh [NAME...]: the long runs of what the program keeps, or those of the names, one after
# the other; together they take hours. Each counts as a test, and build/long/NAME.log has its output.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
. scripts/common.sh

# long_run NAME
long_run() {
  case $1 in
    analyse | saves | memory_rounds | leaks | monkey | coverage | mutants | numbers | oracle) "scripts/$1.sh" ;;
    fuzz) fuzz/run 600 ;;
    sanitized_monkey) scripts/monkey.sh 100000 1 asan-gui ;;
    *)
      say "There is no long run $1"
      return 2
      ;;
  esac
}

names=("$@")
[[ $# -gt 0 ]] || names=(analyse saves memory_rounds leaks monkey sanitized_monkey coverage mutants numbers oracle fuzz)
passed=0
failed=0
mkdir -p build/long
for name in "${names[@]}"; do
  started=$SECONDS
  if long_run "$name" >"build/long/$name.log" 2>&1; then
    passed=$((passed + 1))
    say "$name passed in $((SECONDS - started)) s"
  else
    failed=$((failed + 1))
    say "$name failed after $((SECONDS - started)) s; the end of build/long/$name.log:"
    tail -n 20 "build/long/$name.log"
  fi
done
echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]
