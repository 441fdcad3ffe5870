#!/usr/bin/env bash
# scripts/numbers.sh [COUNT [SEED]]: compares each elementary function with MPFR at so many random
# arguments (a hundred million if not said), on all processors. The same seed gives the same ones; a
# run that was ended is taken up.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
. scripts/common.sh
. scripts/rounds.sh

count=${1:-100000000}
seed=${2:-1}

scripts/setup.sh build || exit 1
build release numbers_tests || exit 1
say "Comparing eight functions at $count arguments each, seed $seed"
rounds build/release/bin/numbers_tests 'Of/NearestDouble.*:NearestDoubleOfAPower.*' 9 \
  ZEL_NUMBERS "$count" 250000 "$seed"
