#!/usr/bin/env bash
# What somebody hears who cannot see the program, through the desktop's own accessibility: the
# windows that open, the point that is traced, a refusal, in both languages; and that everything in
# these windows that can be clicked has a name.
set -uo pipefail
zel=$(dirname "$1")/zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop import dbus-run-session /usr/bin/python3; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo "no pyatspi"; exit 77; }
# A desktop bus of its own, which takes all that it has started with it.
[[ -n ${ZEL_OWN_BUS:-} ]] || ZEL_OWN_BUS=1 exec dbus-run-session -- bash "$0" "$@"

. "$2/tests/support/screen.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/screen_reader_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
export XDG_STATE_HOME=$work/state
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY QT_ACCESSIBILITY QT_LINUX_ACCESSIBILITY_ALWAYS_ON
cd "$work" || exit 1
program='' reader=''
trap 'kill $program $reader 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
open_screen "$work"

# heard PATTERN: whether the reader has said this (a regular expression) since the last forget.
heard() { tail -n "+$((forgotten + 1))" "$work/heard.log" | grep -qE -- "$1"; }
forget() { forgotten=$(wc -l <"$work/heard.log"); }
hears() { wait_until heard "$1" || fail "not heard: $1"; }
has_ended() { ! kill -0 "$program" 2>/dev/null; }

# presses NAME: until the reader has found a button of this name.
presses() {
  wait_until is_pressed "$1" || fail "no button '$1'"
}
is_pressed() {
  echo "press $1" >&9
  wait_for 1 heard "^pressed $1\$"
}

mkfifo "$work/commands"
exec 9<>"$work/commands"
/usr/bin/python3 -B "$2/tests/forms/screen_reader.py" zel <"$work/commands" \
  >"$work/heard.log" 2>&1 &
reader=$!
forgotten=0
hears '^listening'

# listen LANGUAGE EDITOR REFUSAL PLOT PICTURE ACTIVE GRAPH: through the windows, which say these words.
listen() {
  local main='ZEL - diagonal.zel' point='X=(-?[0-9,]+); Y=\1$'
  printf '%s\r\nFalse' "$1" >config.ini
  "$zel" "$work/diagonal.zel" >"$work/zel.log" 2>&1 &
  program=$!
  window ZEL
  forget
  opens "$main" Return
  hears "^window frame: $main"

  opens "$2" alt+a
  hears "^window frame: $2"
  xdotool type --delay 40 -- '2*'
  forget
  press "heard '^window (dialog|alert): .*$3'" Return
  press "in_front '$2'" Escape
  opens "$main" Escape

  forget
  presses "$7"
  window "$4"
  hears "^window frame: $4"
  hears "^focus image: $5;.*$6: a\(x\)=x"
  press "heard '^change image: $5;.*$6: a\(x\)=x; $point'" shift+Right
  forget
  press "heard '^change image: $5;.*$6: a\(x\)=x; $point'" shift+Right
  opens "$main" alt+F4
  press has_ended ctrl+q
  wait "$program" || fail "the program ended badly"
  program=
}

# The diagonal under every letter of an example, on a square range.
sed -E 's/^(codigo|ecuacion)=.*/\1=x\r/; s/^([xy])i=.*/\1i=-10\r/; s/^([xy])f=.*/\1f=10\r/' \
  "$2/examples/waves.zel" >"$work/diagonal.zel"
listen ES 'Agregar nuevo gráfico' '' 'ZEL - Gráficos' 'Gráfico de funciones' 'gráfico activo' Graficar
listen EN 'New graphic' '' 'ZEL - Graphics' 'Function graphic' 'active graph' Graph
grep '^nameless' "$work/heard.log" && fail "something has no name"
exit 0
