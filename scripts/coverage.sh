#!/usr/bin/env bash
# Runs the tests with line counting: the sum on the terminal, the lines in build/coverage/report/.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build test coverage
scripts/locales.sh
build coverage
find build/coverage -name '*.gcda' -delete
say "Testing coverage"
ctest --preset coverage --parallel "$(nproc)" --progress || say "Some tests failed"
mkdir -p build/coverage/report
gcovr --root . --filter src/ --exclude-unreachable-branches --exclude-throw-branches \
  --gcov-ignore-parse-errors -j "$(nproc)" --html-details build/coverage/report/index.html \
  --txt --print-summary build/coverage
say "Line by line: build/coverage/report/index.html"
