#!/usr/bin/env bash
# scripts/tidy.sh [REGEX]: clang-tidy over the sources whose path matches (all of src without a word).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build bench tidy
configure tidy
run-clang-tidy -quiet -p build/tidy -j "$(nproc)" "$PWD/${1:-src/}"
