#!/usr/bin/env bash
# scripts/oracle.sh [COUNT [SEED]]: compares plan and reference on so many random evaluations (a
# hundred million if not said), on all processors. The same seed gives the same ones; a run that was
# ended is taken up.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
. scripts/common.sh
. scripts/rounds.sh

count=${1:-100000000}
seed=${2:-1}

scripts/setup.sh build || exit 1
build release engine_tests || exit 1
say "Comparing $count evaluations, seed $seed"
rounds build/release/bin/engine_tests Oracle.AgreesOnRandomSequences 1 \
  ZEL_ORACLE "$count" 1000000 "$seed"
