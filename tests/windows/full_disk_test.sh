#!/usr/bin/env bash
# A save on a disk without room leaves the older document whole, and nothing beside it.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"

disk=$work/disk
mkdir "$disk"
mount -t tmpfs -o size=64k none "$disk" 2>/dev/null || skip "only root can make a small disk"
trap 'umount "$disk"; rm -rf "$work"' EXIT

older="$disk/é Ω.zel"
newer="$root/examples/alphabet.zel"
cp "$root/examples/waves.zel" "$older"
cp "$older" "$work/kept.zel"
head -c 1M /dev/zero >"$disk/filler" 2>/dev/null
cli resave "$newer" "$older" >"$work/said" 2>&1
[[ $? -eq 1 ]] || complain "the save did not fail: $(<"$work/said")"
[[ -s $work/said ]] || complain "nothing is said"
same "the older document" "$work/kept.zel" "$older"
cli resave "$newer" "$disk/new.zel" >/dev/null 2>&1
[[ $? -eq 1 && ! -e $disk/new.zel ]] || complain "a new document is there in part"
[[ $(find "$disk" -mindepth 1 | wc -l) -eq 2 ]] || complain "left: $(ls -A "$disk")"

rm "$disk/filler"
cli resave "$newer" "$older" || complain "there is room, and the save fails"
cmp -s "$older" "$work/kept.zel" && complain "the newer document did not come"

[[ $failures -eq 0 ]]
