#!/usr/bin/env bash
# Rooms stay small: no source has more than 500 lines.
set -euo pipefail
root=$2
limit=500

complaints() {
  find "$1" \( -name build -o -name .git \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r wc -l | awk -v limit=$limit '$1 > limit && $2 != "total"'
}

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
seq $limit >"$sample/good.cpp"
seq $((limit + 1)) >"$sample/bad.h"
found=$(complaints "$sample")
if [[ $found != *"$((limit + 1)) $sample/bad.h" || $(wc -l <<<"$found") -ne 1 ]]; then
  echo "The check itself is wrong. It found: $found"
  exit 1
fi

found=$(complaints "$root")
echo "$found"
[[ -z $found ]]
