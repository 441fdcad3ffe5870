#!/usr/bin/env bash
# scripts/leaks.sh [FILTER]: a tour of all windows and dialogs (the tests of them, and a monkey of
# 10,000 events) under the address, leak and undefined behaviour sanitizers. tests/leaks.txt has the
# leaks that are not ours, each with its reason.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build test
scripts/locales.sh
build asan-gui forms_tests platform_tests
export QT_QPA_PLATFORM=offscreen LOCPATH=$PWD/build/locales ZEL_MONKEY_EVENTS=10000
export ASAN_OPTIONS=detect_leaks=1 LSAN_OPTIONS=suppressions=$PWD/tests/leaks.txt:print_suppressions=0
for program in forms_tests platform_tests; do
  "build/asan-gui/bin/$program" --gtest_brief=1 --gtest_filter="${1:-*}"
done
