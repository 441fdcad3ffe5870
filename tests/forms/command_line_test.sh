#!/usr/bin/env bash
# The real program, started with the name of a document that is no UTF-8, and with a name in two
# words: it opens that file, and makes no other.
set -uo pipefail
zel=$(dirname "$1")/zel
source_folder=$2
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb openbox xdotool xprop import; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
. "$source_folder/tests/support/screen.sh"
SCREEN_PICTURE=$(dirname "$(dirname "$1")")/command_line_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none
unset WAYLAND_DISPLAY
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
program=
trap 'kill $program 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
open_screen "$work"

# shows TITLE NAME...: started with these arguments the program comes to a window with this title (a
# regular expression), and the folder holds what it held before.
shows() {
  local title=$1 before
  shift
  before=$(find . | sort)
  "$zel" "$@" >"$work/zel.log" 2>&1 &
  program=$!
  window 'ZEL'
  opens "$title" Return
  kill "$program"
  wait "$program" 2>/dev/null
  [[ $(find . | sort) == "$before" ]] || fail "other files than before: $(find .)"
}

printf 'ES\r\nFalso' >config.ini
cp "$source_folder/examples/waves.zel" $'n\xff.zel'
cp "$source_folder/examples/waves.zel" 'two words.zel'
shows 'ZEL - n.*\.zel' $'n\xff.zel'
shows 'ZEL - two words\.zel' two words.zel
exit 0
