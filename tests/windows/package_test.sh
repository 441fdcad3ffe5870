#!/usr/bin/env bash
# The folder that the archive and the installer hold: complete on a machine that has nothing, and
# silent about the machine that it was made on.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"
cd "$root" || exit 1

folder="$work/ZEL é"
scripts/windows_package.sh --folder "$folder" >"$work/log" 2>&1 || {
  cat "$work/log"
  exit 1
}

# paths FILE: what looks like a path of this machine, in 8-bit and 16-bit texts.
paths() {
  { strings -n 5 "$1" && strings -n 5 -e l "$1"; } |
    grep -F -e "$root/" -e "$HOME/" -e /tmp/ -e /usr/ -e /build/ -e "${TMPDIR:-/tmp}/"
}
printf 'see %s/x\n' "$root" >"$work/sample"
[[ -n $(paths "$work/sample") ]] || complain "the check itself is wrong"
while read -r file; do
  found=$(paths "$file")
  [[ -z $found ]] || complain "$(basename "$file") holds a path: $found"
done < <(find "$folder" -name '*.exe' -o -name '*.dll')

for name in zel.exe zel-cli.exe ayuda_es.hlp ayuda_en.hlp doc.ico qt.conf platforms/qwindows.dll \
  translations/qtbase_es.qm examples/conics.zel licences/LICENSE.txt; do
  [[ -s $folder/$name ]] || complain "no $name"
done
[[ ! -e $folder/zel.installed ]] || complain "the marker of an installation in the portable folder"

# Only with what lies beside it and what every Windows has.
alone() { (cd "$folder" && WINEPATH='' wine "$@"); }
says "zel-cli alone" ok alone ./zel-cli.exe self-test

[[ $failures -eq 0 ]]
