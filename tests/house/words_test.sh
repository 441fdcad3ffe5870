#!/usr/bin/env bash
# The project explains itself: its files point at no other paper and at no place where they were
# made. (Each pattern is written so that it does not match itself.)
set -euo pipefail
root=$2

patterns='\b[s]pec(ification)?s?\b|\b[p]arts? [0-9]|\b[i]ssue #?[0-9]|/[w]ork/|\b[s]ub-?agents?\b'

complaints() {
  git -C "$1" grep --no-index --exclude-standard -nIiE "$patterns" -- . || true
}

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
printf '%s\n' 'the Sp''ec' 'a speci''fication' 'see Part'' 3.2' 'parts'' 4' 'issue'' #12' \
  'in /wor''k/x' 'a sub''agent' >"$sample/bad.md"
printf '%s\n' 'special, specific, specify' 'a part of 3' 'network/x' 'an issue' >"$sample/good.md"
found=$(complaints "$sample")
if [[ $(grep -c '^bad' <<<"$found") -ne 7 || $(wc -l <<<"$found") -ne 7 ]]; then
  echo "The check itself is wrong. It found:"
  echo "$found"
  exit 1
fi

found=$(complaints "$root")
echo "$found"
[[ -z $found ]]
