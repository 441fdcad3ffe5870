#!/usr/bin/env bash
# scripts/oracle.sh [PAIRS] [SEED]: compares plan and reference on so many random evaluations (a
# hundred million if not said), on all processors. The same seed gives the same evaluations.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
. scripts/common.sh

pairs=${1:-100000000}
seed=${2:-1}
workers=$(nproc)
share=$(((pairs + workers - 1) / workers))

scripts/setup.sh build test || exit 1
build release engine_tests || exit 1

say "Comparing $pairs evaluations, seed $seed, in $workers processes"
started=$SECONDS
logs=$(mktemp -d)
trap 'rm -rf "$logs"' EXIT
running=()
for ((worker = 0; worker < workers; ++worker)); do
  ZEL_ORACLE_PAIRS=$share ZEL_ORACLE_SEED=$((seed * workers + worker)) \
    build/release/bin/engine_tests --gtest_brief=1 \
    --gtest_filter='Oracle.AgreesOnRandomSequences' >"$logs/$worker" 2>&1 &
  running+=($!)
done
failed=0
for ((worker = 0; worker < workers; ++worker)); do
  wait "${running[worker]}" && grep -q '\[  PASSED  \] 1 test' "$logs/$worker" && continue
  failed=$((failed + 1))
  cat "$logs/$worker"
done
if [[ $failed -gt 0 ]]; then
  echo "$failed of $workers processes found a difference"
  exit 1
fi
echo "$((share * workers)) evaluations agree (seed $seed, $((SECONDS - started)) s)"
