#!/usr/bin/env bash
# A save on a disk that may not be written says so and leaves it as it was.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"

disk=$work/disk
mkdir "$disk"
mount -t tmpfs -o size=1m none "$disk" 2>/dev/null || skip "only root can make a disk"
trap 'umount "$disk"; rm -rf "$work"' EXIT

older="$disk/é Ω.zel"
newer="$root/examples/alphabet.zel"
cp "$root/examples/waves.zel" "$older"
cp "$older" "$work/kept.zel"
mount -o remount,ro "$disk" || skip "the disk cannot be made read-only"
with_status() {
  cli "$@"
  echo "status $?"
}
# refused NAME ARGUMENT...: complains of a command that does not say that nothing was saved.
refused() { says "$1" $'No se pudo salvar el archivo.\nstatus 1' with_status "${@:2}"; }
wine cmd /c exit # Wine's services complain where the first program does
refused "over a document" resave "$newer" "$older"
refused "over itself" resave "$older" "$older"
refused "a new document" resave "$newer" "$disk/new.zel"
refused "a picture" render "$older" -o "$disk/picture.svg"
same "the older document" "$work/kept.zel" "$older"
[[ $(find "$disk" -mindepth 1) == "$older" ]] || complain "left: $(ls -A "$disk")"

mount -o remount,rw "$disk"
cli resave "$newer" "$older" || complain "it may be written, and the save fails"
cmp -s "$older" "$work/kept.zel" && complain "the newer document did not come"

[[ $failures -eq 0 ]]
