# To be sourced after wine.sh by tests that look at windows: a screen of their own, in $work.
# shellcheck shell=bash disable=SC2154

for tool in Xvfb openbox xdotool xprop xclip import; do
  command -v "$tool" >/dev/null || skip "no $tool"
done
children=() # the processes that end with the test
trap 'end_windows; kill "${children[@]}" 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT

# seconds COUNT COMMAND...: waits until the command succeeds, at most so many seconds.
seconds() {
  local end=$((SECONDS + $1))
  shift
  until "$@" 2>/dev/null; do
    [[ $SECONDS -lt $end ]] || return 1
    sleep 0.1
  done
}

is_managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

open_screen() {
  exec 8>"$work/display"
  Xvfb -displayfd 8 -screen 0 1280x1024x24 >"$work/xvfb.log" 2>&1 &
  children+=($!)
  exec 8>&-
  seconds 60 test -s "$work/display" || skip "no screen"
  DISPLAY=:$(<"$work/display")
  export DISPLAY QT_QPA_PLATFORM=windows
  openbox >"$work/openbox.log" 2>&1 &
  children+=($!)
  seconds 60 is_managed || skip "no window manager"
}

# fail COMPLAINT: tells which windows there are, and ends the test.
fail() {
  echo "failed: $1"
  xdotool search --onlyvisible --name . getwindowname %@ 2>/dev/null
  import -window root "${pictures:-$work}/failed.png"
  cat "$work/zel.log"
  exit 1
}

is_shown() { xdotool search --onlyvisible --name "^$1\$" >/dev/null; }
is_gone() { ! is_shown "$1"; }
focus() {
  local id
  id=$(xdotool search --onlyvisible --name "^$1\$" | tail -n 1)
  [[ -n $id ]] && xdotool windowactivate --sync "$id"
}

# window TITLE: waits until a visible window has this title (a regular expression), and focuses it.
window() {
  seconds 60 focus "$1" || fail "no window '$1'"
  sleep 0.4
}
gone() { seconds 60 is_gone "$1" || fail "the window '$1' stays"; }
keys() { xdotool key --delay 80 "$@"; }

# ended PROCESS: waits until it has ended well.
ended() {
  seconds 60 not_running "$1" || fail "the program does not end"
  wait "$1" || fail "the program ended badly"
}
not_running() { ! kill -0 "$1"; }
