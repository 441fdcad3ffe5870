#!/usr/bin/env bash
# Every script, those to be sourced included, is one of which shellcheck has nothing to say.
set -euo pipefail
root=$2
command -v shellcheck >/dev/null || { echo "no shellcheck"; exit 77; }
cd "$root"

sample=$(mktemp)
trap 'rm -f "$sample"' EXIT
printf '%s\n' '#!/bin/bash' "rm \$1" >"$sample"
if shellcheck "$sample" >/dev/null; then
  echo "The check itself is wrong."
  exit 1
fi

mapfile -t scripts < <(
  find . \( -path ./build -o -path ./.git \) -prune -o -type f \
    \( -name '*.sh' -o -name '*.bash' -o ! -name '*.*' \) -exec \
    awk 'FNR == 1 && (/^#!.*sh$/ || FILENAME ~ /\.(ba)?sh$/) { print FILENAME } { nextfile }' {} +
)
[[ ${#scripts[@]} -gt 20 ]] || { echo "only ${#scripts[@]} scripts found"; exit 1; }
# It takes a function that is handed to another one for unreachable.
shellcheck --external-sources --exclude SC2317 "${scripts[@]}"
