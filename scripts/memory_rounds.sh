#!/usr/bin/env bash
# scripts/memory_rounds.sh [ROUNDS [DIALOGS]]: opens, draws and closes the plot so often (10,000 times
# without a word), and shows so many file dialogs (1,000); the memory in use stays within 5 %.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build
build release forms_tests platform_tests
export QT_QPA_PLATFORM=offscreen
ZEL_ROUNDS=${1:-10000} build/release/bin/forms_tests --gtest_filter='Rounds.*'
ZEL_ROUNDS=${2:-1000} build/release/bin/platform_tests --gtest_filter='FileDialogRounds.*'
