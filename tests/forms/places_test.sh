#!/usr/bin/env bash
# Windows of the real program that are moved, closed and shown again stand where they stood, under a
# window manager that puts new windows where it likes; the about box stands in the middle of the main
# window. And Enter in a box plots.
set -uo pipefail
zel=$(dirname "$1")/zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop xwininfo import; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
. "$2/tests/support/screen.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/places_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
printf 'EN\r\nFalse' >config.ini
program=
trap 'kill $program 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
open_screen "$work"

# place: left, top, width and height of the window that has the focus, without its frame.
place() {
  xwininfo -id "$(xdotool getactivewindow)" 2>/dev/null |
    awk '/Absolute upper-left X/ {x = $4} /Absolute upper-left Y/ {y = $4}
      /Width/ {w = $2} /Height/ {print x, y, w, $2}'
}
stands_at() { [[ $(place) == "$1 $2 "* ]]; }
put_at() {
  xdotool windowmove "$(xdotool getactivewindow)" "$1" "$2"
  wait_until stands_at "$1" "$2" || fail "the window is not moved"
}
comes_back_to() { wait_until stands_at "$1" "$2" || fail "the window is at $(place), not at $1 $2"; }
# centred_on LEFT TOP WIDTH HEIGHT: whether the window's middle is the middle of this place.
centred_on() {
  local left top width height
  read -r left top width height < <(place)
  local x=$((2 * left + width - 2 * $1 - $3)) y=$((2 * top + height - 2 * $2 - $4))
  [[ ${x#-} -le 2 && ${y#-} -le 2 ]]
}
about() {
  press "in_front 'ZEL - all_kinds.zel'" Escape
  read -ra owner < <(place)
  at 158 8
  xdotool click 1
  opens 'About ZEL' Up Return
  wait_until centred_on "${owner[@]}" || fail "the about box is at $(place), not over ${owner[*]}"
}

"$zel" "$2/examples/all_kinds.zel" >"$work/zel.log" 2>&1 &
program=$!
window ZEL
opens 'ZEL - all_kinds.zel' Return
about
put_at 30 60
opens 'ZEL - all_kinds.zel' Escape
put_at 222 111
about
opens 'ZEL - all_kinds.zel' Escape

xdotool key Tab Tab Tab Tab # to the first box
opens 'ZEL - Graphics' Return
put_at 133 77
for _ in 1 2; do
  opens 'ZEL - all_kinds.zel' alt+F4
  comes_back_to 222 111
  opens 'ZEL - Graphics' alt+g
  comes_back_to 133 77
done
opens 'ZEL - all_kinds.zel' alt+F4
opens 'New graphic' alt+a
put_at 44 333
opens 'ZEL - all_kinds.zel' Escape
opens 'New graphic' alt+a
comes_back_to 44 333
opens 'ZEL - all_kinds.zel' Escape
grep -vE '^$' "$work/zel.log" && fail "the program complained"
exit 0
