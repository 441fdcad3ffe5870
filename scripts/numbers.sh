#!/usr/bin/env bash
# scripts/numbers.sh [COUNT] [SEED]: compares each elementary function with MPFR at so many random
# arguments (a hundred million if not said), on all processors. The same seed gives the same ones.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
. scripts/common.sh

count=${1:-100000000}
seed=${2:-1}
workers=$(nproc)
share=$(((count + workers - 1) / workers))

scripts/setup.sh build test || exit 1
build release numbers_tests || exit 1

say "Comparing eight functions at $count arguments each, seed $seed, in $workers processes"
started=$SECONDS
logs=$(mktemp -d)
trap 'rm -rf "$logs"' EXIT
running=()
for ((worker = 0; worker < workers; ++worker)); do
  ZEL_NUMBERS_COUNT=$share ZEL_NUMBERS_SEED=$((seed * workers + worker)) \
    build/release/bin/numbers_tests --gtest_brief=1 --gtest_filter='Of/NearestDouble.*:NearestDoubleOfAPower.*' \
    >"$logs/$worker" 2>&1 &
  running+=($!)
done
failed=0
for ((worker = 0; worker < workers; ++worker)); do
  wait "${running[worker]}" && grep -q '\[  PASSED  \]' "$logs/$worker" && continue
  failed=$((failed + 1))
  cat "$logs/$worker"
done
if [[ $failed -gt 0 ]]; then
  echo "$failed of $workers processes found a wrong rounding"
  exit 1
fi
echo "$((share * workers)) values of each function are the nearest doubles" \
  "(seed $seed, $((SECONDS - started)) s)"
