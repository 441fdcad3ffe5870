#!/usr/bin/env bash
# scripts/monkey.sh [EVENTS [SEED [PRESET]]]: random clicks, keys, texts, documents, resizes and closes
# over all windows, a million without a word; the preset asan-gui runs them under the sanitizers. The
# last lines tell the longest wait of an event, how many waited for more than 50 ms for what, and how
# long starts of the program took, which are none of them. The status is 1 where an event of the preset
# release took more than 50 ms of the processor; by the clock other programs may have been in the way.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

preset=${3:-release}
scripts/setup.sh build
build "$preset" forms_tests
log=$(mktemp)
trap 'rm -f "$log"' EXIT
QT_QPA_PLATFORM=offscreen ZEL_MONKEY_EVENTS=${1:-1000000} ZEL_MONKEY_SEED=${2:-1} \
  "build/$preset/bin/forms_tests" --gtest_filter='Monkey.*' | tee "$log"
grep -E '^(monkey:|longest wait|waits )' "$log"
[[ $preset != release ]] || grep -q '^waits over 50\.0 ms: 0 by the processor' "$log" || {
  echo "Events waited for more than 50 ms."
  exit 1
}
