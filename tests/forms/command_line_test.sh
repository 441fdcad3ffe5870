#!/usr/bin/env bash
# The real program, started with the name of a document that is no UTF-8, and with a name in two
# words: it opens that file, and makes no other.
set -uo pipefail
zel=$(dirname "$1")/zel
source_folder=$2
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done

work=$(mktemp -d)
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none
unset WAYLAND_DISPLAY
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
exec 8>"$work/display"
Xvfb -displayfd 8 -screen 0 1280x1024x24 >"$work/xvfb.log" 2>&1 &
server=$!
exec 8>&-
program=
trap 'kill $program $server 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
for _ in $(seq 100); do [[ -s $work/display ]] && break; sleep 0.1; done
DISPLAY=:$(<"$work/display")
export DISPLAY

# opens TITLE NAME...: starts the program with these arguments; whether a window comes up with this
# title (a regular expression), and the folder holds what it held before.
opens() {
  local title=$1 before after found=
  shift
  before=$(ls -A | sort)
  "$zel" "$@" >"$work/zel.log" 2>&1 &
  program=$!
  for _ in $(seq 150); do
    xdotool search --name '^ZEL$' key Return 2>/dev/null
    xdotool search --onlyvisible --name "$title" >/dev/null 2>&1 && found=yes && break
    sleep 0.1
  done
  kill "$program"
  wait "$program" 2>/dev/null
  after=$(ls -A | sort)
  [[ -n $found ]] || { echo "no window '$title' for $(printf '%q ' "$@")"; cat "$work/zel.log"; return 1; }
  [[ $before == "$after" ]] || { echo "other files than before: $after"; return 1; }
}

status=0
printf 'ES\r\nFalso' >config.ini
cp "$source_folder/examples/waves.zel" $'n\xff.zel'
cp "$source_folder/examples/waves.zel" 'two words.zel'
opens '^ZEL - n.*\.zel$' $'n\xff.zel' || status=1
opens '^ZEL - two words\.zel$' two words.zel || status=1
exit $status
