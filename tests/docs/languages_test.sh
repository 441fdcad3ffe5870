#!/usr/bin/env bash
# What stands in both languages has the same shape in both: headings, pictures, rows of tables, links
# and examples. And what the docs link to is there.
set -uo pipefail
cd "$2" || exit 1
bad=0

# shape FILE: a line for each of its parts, without its words.
shape() {
  sed -nE 's/^(#+) .*/\1/p; s/.*!\[[^]]*\]\(([^)]*)_e[sn]\.png\).*/\1/p
    s/^\|(.*)\|$/row/p; s/^```.*/block/p; s/^[0-9]+\. .*/step/p' "$1"
}
difference() {
  diff <(shape "$1") <(shape "$2") && return
  echo "$1 and $2 differ in shape"
  bad=1
}
difference help/ayuda_en.hlp help/ayuda_es.hlp
# The table of speeds stands in one of them only.
difference <(sed '/^## Speed/,/^## /{/^|/d}' README.md) README.es.md

for page in *.md docs/*.md; do
  while read -r link; do
    [[ -e $(dirname "$page")/$link ]] && continue
    echo "$page: there is no $link"
    bad=1
  done < <(grep -oE '\]\([^)#]+' "$page" | sed 's/^](//' | grep -v '^https\?:')
done
exit $bad
