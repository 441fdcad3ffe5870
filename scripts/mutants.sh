#!/usr/bin/env bash
# scripts/mutants.sh [COUNT [SEED [FOLDER...]]]: makes COUNT single faults (80 without a word) in each
# folder (numbers, engine, graphs, files, plot), one at a time, and runs the folder's tests. Fails
# where less than 90 % of a folder's faults are found, or where one that is not found is not in
# tests/survivors.txt with its reason. What tests/equivalents.txt lists is no fault, since nothing can
# tell it from the program: it does not count, but is tried, and must not be found. A run that was
# stopped goes on where it was; what was not found is tried again. scripts/mutations.py says what
# faults there are.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

read -r -a folders <<<"${*:3}"
[[ ${#folders[@]} -gt 0 ]] || folders=(numbers engine graphs files plot)
scripts/setup.sh build test
scripts/locales.sh
build mutants "${folders[@]/%/_tests}"
exec python3 -B scripts/mutants.py "${1:-80}" "${2:-1}" "${folders[@]}"
