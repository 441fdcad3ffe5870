#!/usr/bin/env bash
# scripts/chroot.sh: the package on a Debian 12 that has never seen ZEL. In a folder of its own that
# debootstrap makes (build/chroot, kept for the next time): installs the package, opens a document
# by its type as a desktop does, purges the package, and compares all files with those from before.
# As root; takes minutes.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
. tests/support/screen.sh
[[ $EUID -eq 0 ]] || { echo "chroot.sh: only root may do this" >&2; exit 1; }

base=$PWD/build/chroot/base
root=$PWD/build/chroot/root
home=/home/ana
mirror=${ZEL_MIRROR:-http://deb.debian.org/debian}
SCREEN_PICTURE=$PWD/build/chroot/failed.png

scripts/setup.sh chroot test
package=$(./package | tail -n 1)
work=$(mktemp -d)
finish() {
  close_screen 2>/dev/null || true
  leave
  rm -rf "$work"
}
leave() {
  [[ ! -d $root/proc ]] || ! mountpoint -q "$root/proc" || umount "$root/proc"
}
trap finish EXIT
screen_files=$work screen_jobs=

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
  DEBIAN_FRONTEND=noninteractive "$@"; }
# quiet COMMAND...: its words are only shown when it fails.
quiet() {
  "$@" >"$work/quiet.log" 2>&1 || fail "$*"
}
as_ana() { inside su ana -c "cd $home && DISPLAY=${DISPLAY:-} LC_ALL=C LANG=es_ES.UTF-8 $1"; }

# files: all that lies there, with the content of files; not what apt, dpkg and caches write for
# themselves, and not the homes of users.
files() {
  (cd "$root" && find . \( -path ./proc -o -path ./home -o -path ./tmp -o -path ./run \
    -o -path ./var/log -o -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache \) \
    -prune -o \( -type f -exec md5sum {} + \) -o -printf '%y %p\n' | sort -k 2)
}

say "A fresh Debian 12"
if [[ ! -f $base/made ]]; then
  rm -rf "$base"
  mkdir -p "$base"
  quiet debootstrap --variant=minbase --include=ca-certificates bookworm "$base" "$mirror"
  touch "$base/made"
fi
leave
rm -rf "$root"
cp -a "$base" "$root"
mount -t proc proc "$root/proc"

say "What any desktop has, and what the package depends on"
depends=$(dpkg-deb -f "$package" Depends | sed -E 's/ \([^)]*\)//g; s/,//g')
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d" && chmod +x "$root/usr/sbin/policy-rc.d"
quiet inside apt-get -qq update
# shellcheck disable=SC2086 # many packages
quiet inside apt-get -qq install -y --no-install-recommends $depends xdg-utils shared-mime-info \
  desktop-file-utils libglib2.0-bin hicolor-icon-theme man-db file libfile-mimeinfo-perl fonts-dejavu-core
inside useradd --create-home ana
files >"$work/before"

say "Installing"
cp "$package" "$root/tmp/zel.deb"
quiet inside apt-get -qq install -y --no-install-recommends /tmp/zel.deb
rm "$root/tmp/zel.deb"
files >"$work/installed"
grep -q ' \./usr/bin/zel$' "$work/installed" || fail "nothing was installed"
inside zel-cli self-test | grep -qx ok || fail "zel-cli does not run"
inside man -P cat zel-cli >"$work/man.txt" 2>/dev/null
grep -q 'zel-cli - draw' "$work/man.txt" || fail "no manual page"

say "Opening a document by its type"
cp examples/conics.zel "$root$home/Un dibujo.zel"
cp examples/conics.zel "$root$home/without_ending"
inside chown -R ana: "$home"
expect() { # WANTED COMMAND
  local said
  said=$(as_ana "$2")
  [[ $said == "$1" ]] || fail "$2 gives '$said', not '$1'"
}
expect application/x-zel "xdg-mime query filetype 'Un dibujo.zel'"
expect application/x-zel "gio info -a standard::content-type without_ending | sed -n 's/.*content-type: //p'"
expect zel.desktop "xdg-mime query default application/x-zel"
open_screen "$work"
opens_by() { # COMMAND
  as_ana "$1 >/dev/null 2>&1" &
  screen_jobs+=" $!"
}
opens_by "gio open 'Un dibujo.zel'"
window 'ZEL - (Idioma|Language)'
opens 'ZEL' Return
opens 'ZEL - Un dibujo.zel' Return
press "is_gone 'ZEL - Un dibujo.zel'" ctrl+q
opens_by "xdg-open 'Un dibujo.zel'"
window 'ZEL'
opens 'ZEL - Un dibujo.zel' Return
press "is_gone 'ZEL - Un dibujo.zel'" ctrl+q
grep -q '^ES' "$root$home/.config/zel/config.ini" || fail "no configuration of the user's own"
[[ ! -e $root$home/.local/share/applications && ! -e $root$home/config.ini ]] ||
  fail "the start left more in the user's home than its configuration"

say "Purging"
quiet inside apt-get -qq purge -y zel
files >"$work/after"
if ! diff "$work/before" "$work/after" >"$work/difference"; then
  cat "$work/difference"
  fail "the package left traces (< before, > after)"
fi
say "Installed $(($(wc -l <"$work/installed") - $(wc -l <"$work/before"))) files and folders, opened \
a document by its type, purged without a trace"
