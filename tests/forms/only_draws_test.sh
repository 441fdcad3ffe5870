#!/usr/bin/env bash
# A document can do nothing but draw in the windows either: whatever is damaged in it or named by it,
# zel reads the document, keeps the session, the list of recent documents and its configuration, and
# starts nothing and talks to nobody but the screen (by strace).
set -uo pipefail
zel=$(dirname "$1")/zel
root=$2
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop import convert; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/../support/screen.sh"
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/../support/tempting.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/only_draws_failed.png
rm -f "$SCREEN_PICTURE"
need_trace "$zel"

work=$(mktemp -d)
export HOME=$work/home XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
export XDG_STATE_HOME=$work/state XDG_CACHE_HOME=$work/cache XDG_RUNTIME_DIR=$work/own
export QT_QPA_PLATFORM=offscreen QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
# A desktop has a bus; where none is named the toolkit starts one.
export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/bus ASAN_OPTIONS=detect_leaks=0
unset WAYLAND_DISPLAY
mkdir -p "$HOME" "$work/given"
mkdir -m 700 "$XDG_RUNTIME_DIR"
cd "$work/given" || exit 1
program='' tracer=''
trap 'kill $program $tracer 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
open_screen "$work"

# starts DOCUMENT: where nothing is kept of another one; waits until the document is read.
starts() {
  rm -rf "$XDG_STATE_HOME" "$XDG_DATA_HOME" "$work/trace"
  printf 'EN\r\nFalse' >config.ini
  "${tracing[@]}" -o "$work/trace" "$zel" "$1" >"$work/zel.log" 2>&1 &
  tracer=$!
  wait_until grep -qsF "\"$1\", O_RDONLY" "$work/trace" || fail "$1 is not read"
  program=$(awk '/ execve\(/ { print $1; exit }' "$work/trace")
}

# ends DOCUMENT: by a signal, which waits until all that the document brings is there.
ends() {
  local status
  kill -TERM "$program"
  wait "$tracer"
  status=$?
  program='' tracer=''
  [[ $status -eq 0 ]] || complain "$1: status $status"
}

# What is kept: three files, each through a temporary one beside it, in folders of the program's own.
folders="mkdir\\(\"($XDG_RUNTIME_DIR\", 0700|($XDG_DATA_HOME|$XDG_STATE_HOME(/zel)?)\", 0777)"
rights="fchmodat\\(AT_FDCWD, \"$XDG_STATE_HOME/zel\", 0700|(getxattr|listxattr)\\(\"$PWD/config\\.ini\""
places="$XDG_DATA_HOME/recently-used\\.xbel|$XDG_STATE_HOME/zel/session\\.zel|$PWD/config\\.ini"
hidden="\"($XDG_DATA_HOME|$XDG_STATE_HOME/zel|$PWD)/\\.zel-[0-9a-f]{16}\\.tmp\""
kept="openat\\(AT_FDCWD, $hidden, O_WRONLY\\|O_CREAT\\|O_EXCL\\||rename\\($hidden, \"($places)\""
# How a picture comes on a screen.
screen='socket\(AF_UNIX, |connect\([0-9]+, \{sa_family=AF_UNIX, |(getpeername|getsockname)\('
screen+='|(sendmsg|sendto|recvmsg|recvfrom|shutdown)\(|shmget\(IPC_PRIVATE, |shm(at|ctl|dt)\('

# whole_calls: of the last trace, where another thread's calls come between the halves of one.
whole_calls() {
  awk '/ <unfinished \.\.\.>$/ { sub(/ <unfinished \.\.\.>$/, ""); begun[$1] = $0; next }
    / resumed>/ { $0 = begun[$1] substr($0, index($0, " resumed>") + 9) }
    { print }' "$work/trace"
}

# expect_harmless DOCUMENT CALLS: nothing else is in the last trace beside these calls.
expect_harmless() {
  local other
  expect_only "$1" "$folders|$rights|$kept${2:+|$2}"
  # Those of the toolkit, and of the locales that tests have.
  other=$(whole_calls | grep -E ' open(at)?\(.*O_RDONLY' | grep -v ' = -1 ENOENT' |
    grep -vE "\"(/lib/|/usr/|/etc/|/var/(cache|lib)/|/proc/|/sys/|/dev/|$root/build/)" |
    grep -vE "\"($1|$places|($XDG_DATA_HOME|$XDG_STATE_HOME/zel|$PWD)/?)\", O_RDONLY")
  [[ -z $other ]] || complain "$1 reads $(head -n 3 <<<"$other")"
}

# The ellipse, whose colour is also on the list of graphs, in a smaller place.
is_drawn() {
  look plot
  [[ $(convert "$work/plot.png" -fill black +opaque '#009E73' -fill white -opaque '#009E73' \
    -format '%[fx:mean*w*h>300]' info:) == 1 ]]
}

make_tempting
make_damaged
before=$(sha256sum ./*.zel)
documents=(*.zel)

# What the toolkit keeps for itself, about fonts, is there after the first start.
starts "${documents[0]}"
ends "${documents[0]}"

opened=0 refused=0
for ((i = 0; i < ${#documents[@]}; i += 10)); do
  document=${documents[i]}
  starts "$document"
  ends "$document"
  expect_harmless "$document" ''
  if [[ -e $XDG_STATE_HOME/zel/session.zel ]]; then
    opened=$((opened + 1))
  else
    refused=$((refused + 1))
  fi
done
[[ $opened -ge 5 && $refused -ge 5 ]] || complain "$opened documents were opened, $refused refused"

# In a formula, in its code, and beside the graphs.
export QT_QPA_PLATFORM=xcb
for document in tempting34.zel tempting24.zel tempting61.zel; do
  starts "$document"
  window ZEL
  opens "ZEL - $document" Return
  opens 'ZEL - Graphics' alt+g
  wait_until is_drawn || fail "$document is not drawn"
  ends "$document"
  expect_harmless "$document" "$screen"
done

[[ $(sha256sum ./*.zel) == "$before" ]] || complain "a document is another one"
there=$(find "$work" -mindepth 1 ! -path "$PWD/*.zel" ! -path "$XDG_CACHE_HOME*" ! -name '*.log' \
  ! -name '*.png' | sed "s|$work/||" | LC_ALL=C sort | tr '\n' ' ')
expected="data data/recently-used.xbel display given given/config.ini home own secret "
expected+="state state/zel state/zel/session.zel trace "
[[ $there == "$expected" ]] || complain "there is: $there"
[[ $complaints -eq 0 ]]
