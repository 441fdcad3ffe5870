# To be sourced after wine.sh by tests that look at windows: a screen of their own, in $work.
# shellcheck shell=bash disable=SC2154

for tool in Xvfb openbox xdotool xprop xclip import compare; do
  command -v "$tool" >/dev/null || skip "no $tool"
done
# shellcheck source-path=SCRIPTDIR
. "$(dirname "${BASH_SOURCE[0]}")/../support/screen.sh"
export QT_QPA_PLATFORM=windows
SCREEN_PICTURE=$root/build/windows_failed.png
children=() # the processes that end with the test
trap 'end_windows; kill "${children[@]}" 2>/dev/null; close_screen; wait 2>/dev/null; rm -rf "$work"' EXIT

# focused TITLE: waits until a visible window has this title (a regular expression), and focuses it.
focused() {
  window "$1"
  sleep 0.4 # Wine's own focus follows that of the screen
}
gone() { wait_until is_gone "$1" || fail "the window '$1' stays"; }
keys() { xdotool key --delay 80 "$@"; }

# ended PROCESS: waits until it has ended well.
ended() {
  wait_until not_running "$1" || fail "the program does not end"
  wait "$1" || fail "the program ended badly"
}
not_running() { ! kill -0 "$1" 2>/dev/null; }
