#!/usr/bin/env bash
# ./bench tells what it can measure, and refuses a row that it does not know, without building.
set -euo pipefail
root=$2
command -v python3 >/dev/null || exit 77

help=$("$root/bench" --help)
for row in sweep single reference functions painting redraw render family open compile start micro; do
  grep -qw -- "$row" <<<"$help" || {
    echo "The help does not name $row:"
    echo "$help"
    exit 1
  }
done

if said=$(python3 -B "$root/benchmarks/report.py" nonsense 2>&1); then
  echo "A row that is not there was taken."
  exit 1
fi
grep -q "there is no row nonsense" <<<"$said" || {
  echo "$said"
  exit 1
}
