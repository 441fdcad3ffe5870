#!/usr/bin/env bash
# The real program as a user meets it: the first start, the choice of English, a function declared
# and plotted, the tools of the plot window, the document saved and opened again from the command
# line.
set -uo pipefail
zel=$(dirname "$1")/zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop xwininfo xclip import; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
. "$2/tests/support/screen.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/smoke_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state \
  XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none
unset LC_ALL LC_MESSAGES WAYLAND_DISPLAY
export LANG=en_US.UTF-8
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
program=
trap 'kill $program 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
open_screen "$work"

# on_screen PICTURE SCREEN: whether the plot window shows this picture, pixel by pixel, at its margin.
on_screen() {
  local size left top height row
  size=$(identify -format '%wx%h' "$1")
  read -r left top height < <(xwininfo -id "$(xdotool getactivewindow)" 2>/dev/null |
    awk '/Absolute upper-left X/ {x = $4} /Absolute upper-left Y/ {y = $4} /Height/ {print x, y, $2}')
  for row in $(seq 30 $((height - ${size#*x}))); do
    [[ $(compare -metric AE "$1" \( "$2" -crop "$size+$((left + 8))+$((top + row))" +repage \) null: 2>&1) == 0 ]] &&
      return 0
  done
  return 1
}
has_curve() {
  look plot
  [[ $(convert "$work/plot.png" -unique-colors -format '%w' info:) -gt 20 ]]
}
# toolbar N: goes to the toolbar's button N, from 0, with the keyboard.
toolbar() {
  local keys=(Tab) i
  for ((i = 0; i < $1; ++i)); do keys+=(Right); done
  xdotool key --delay 60 "${keys[@]}"
}
# enter TEXT: types into the field that has the focus, in place of what it holds.
enter() { xdotool key --delay 60 ctrl+a type --delay 40 -- "$1"; }
copied() { xclip -selection clipboard -t image/png -o >"$work/copy.png" 2>/dev/null; }
# click_on_note: clicks into what has come between the pictures "boxes" and "noted".
click_on_note() {
  local height left top
  IFS=x+ read -r _ height left top < <(convert "$work/boxes.png" "$work/noted.png" \
    -compose difference -composite -format '%@\n' info:)
  xdotool mousemove --sync $((left + 12)) $((top + height - 8)) click 1
}
# begins_at X: whether the document's range has this lower bound of x.
begins_at() { grep -q "^xi=$1"$'\r' "$work/smoke.zel"; }
declared() { grep -q '^ecuacion=7\*sen(60\*x)' "$work/smoke.zel" 2>/dev/null; }

start() {
  "$zel" "$@" >"$work/zel.log" 2>&1 &
  program=$!
}
has_ended() { ! kill -0 "$program" 2>/dev/null; }
ends_well() {
  press has_ended "$@"
  wait "$program" || fail "the program ended badly"
}

start
window 'ZEL - (Idioma|Language)'
opens 'ZEL - Language' Down
opens 'ZEL' Return
opens 'ZEL - Graphic manager' Return
opens 'New graphic' alt+a
enter '7*sen(60*x)'
opens 'ZEL - Graphic manager' Return
opens 'ZEL - Graphics' alt+g
wait_until has_curve || fail "an empty plot"
look_still plot

press 'looks_other plot panned' Right
look_still panned
at 300 300
xdotool click 1
wait_until looks_other panned traced || fail "a click does not trace"
look_still traced
toolbar 12
press 'looks_other traced found' space
xdotool key Left
opens 'Evaluate specific values\.' space
enter 2
opens 'Information' Return
opens 'Evaluate specific values\.' Escape
opens 'ZEL - Graphics' Escape

at 300 300
xdotool click 3
look_still before
xdotool mousedown 1
at 400 380
at 500 450
wait_until looks_other before rectangle || fail "no zoom rectangle"
look_still rectangle
xdotool mouseup 1
at 500 500
wait_until looks_other rectangle zoomed || fail "the rectangle does not zoom"
look_still zoomed
xdotool click 3

opens 'Information' ctrl+c
opens 'ZEL - Graphics' Escape
look_still copied
wait_until copied || fail "no picture on the clipboard"
on_screen "$work/copy.png" "$work/copied.png" || fail "the clipboard has another picture"

# Without a printer the page goes to a file.
opens 'Print graphics' ctrl+p
opens '.*[Ss]ave.*' Return
enter "$work/page.pdf"
press "[[ -s '$work/page.pdf' ]]" Return
opens 'ZEL - Graphics' Escape
window 'ZEL - Graphics'
opens 'ZEL - Graphic manager' alt+F4
opens '.*[Ss]ave.*' ctrl+shift+s
enter "$work/smoke.zel"
opens 'ZEL - smoke.zel' Return
wait_until declared || fail "the document does not hold the function"
ends_well ctrl+q
grep -q '^ecuacion=7' "$XDG_STATE_HOME/zel/session.zel" || fail "the session was not kept"
grep -q 'smoke\.zel' "$XDG_DATA_HOME/recently-used.xbel" || fail "no recent document"
grep -q '^EN' config.ini || fail "the language was not kept"

start "$work/smoke.zel"
window 'ZEL'
opens 'ZEL - smoke.zel' Return
# In a box, too, which the free desktop lets Ctrl+E edit.
xdotool key --delay 60 Tab Tab Tab Tab
opens 'Export picture' ctrl+e
opens 'ZEL - smoke.zel' Escape

# The mouse goes through the note on a refused key: a click on it is one on the box of "x minimun".
xdotool key ctrl+a
look_still boxes
press 'looks_other boxes noted' x
click_on_note
enter 7
press 'begins_at 7' ctrl+s
xdotool key ctrl+z
press 'begins_at -10' ctrl+s
xdotool key ctrl+y
press 'begins_at 7' ctrl+s

opens 'ZEL - Graphics' alt+g
opens 'ZEL - smoke.zel' alt+F4
ends_well ctrl+q
grep -vE '^$' "$work/zel.log" && fail "the program complained"
exit 0
