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

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none
unset LC_ALL LC_MESSAGES WAYLAND_DISPLAY
export LANG=en_US.UTF-8
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
exec 8>"$work/display"
Xvfb -displayfd 8 -screen 0 1280x1024x24 >"$work/xvfb.log" 2>&1 &
server=$!
exec 8>&-
program=
trap 'kill $program $manager $server 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
manager=
for _ in $(seq 100); do [[ -s $work/display ]] && break; sleep 0.1; done
DISPLAY=:$(<"$work/display")
export DISPLAY
openbox >"$work/openbox.log" 2>&1 &
manager=$!
# A window that is mapped while the manager starts is lost.
for _ in $(seq 100); do
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
  sleep 0.1
done

fail() {
  echo "failed: $1"
  xdotool search --onlyvisible --name . getwindowname %@ 2>/dev/null
  cat "$work/zel.log" "$work/openbox.log"
  [[ -z ${SMOKE_PICTURE:-} ]] || import -window root "$SMOKE_PICTURE"
  exit 1
}

# window TITLE: waits until a visible window has this title (a regular expression), and focuses it.
window() {
  local id
  for _ in $(seq 100); do
    id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1)
    if [[ -n $id ]] && xdotool windowactivate --sync "$id" 2>/dev/null; then
      sleep 0.2
      return
    fi
    sleep 0.1
  done
  fail "no window '$1'"
}

keys() { xdotool key --delay 60 "$@"; }
# look NAME: takes a picture of the screen.
look() { import -window root "$work/$1.png"; }
# differs ONE OTHER: whether two pictures of the screen differ.
differs() {
  local count
  count=$(compare -metric AE "$work/$1.png" "$work/$2.png" null: 2>&1)
  [[ ${count%%.*} != 0 ]]
}
# at X Y: moves the mouse to a place in the window that has the focus.
at() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" sleep 0.2; }
# onScreen PICTURE SCREEN: whether the plot window shows this picture, pixel by pixel, at its margin.
onScreen() {
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
# button N: presses the toolbar's button N, from 0, with the keyboard, and goes back to the picture.
button() {
  keys Tab
  for _ in $(seq "$1"); do keys Right; done
  keys space
}
start() {
  "$zel" "$@" >"$work/zel.log" 2>&1 &
  program=$!
}
ended() {
  for _ in $(seq 100); do
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
  done
  kill -0 "$program" 2>/dev/null && fail "the program does not end"
  wait "$program"
  [[ $? -eq 0 ]] || fail "the program ended badly"
}

start
window 'ZEL - (Idioma|Language)'
keys Down
window 'ZEL - Language'
keys Return
window 'ZEL'
keys Return
window 'ZEL - Graphic manager'
keys alt+a
window '.*[Gg]raphic.*'
xdotool type --delay 40 '7*sen(60*x)'
keys Return
window 'ZEL - Graphic manager'
keys alt+g
window 'ZEL - Graphics'
sleep 0.5
look plot
[[ $(convert "$work/plot.png" -unique-colors -format '%w' info:) -gt 20 ]] || fail "an empty plot"

keys Right
sleep 0.3
look panned
differs plot panned || fail "the arrow keys do not pan"
at 300 300
xdotool click 1 sleep 0.3
look traced
differs panned traced || fail "a click does not trace"
button 12
sleep 0.3
look found
differs traced found || fail "no maximum is found"
keys Left space
window 'Evaluate specific values\.'
xdotool type --delay 40 '2'
keys Return
window 'Information'
keys Escape
window 'Evaluate specific values\.'
keys Escape
window 'ZEL - Graphics'

look before
at 300 300
xdotool click 3 sleep 0.2 mousedown 1 sleep 0.2
at 400 380
at 500 450
look rectangle
differs before rectangle || fail "no zoom rectangle"
xdotool mouseup 1
at 500 500
sleep 0.3
look zoomed
differs before zoomed || fail "the rectangle does not zoom"
xdotool click 3 sleep 0.3

keys ctrl+c
window 'Information'
keys Escape
window 'ZEL - Graphics'
look copied
xclip -selection clipboard -t image/png -o >"$work/copy.png" || fail "no picture on the clipboard"
onScreen "$work/copy.png" "$work/copied.png" || fail "the clipboard has another picture"

keys ctrl+p
window 'Print graphics'
# Without a printer there is a message over it.
for _ in 1 2 3; do
  xdotool search --onlyvisible --name '^Print graphics$' >"$work/found" 2>/dev/null || break
  keys Escape
  sleep 0.5
done
window 'ZEL - Graphics'
keys alt+F4
window 'ZEL - Graphic manager'
keys ctrl+shift+s
sleep 1
xdotool type --delay 40 "$work/smoke.zel"
keys Return
window 'ZEL - smoke.zel'
grep -q '^ecuacion=7\*sen(60\*x)' "$work/smoke.zel" || fail "the document does not hold the function"
keys ctrl+q
ended
grep -q '^EN' config.ini || fail "the language was not kept"

start "$work/smoke.zel"
window 'ZEL'
keys Return
window 'ZEL - smoke.zel'
keys alt+g
window 'ZEL - Graphics'
keys alt+F4
window 'ZEL - smoke.zel'
keys ctrl+q
ended
grep -vE '^$' "$work/zel.log" && fail "the program complained"
exit 0
