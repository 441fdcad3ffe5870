#!/usr/bin/env bash
# An installed program, which finds the marker of a package: it keeps its configuration in the user's
# own folder, and finds a document that is named from where it was started.
set -uo pipefail
build=$(dirname "$(dirname "$1")")
for tool in Xvfb openbox xdotool xprop import; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
. "$2/tests/support/screen.sh"
SCREEN_PICTURE=$build/installed_failed.png
rm -f "$SCREEN_PICTURE"

work=$(mktemp -d)
program=
trap 'kill $program 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY
open_screen "$work"
for component in Unspecified package; do
  cmake --install "$build" --prefix "$work/usr" --component $component >"$work/install.txt" 2>&1 ||
    fail "the installation"
done
mkdir "$work/here"
cp "$2/examples/conics.zel" "$work/here"
cd "$work/here" || exit 1
has_ended() { ! kill -0 "$program" 2>/dev/null; }

"$work/usr/bin/zel" conics.zel >"$work/zel.log" 2>&1 &
program=$!
window 'ZEL - (Idioma|Language)'
opens 'ZEL' Return
opens 'ZEL - conics.zel' Return
press has_ended ctrl+q
wait "$program" || fail "the program ended badly"
grep -q '^ES' "$work/config/zel/config.ini" || fail "no configuration in the user's own folder"
[[ $(ls) == conics.zel ]] || fail "the start left something where it was"
[[ ! -e $work/data/applications ]] || fail "the package's desktop entry was made again"
exit 0
