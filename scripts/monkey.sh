#!/usr/bin/env bash
# scripts/monkey.sh [EVENTS [SEED]]: random clicks, keys, resizes and closes over all windows, a
# million without a word.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build
build release forms_tests
QT_QPA_PLATFORM=offscreen ZEL_MONKEY_EVENTS=${1:-1000000} ZEL_MONKEY_SEED=${2:-1} \
  build/release/bin/forms_tests --gtest_filter='Monkey.*'
