#!/usr/bin/env bash
# scripts/coverage.sh: which lines and branches of the folders up to app their tests run. Fails where
# a line does not run and tests/uncovered.txt does not say why, or where less than 95 % of a folder's
# branches run; build/coverage/branches.txt lists those that do not.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

folders=(base numbers pictures engine graphs files plot app)
tests=("${folders[@]}" memory)
bin=build/coverage/bin
profiles=build/coverage/profiles

# run_tests FOLDER: one program for all of its tests, which is quicker than one for each. The counts are
# kept in the file while it runs (%c), for children that end in the middle.
run_tests() {
  local log=build/coverage/$1.log
  LLVM_PROFILE_FILE=%c$profiles/$1-%p.profraw "$bin/$1_tests" --gtest_brief=1 >"$log" 2>&1 || {
    cat "$log"
    return 1
  }
}

scripts/setup.sh build test coverage
scripts/locales.sh
build coverage "${tests[@]/%/_tests}"

say "Testing coverage"
export LOCPATH=$PWD/build/locales bin profiles
export -f run_tests
rm -rf "$profiles"
printf '%s\n' "${tests[@]}" | xargs -P "$(nproc)" -I{} bash -c 'run_tests {}' || {
  say "Some tests failed"
  exit 1
}

programs=("${tests[@]/#/$bin/}")
programs=("${programs[@]/%/_tests}")
llvm-profdata-14 merge --sparse "$profiles"/*.profraw -o build/coverage/all.profdata
llvm-cov-14 export "${programs[0]}" "${programs[@]/#/--object=}" \
  --instr-profile build/coverage/all.profdata --ignore-filename-regex='^/usr/|/(tests|cli)/' \
  2>build/coverage/export.log |
  python3 -B scripts/coverage_report.py tests/uncovered.txt
