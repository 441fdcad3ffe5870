#!/usr/bin/env bash
# A signal that asks the real program to end is as good as a logout: what is declared and the
# configuration are kept, and the exit status is 0, at whatever window, and without standard streams.
set -uo pipefail
zel=$(dirname "$1")/zel
document=$2/examples/waves.zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/../support/patience.sh"
[[ -r /proc/self/status ]] || { echo "the system does not tell which signals are caught"; exit 77; }

work=$(mktemp -d)
program=
trap 'kill -KILL $program 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=offscreen QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
export ASAN_OPTIONS=detect_leaks=0
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1

fail() {
  echo "failed: $*"
  exit 1
}

has_ended() { ! kill -0 "$program" 2>/dev/null; }

# catches NUMBER: whether it is the program by now, and it has a handler for this signal.
catches() {
  local mask
  [[ /proc/$program/exe -ef $zel ]] || return
  mask=$(awk '/^SigCgt/ { print $2 }' "/proc/$program/status" 2>/dev/null)
  [[ -n $mask && $((16#$mask >> ($1 - 1) & 1)) == 1 ]]
}
through=() # what starts the program
start() {
  # A shell lets what runs behind it ignore interrupts.
  env --default-signal=INT "${through[@]}" "$zel" "$@" >"$work/zel.log" 2>&1 &
  program=$!
  goes_on_to "wait for signals" catches 15
}
# goes_on_to WORDS COMMAND...: waits until the command succeeds; the program must live to see it.
goes_on_to() {
  local words=$1
  shift
  wait_until ended_or "$@" || fail "it does not $words"
  ! has_ended || fail "it ends by itself and does not $words"
}
ended_or() { has_ended || "$@"; }
# ends_by SIGNAL: sends it to the program, twice as a terminal does that is closed; it ends by itself.
ends_by() {
  local status
  kill -s "$1" "$program"
  kill -s "$1" "$program" 2>/dev/null
  wait_until has_ended || fail "it does not end"
  wait "$program"
  status=$?
  program=
  [[ $status == 0 ]] || fail "the status after $1 is $status"
}

# keeps_all SIGNAL: the program keeps all when the signal comes. While nothing can be kept where it
# belongs, the session is not kept before that, and the configuration that is read has gone.
keeps_all() {
  rm -rf "$XDG_STATE_HOME" "$XDG_DATA_HOME"
  mkdir "$XDG_STATE_HOME"
  touch "$XDG_STATE_HOME/zel"
  printf 'EN\r\nFalse' >config.ini
  start "$document"
  goes_on_to "open the document" grep -qs waves.zel "$XDG_DATA_HOME/recently-used.xbel"
  rm "$XDG_STATE_HOME/zel" config.ini
  ends_by "$1"
  cmp -s <(grep '^ecuacion=' "$XDG_STATE_HOME/zel/session.zel") \
    <(grep '^ecuacion=' "$document") || fail "the session is not kept at $1"
  grep -q '^EN' config.ini || fail "the configuration is not kept at $1"
}
for signal in TERM INT HUP; do
  keeps_all "$signal"
done
# shellcheck disable=SC2016 # for the shell that is started
through=(bash -c 'exec "$0" "$@" <&- >&- 2>&-')
keeps_all TERM
through=()

# A first start that ends so leaves nothing that a later one would take for a choice.
rm -rf config.ini "$XDG_STATE_HOME"
start
ends_by TERM
[[ ! -e config.ini && ! -e $XDG_STATE_HOME ]] || fail "a first start leaves something"

# Before there are windows, too, where only a message is shown.
printf 'nothing' >config.ini
start
ends_by TERM
[[ $(cat config.ini) == nothing ]] || fail "a configuration that cannot be read is changed"
exit 0
