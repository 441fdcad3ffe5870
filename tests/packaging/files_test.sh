#!/usr/bin/env bash
# What the desktop reads is as it wants it: the desktop entry, the document type, the description for
# software centres, icons, manual pages and completions.
set -uo pipefail
cd "$2/packaging" || exit 1
for tool in desktop-file-validate appstreamcli xmllint mandoc identify zsh fish; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
export LC_ALL=C.UTF-8
bad=0

# silent COMMAND...: it succeeds and has nothing to say.
silent() {
  local said status
  said=$("$@" 2>&1)
  status=$?
  [[ $status -eq 0 && -z $said ]] && return
  printf 'failed (%s): %s\n%s\n' "$status" "$*" "$said"
  bad=1
}

silent desktop-file-validate zel.desktop
silent xmllint --noout ./*.xml ./*.svg
said=$(appstreamcli validate --no-net --pedantic ./*.metainfo.xml)
# Its one remark is on the name of a site that is none yet.
if [[ $? -ne 0 || $(grep -c '^[EWI]:' <<<"$said") -gt 1 || $(grep -c 'cid-maybe-not-rdns' <<<"$said") -ne 1 ]]; then
  echo "$said"
  bad=1
fi
for page in man/*.1 man/es/*.1; do
  # mandoc counts several for an accent.
  said=$(mandoc -Tlint "$page" | grep -v 'STYLE: input text line longer than 80 bytes'
    grep -nE '^.{81}' "$page")
  [[ -z $said ]] || { echo "$said"; bad=1; }
  for macro in SH SS TP TQ EX; do
    [[ $(grep -c "^\.$macro" "$page") -eq $(grep -c "^\.$macro" "man/$(basename "$page")") ]] && continue
    echo "$page has other .$macro than the English page"
    bad=1
  done
done
for icon in zel doc; do
  for size in 16 24 32 48 64 128 256; do
    [[ $(identify -format '%wx%h' $icon-$size.png) == "${size}x$size" ]] && continue
    echo "$icon-$size.png has another size"
    bad=1
  done
done
for completion in completions/*.bash; do silent bash -n "$completion"; done
for completion in completions/*.zsh; do silent zsh -n "$completion"; done
for completion in completions/*.fish; do silent fish --no-execute "$completion"; done
exit $bad
