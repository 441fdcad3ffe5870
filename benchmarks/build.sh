#!/usr/bin/env bash
# benchmarks/build.sh TARGET...: builds these targets of the preset release, benchmarks among them.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

configure release
grep -q '^ZEL_BUILD_BENCH:BOOL=ON$' build/release/CMakeCache.txt ||
  cmake -D ZEL_BUILD_BENCH=ON build/release >>build/release/configure.log
build release "$@"
