#!/usr/bin/env bash
# The real program where each write fails: past the process's limit for the size of a file, and to a
# standard error whose reader has gone or that is closed. It says that a document could not be saved,
# and goes on.
set -uo pipefail
zel=$(dirname "$1")/zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop import; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
. "$2/tests/support/screen.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/failing_writes_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
program=
trap 'kill $program 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
ulimit -c 0
open_screen "$work"

has_ended() { ! kill -0 "$program" 2>/dev/null; }
ends_well() {
  press has_ended ctrl+q
  wait "$program" || fail "the program ended with $? $1"
}

printf 'EN\r\nFalse' >config.ini
cp "$2/examples/all_kinds.zel" all.zel
before=$(find . | sort)
(ulimit -f 1 && exec env --default-signal=XFSZ "$zel" all.zel) >/dev/null 2>&1 &
program=$!
window ZEL
opens 'ZEL - all.zel' Return
opens 'ZEL - NOTIFY' ctrl+s
opens 'ZEL - all.zel' Return
ends_well "past the limit"
cmp all.zel "$2/examples/all_kinds.zel" || fail "the document is another one"
[[ $(find . | sort) == "$before" ]] || fail "files are left: $(find .)"
left=$(find "$XDG_STATE_HOME" -type f)
[[ -d $XDG_STATE_HOME/zel && -z $left ]] || fail "a session in part: $left"

mkfifo "$work/pipe"
true <"$work/pipe" &
exec 3>"$work/pipe"
wait $!
QT_LOGGING_RULES='*=true' env --default-signal=PIPE "$zel" all.zel >/dev/null 2>&3 &
program=$!
window ZEL
opens 'ZEL - all.zel' Return
ends_well "without a reader"

# The toolkit complains first where it has no folder of its own, and not into its connection.
env -u XDG_RUNTIME_DIR "$zel" all.zel >/dev/null 2>&- &
program=$!
window ZEL
opens 'ZEL - all.zel' Return
ends_well "without standard error"
exit 0
