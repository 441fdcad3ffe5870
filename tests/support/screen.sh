# To be sourced by tests that use the real program as a user would: a screen of their own with a
# window manager, and waits that end with what they wait for. Nothing is said about how fast a
# machine is: a wait gives up after PATIENCE seconds, and whatever was pressed and had no effect is
# pressed again.
# shellcheck shell=bash

# shellcheck source-path=SCRIPTDIR
. "$(dirname "${BASH_SOURCE[0]}")/patience.sh"
AGAIN=20 # seconds after which a key counts as lost
screen_jobs=

# open_screen FOLDER: starts a screen and a window manager, with their files in FOLDER.
open_screen() {
  screen_files=$1
  exec 8>"$screen_files/display"
  # A screen begins anew when its last client goes, and throws out who comes meanwhile: the window
  # manager, where a look for it is over first.
  Xvfb -noreset -displayfd 8 -screen 0 1280x1024x24 >"$screen_files/xvfb.log" 2>&1 &
  screen_jobs=$!
  exec 8>&-
  wait_until test -s "$screen_files/display" || fail "no screen"
  DISPLAY=:$(<"$screen_files/display")
  export DISPLAY
  openbox >"$screen_files/openbox.log" 2>&1 &
  screen_jobs+=" $!"
  # A window that is mapped while the manager starts is lost.
  wait_until manager_runs || fail "no window manager"
}

close_screen() {
  # shellcheck disable=SC2086 # several jobs
  kill $screen_jobs 2>/dev/null
}

manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# fail WORDS: tells what went wrong, keeps a picture of the screen, and ends the test.
fail() {
  echo "failed: $1"
  xdotool search --onlyvisible --name . getwindowname %@ 2>/dev/null
  cat "$screen_files"/*.log
  if import -window root "$SCREEN_PICTURE" 2>/dev/null; then
    echo "the screen: $SCREEN_PICTURE"
  fi
  exit 1
}

# in_front TITLE: whether a visible window has this title (a regular expression); gives it the focus.
in_front() {
  local id
  id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1)
  [[ -n $id ]] || return 1
  [[ $(xdotool getactivewindow 2>/dev/null) == "$id" ]] || xdotool windowactivate "$id" 2>/dev/null
  wait_for 2 is_active "$id"
}
is_active() { [[ $(xdotool getactivewindow 2>/dev/null) == "$1" ]]; }
is_gone() { ! xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }

# window TITLE: waits for a window and gives it the focus.
window() { wait_until in_front "$1" || fail "no window '$1'"; }

# press CONDITION KEY...: presses the keys until the condition (a command line) holds.
press() {
  local condition=$1 end=$((SECONDS + PATIENCE))
  shift
  while [[ $SECONDS -lt $end ]]; do
    xdotool key --delay 60 "$@"
    # shellcheck disable=SC2086 # a command line
    wait_for "$AGAIN" eval "$condition" && return
  done
  fail "'$*' does not lead to: $condition"
}

# opens TITLE KEY...: the keys open this window, or come back to it.
opens() {
  local title=$1
  shift
  press "in_front '$title'" "$@"
}

# look NAME: takes a picture of the screen.
look() { import -window root "$screen_files/$1.png"; }

# look_still NAME: the same as soon as two pictures after each other are alike.
look_still() {
  look "$1"
  wait_until is_still "$1" || fail "the screen does not come to rest"
}
is_still() {
  cp "$screen_files/$1.png" "$screen_files/$1-before.png"
  sleep 0.3
  look "$1"
  ! differs "$1" "$1-before"
}

# differs ONE OTHER: whether two pictures of the screen differ.
differs() {
  local count
  count=$(compare -metric AE "$screen_files/$1.png" "$screen_files/$2.png" null: 2>&1)
  [[ ${count%%.*} != 0 ]]
}

# looks_other BEFORE NAME: takes a picture; whether it differs from the one before.
looks_other() {
  look "$2"
  differs "$1" "$2"
}

# at X Y: moves the mouse to a place in the window that has the focus.
at() { xdotool mousemove --sync --window "$(xdotool getactivewindow)" "$1" "$2" 2>/dev/null; }
