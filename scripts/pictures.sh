#!/usr/bin/env bash
# scripts/pictures.sh: takes the pictures of README and help anew (help/pictures/), from the real
# program on a screen of its own, in both languages; and draws the help's buttons from their icons.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh
. tests/support/screen.sh

scripts/setup.sh build test pictures
build release zel
zel=$PWD/build/release/bin/zel
document=$PWD/examples/all_kinds.zel
pictures=$PWD/help/pictures
mkdir -p "$pictures"
SCREEN_PICTURE=$PWD/build/pictures_failed.png

work=$(mktemp -d)
program='' screen_jobs=''
finish() {
  # shellcheck disable=SC2086 # none, or one
  kill $program 2>/dev/null || true
  close_screen || true
  rm -rf "$work"
}
trap finish EXIT
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
cd "$work"
open_screen "$work"

# take NAME: the window that has the focus, once it has come to rest, in few colours.
take() {
  look_still "$1"
  import -window "$(xdotool getactivewindow)" "$work/window.png"
  convert "$work/window.png" +dither -colors 256 -strip -define png:compression-level=9 \
    "$pictures/$1_$language.png"
}
away() { xdotool mousemove 1270 1014; }
drag() { # X Y X Y
  at "$1" "$2"
  xdotool mousedown 1
  at $((($1 + $3) / 2)) $((($2 + $4) / 2))
  at "$3" "$4"
}

# walk LANGUAGE MAIN EDITOR PLOT: through the windows, which have these titles.
walk() {
  language=$1
  printf '%s\r\nFalse' "${language^^}" >config.ini
  "$zel" "$document" &
  program=$!
  window ZEL
  opens "$2" Return
  away
  take main
  opens "$3" alt+a
  xdotool type --delay 40 'raiz2(x^2+1)'
  sleep 1 # the preview follows after a pause
  take editor
  opens "$2" Escape
  eval "$(xdotool getwindowgeometry --shell "$(xdotool getactivewindow)")"
  # shellcheck disable=SC2153 # set by the line before
  at $((WIDTH - 140)) $((HEIGHT - 30))
  xdotool click 1
  window "$4"
  away
  look_still before
  at 244 126
  xdotool click 1
  wait_until looks_other before picked
  at 86 18 # forward
  xdotool click 1
  away
  wait_until looks_other picked traced
  take plot
  at 400 500
  xdotool click 3
  drag 430 120 560 260
  take zoom
  xdotool mouseup 1
  opens "$2" alt+F4
  press "is_gone '$2'" ctrl+q
  wait "$program" || fail "the program ended badly"
}

say "Taking pictures"
walk en 'ZEL - all_kinds.zel' 'New graphic' 'ZEL - Graphics'
walk es 'ZEL - all_kinds.zel' 'Agregar nuevo gráfico' 'ZEL - Gráficos'
for icon in "$OLDPWD"/src/platform/icons/plot/[A-Z]*.svg; do
  rsvg-convert -b white -w 24 -h 24 "$icon" -o "$pictures/$(basename "$icon" .svg).png"
done
ls "$pictures"
