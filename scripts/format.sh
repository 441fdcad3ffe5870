#!/usr/bin/env bash
# scripts/format.sh [--check]: puts all sources into the shape of .clang-format, or only looks.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh format
action=(-i)
[[ ${1:-} != --check ]] || action=(--dry-run -Werror)
find src tests benchmarks fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 -r clang-format --style=file "${action[@]}"
