#!/usr/bin/env bash
# A picture that the real program has copied is on the clipboard after the program has ended, as
# pixels and as SVG, where a clipboard manager runs.
set -uo pipefail
zel=$(dirname "$1")/zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop xclip identify import /usr/bin/python3; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
/usr/bin/python3 -c 'import Xlib' 2>/dev/null || { echo "no python3-xlib"; exit 77; }
. "$2/tests/support/screen.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/clipboard_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
export XDG_STATE_HOME=$work/state
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY
cd "$work" || exit 1
program='' manager=''
trap 'kill $program $manager 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
open_screen "$work"

/usr/bin/python3 -B "$2/tests/support/clipboard_manager.py" >"$work/manager.log" 2>&1 &
manager=$!
wait_until grep -q '^ready' "$work/manager.log" || fail "no clipboard manager"

printf 'EN\r\nFalse' >config.ini
"$zel" "$2/examples/waves.zel" >"$work/zel.log" 2>&1 &
program=$!
window ZEL
opens 'ZEL - waves.zel' Return
opens 'ZEL - Graphics' alt+g
opens 'Information' ctrl+shift+c
opens 'ZEL - Graphics' Escape
opens 'ZEL - waves.zel' alt+F4
has_ended() { ! kill -0 "$program" 2>/dev/null; }
press has_ended ctrl+q
wait "$program" || fail "the program ended badly"

grep -q '^saved image/png image/svg+xml' "$work/manager.log" || fail "it was not handed over"
xclip -selection clipboard -t image/png -o >"$work/copy.png" || fail "no pixels"
size=$(identify -format '%w %h' "$work/copy.png") || fail "these are no pixels"
xclip -selection clipboard -t image/svg+xml -o >"$work/copy.svg" || fail "no SVG"
grep -q "width=\"${size% *}\" height=\"${size#* }\"" "$work/copy.svg" ||
  fail "the SVG has another size than $size"
grep -q '</text>' "$work/copy.svg" || fail "the numbers were left out"
grep -vE '^$' "$work/zel.log" && fail "the program complained"
exit 0
