#!/usr/bin/env bash
# scripts/windows.sh [--no-tests]: builds the Windows programs on Debian, runs their tests under Wine,
# and leaves an installer and an archive in build/windows.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build test windows
scripts/windows_qt.sh
scripts/windows_libraries.sh
build mingw
scripts/windows_package.sh
if [[ ${1:-} != --no-tests ]]; then
  # What both systems draw and compute is compared.
  build release zel-cli
  say "Testing mingw"
  ctest --preset mingw
fi
