#!/usr/bin/env bash
# The program as its user meets it, under Wine, in both languages: the first start, a function
# declared, plotted, traced and evaluated, help, a page printed, the document saved under a name
# that no code page has, and opened again from the command line; last, all kinds of graph. With
# TOUR_PICTURES=FOLDER pictures of the screens are kept, and those of README (windows_*.png).
set -uo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/wine.sh"
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/screen.sh"
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/print_server.sh"
export LANG=C.UTF-8 # Wine's own dialogs speak the system's language
pictures=${TOUR_PICTURES:-$work}
mkdir -p "$pictures"/{ES,EN} "$work/run"
"$root/scripts/windows_package.sh" --folder "$work/ZEL" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }

export WINEPATH=''
open_screen "$work"
own_windows
start_print_server "$work/printer" || skip "no print server"
children+=("$print_server")
export CUPS_SERVER=$work/printer/socket

# The window that has the focus, with its frame, in few colours.
take() {
  import -frame -window "$(xdotool getactivewindow)" "$work/window.png"
  convert "$work/window.png" +dither -colors 256 -strip -define png:compression-level=9 \
    "$pictures/windows_${code,,}.png"
}
# changes FROM TO COMPLAINT: waits until the screen is another one than in picture FROM, and keeps it
# when it has come to rest.
changes() {
  wait_until looks_other "$1" "$2" || fail "$3"
  look_still "$2"
}
# plotted NAME: waits until the screen has more colours than an empty plot, and keeps it likewise.
plotted() {
  wait_until colourful "$1" || fail "nothing is drawn"
  look_still "$1"
}
colourful() {
  look "$1"
  [[ $(convert "$screen_files/$1.png" -unique-colors -format '%w' info:) -gt 20 ]]
}
# click RIGHT BOTTOM [BUTTON]: so far from the corner of the window that has the focus; with "-" from
# the other one.
click() {
  local window width height x=${1#-} y=${2#-}
  window=$(xdotool getactivewindow)
  read -r width height < <(xdotool getwindowgeometry "$window" | sed -n 's/.*Geometry: \(.*\)x/\1 /p')
  [[ $1 == -* ]] || x=$((width - x))
  [[ $2 == -* ]] || y=$((height - y))
  xdotool mousemove --window "$window" "$x" "$y" sleep 0.2 click "${3:-1}" sleep 0.3
}
start() {
  (cd "$work/run" && exec "$root/scripts/wine.sh" "$work/ZEL/zel.exe" "$@") >"$screen_files/zel.log" 2>&1 &
  program=$!
  children+=("$program")
}

# tour CODE MAIN EDITOR PLOT VALUE INFORMATION PRINT HELP SAVE: the titles of the windows.
tour() {
  code=$1
  screen_files=$pictures/$code
  local main=$2 editor=$3 plot=$4 value=$5 information=$6 print=$7 help=$8 save=$9
  local saved="$work/run/onda é Ω $code.zel"
  rm -f "$work/run/config.ini"
  # Long before it is pasted: Wine hears of it by and by. Not every keyboard has the name's letters.
  printf 'Z:%s' "${saved//\//\\}" | xclip -selection clipboard

  start
  focused 'ZEL - (Idioma|Language)'
  [[ $code == ES ]] || keys Down
  sleep 0.5
  look first
  keys Return
  focused ZEL
  look presentation
  keys Return
  focused "$main"
  keys alt+a
  focused "$editor"
  xdotool type --delay 60 '7*sen(60*x)'
  sleep 0.5
  look editor
  keys Return
  gone "$editor"
  focused "$main"
  look main
  click 90 40
  focused "$plot"
  plotted plot
  keys Right
  changes plot panned "the arrow keys do not pan"
  click -330 -330
  changes panned traced "a click does not trace"

  keys Tab Right Right Right Right Right Right Right Right Right Right Right space
  focused "$value"
  xdotool type --delay 60 2
  look value
  keys Return
  focused "$information"
  look information
  keys Escape
  focused "$value"
  keys Escape
  focused "$plot"

  # Help topics are offered in Spanish only.
  if [[ $code == ES ]]; then
    opens "$help" F1
    look help
    keys Escape
    gone "$help"
    focused "$plot"
  fi
  opens "$print" ctrl+p
  sleep 1
  look print
  # The key is that of the button's name; the dialog is the system's own.
  keys "alt+$([[ $code == ES ]] && echo i || echo p)"
  focused Print
  look printer
  keys Return
  gone Print
  wait_until test -s "$work/printer/out/page.ps"
  grep -aq '^%%Title: ZEL' "$work/printer/out/page.ps" || fail "no page comes out"
  rm "$work/printer/out/page.ps"
  focused "$print"
  keys Escape
  gone "$print"
  focused "$plot"
  keys alt+F4
  focused "$main"
  keys ctrl+s
  focused "$save"
  keys alt+n
  keys ctrl+v
  sleep 1
  look save
  keys Return
  focused "ZEL - $(basename "$saved")"
  grep -q '^ecuacion=7\*sen(60\*x)' "$saved" || fail "the document does not hold the function"
  keys alt+F4
  ended "$program"
  grep -q "^$code" "$work/run/config.ini" || fail "the language was not kept"

  start "$saved"
  focused ZEL
  keys Return
  focused "ZEL - $(basename "$saved")"
  look opened
  keys alt+F4
  ended "$program"

  start "$root/examples/all_kinds.zel"
  focused ZEL
  keys Return
  focused 'ZEL - all_kinds.zel'
  click 90 40
  focused "$plot"
  plotted plotted
  click -250 -200
  changes plotted walked "a click does not trace"
  take
  keys alt+F4
  focused 'ZEL - all_kinds.zel'
  keys alt+F4
  ended "$program"
}

tour ES 'ZEL - Datos iniciales' 'Agregar nuevo gráfico' 'ZEL - Gráficos' \
  'Cálculo de un valor específico' 'Información' 'Imprimir Gráfico' 'Ayuda de ZEL' 'Guardar como'
tour EN 'ZEL - Graphic manager' 'New graphic' 'ZEL - Graphics' 'Evaluate specific values\.' \
  'Information' 'Print graphics' 'ZEL Help' 'Save As'
