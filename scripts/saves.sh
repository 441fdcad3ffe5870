#!/usr/bin/env bash
# scripts/saves.sh [SAVES]: so many saves (10,000 without a word) that fail, or are killed, at any of
# their calls, and four savers at once; the older or the newer document is there each time.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

scripts/setup.sh build
build release files_tests
ZEL_SAVES=${1:-10000} build/release/bin/files_tests --gtest_filter='FaultySaves.*'
