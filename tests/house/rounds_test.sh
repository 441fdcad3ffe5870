#!/usr/bin/env bash
# Random tests in rounds: each has a seed of its own, what has passed is not run again, and a round
# that fails, or runs nothing, is told.
set -uo pipefail
root=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
. "$root/scripts/rounds.sh"
failures=0

complain() {
  echo "$1"
  failures=$((failures + 1))
}

# program LAST_LINE: a test program that notes its seeds.
program() {
  cat >"$work/program" <<END
#!/bin/bash
echo "\$ZEL_SAMPLE_SEED \$ZEL_SAMPLE_COUNT" >>"$work/seeds"
echo "$1"
END
  chmod +x "$work/program"
  rm -f "$work/seeds"
}

program '[  PASSED  ] 2 tests.'
said=$(rounds "$work/program" 'Some.*' 2 ZEL_SAMPLE 950 100 3) || complain "good rounds fail: $said"
[[ $said == "1000 values passed (seed 3, 10 rounds of 100)" ]] || complain "it says: $said"
[[ $(sort -n seeds | paste -sd' ') == "30000 100 30001 100 "*" 30009 100" ]] || complain "other seeds"
said=$(rounds "$work/program" 'Some.*' 2 ZEL_SAMPLE 1200 100 3)
[[ $said == "1200 values passed"* && $(wc -l <seeds) -eq 12 ]] || complain "rounds are run twice: $said"

for last in '[  PASSED  ] 0 tests.' '[  FAILED  ] 1 test'; do
  program "$last"
  if said=$(rounds "$work/program" 'Some.*' 2 ZEL_SAMPLE 200 100 1); then
    complain "this passes: $last"
  fi
  [[ $said == *"$last"*"0 values passed"* ]] || complain "it says: $said"
done
[[ $failures -eq 0 ]]
