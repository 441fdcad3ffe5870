#!/usr/bin/env bash
# scripts/analyse.sh [--most COUNT] [REGEX]: cppcheck over src, and clang-tidy over the sources whose
# path below the project matches (all of src without a word). What has passed is not looked at again
# until it changes; with --most clang-tidy looks only at so many of the others, those that were
# changed last of those that are compiled like the latest.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

most=()
if [[ ${1:-} == --most ]]; then
  most=(--most "$2")
  shift 2
fi

scripts/setup.sh build tidy
configure tidy
mkdir -p build/analysis/cppcheck
status=0
# The names of one platform: each source is read once, and not for every mix of its conditions.
cppcheck --quiet --std=c++20 --library=qt --enable=warning,performance,portability \
  -D__linux__ -D__x86_64__ -D__GNUC__=12 -D__SIZEOF_INT128__=16 \
  --suppressions-list=.cppcheck-suppressions --error-exitcode=1 \
  --cppcheck-build-dir=build/analysis/cppcheck -j "$(nproc)" -I src src || status=1
python3 scripts/analyse.py "${most[@]}" "${1:-^src/}" || status=1
exit "$status"
