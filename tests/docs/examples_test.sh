#!/usr/bin/env bash
# Every example of the manual pages, the help and the docs does what it says there.
set -uo pipefail
command -v python3 >/dev/null || { echo "no python3"; exit 77; }
"$1" --version >/dev/null || { echo "no zel-cli in this build"; exit 77; }
here=$2/tests/docs

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
cp -r "$2/examples" "$sample"
mkdir -p "$sample"/{packaging/man,docs,help}
cp "$here/faults.md" "$sample/docs"
if said=$(python3 -B "$here/examples.py" "$1" "$sample") || [[ $(grep -c "^$sample/docs/faults.md: " <<<"$said") -ne 4 ]]; then
  echo "The check itself is wrong: $said"
  exit 1
fi
exec python3 -B "$here/examples.py" "$1" "$2"
