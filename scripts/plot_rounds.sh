#!/usr/bin/env bash
# scripts/plot_rounds.sh [ROUNDS]: opens, draws and closes the plot so often (10,000 times without a
# word); the memory in use stays within 5 %.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build
build release forms_tests
export QT_QPA_PLATFORM=offscreen
ZEL_ROUNDS=${1:-10000} build/release/bin/forms_tests --gtest_filter='Rounds.*'
