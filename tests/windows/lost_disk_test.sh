#!/usr/bin/env bash
# A disk that goes away, from one save to the next and before each call of a save: the save says that
# it failed, or it is done; the older or the newer document is on the disk, whole, and nothing is made
# where the disk was. When it is back, the next save cleans up.
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"

disk=$work/disk   # always there
drive=$work/drive # the same disk, as the programs see it
mkdir "$disk" "$drive"
mount -t tmpfs -o size=16m none "$disk" 2>/dev/null || skip "only root can make a disk"
plug_in() { mount --bind "$disk" "$drive"; }
pull_out() { umount -l "$drive"; }
trap 'mountpoint -q "$drive" && umount -l "$drive"; umount -l "$disk"; rm -rf "$work"' EXIT
mkdir "$disk/folder"
plug_in || skip "a disk cannot be in two places"
name="folder/é Ω.zel"

# left NAME: complains of what is made where the disk was.
left() { [[ -z $(find "$drive" -mindepth 1) ]] || complain "$1: made $(find "$drive" -mindepth 1)"; }
# alone NAME: complains of other files beside the document.
alone() { [[ $(find "$disk" -type f) == "$disk/$name" ]] || complain "$1: left $(ls -A "$disk/folder")"; }

with_status() {
  cli "$@"
  echo "status $?"
}
newer="$root/examples/alphabet.zel"
cp "$root/examples/waves.zel" "$disk/$name"
pull_out
wine cmd /c exit # Wine's services complain where the first program does
says "no disk" $'No se pudo salvar el archivo.\nstatus 1' with_status resave "$newer" "$drive/$name"
left "no disk"
same "the older document" "$root/examples/waves.zel" "$disk/$name"
alone "no disk"
plug_in
cli resave "$newer" "$drive/$name" || complain "the disk is back, and the save fails"
alone "the disk is back"

# save_until CALL: a save before whose call the disk goes away. False where there is no such call;
# otherwise `ends` gets "old" or "new", what the save says that the disk holds.
save_until() {
  local heard='' process
  saver wait "$1" "$drive/$name" <"$work/told" >"$work/heard" &
  process=$!
  exec 3>"$work/told" 4<"$work/heard"
  read -r heard <&4
  if [[ $heard == waiting* ]]; then
    pull_out
    echo >&3
  fi
  exec 3>&- 4<&-
  wait "$process"
  case $? in
    0) ends+=(new) ;;
    1) ends+=(old) ;;
    *) complain "call $1: another status" ;;
  esac
  [[ $heard == waiting* ]]
}
saver() { cli_path=${cli_path%/*}/save_interrupted.exe cli "$@"; }
head -c 30000 /dev/zero | tr '\0' o >"$work/old"
head -c 1200000 /dev/zero | tr '\0' n >"$work/new"
mkfifo "$work/told" "$work/heard"
ends=()
for ((call = 1; call < 100; ++call)); do
  cp "$work/old" "$disk/$name"
  save_until "$call" || break
  left "call $call"
  same "call $call" "$work/${ends[-1]}" "$disk/$name"
  plug_in
  saver wait 0 "$drive/$name" || complain "call $call: the disk is back, and the save fails"
  same "after call $call" "$work/new" "$disk/$name"
  alone "after call $call"
done
# Most calls come before the last step, and one or more behind it; then there is no such call.
[[ "${ends[*]} " =~ ^(old ){6,}(new )+$ && $call -lt 100 ]] || complain "ends: ${ends[*]}"

[[ $failures -eq 0 ]]
