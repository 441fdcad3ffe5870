#!/usr/bin/env bash
# A first start that ends before its language is accepted, by a kill at whatever moment, does not
# stand in the way of a later one; and settings that cannot be read end a start without a wait.
set -uo pipefail
zel=$(dirname "$1")/zel

skip() {
  echo "skipped: $*"
  exit 77
}

[[ -x $zel ]] || skip "no desktop program in this build"
command -v strace >/dev/null || skip "there is no strace"
strace -o /dev/null true 2>/dev/null || skip "strace may not trace here"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=offscreen QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
export ASAN_OPTIONS=detect_leaks=0
mkdir -m 700 "$work/run"
cd "$work/run" || exit 1
complaints=0

complain() {
  echo "$*"
  complaints=$((complaints + 1))
}

# start_until PATTERN [STRACE OPTION...]: starts the program, and kills it once a call on config.ini
# that the pattern describes has returned, or when it has ended by itself.
start_until() {
  local pattern=$1 tracer
  shift
  rm -f "$work/trace" # nothing of the start before is taken for this one's
  strace -f -o "$work/trace" -e trace=file "$@" "$zel" >/dev/null 2>&1 &
  tracer=$!
  for _ in $(seq 6000); do
    grep -Eq "$pattern" "$work/trace" 2>/dev/null && break
    kill -0 "$tracer" 2>/dev/null || break
    sleep 0.1
  done
  kill -KILL "$(awk '{ print $1; exit }' "$work/trace" 2>/dev/null)" 2>/dev/null
  wait "$tracer" 2>/dev/null
  grep -Eq "$pattern" "$work/trace" || complain "$pattern was not seen: $(grep config.ini "$work/trace")"
}

taken_away='unlink(at)?\(.*/config.ini"(.*= 0$| <unfinished)'

start_until "$taken_away"
[[ -z $(ls -A) ]] || complain "a killed first start leaves $(ls -A)"
grep -q 'config.ini", .*O_CREAT.* = [0-9]' "$work/trace" || complain "no config.ini was made"

# Killed between the making and the taking away: the empty file is gone after the next start.
start_until 'config.ini", .*O_CREAT.* = [0-9]' -e inject=unlink,unlinkat:signal=KILL
[[ -f config.ini && ! -s config.ini ]] || complain "the kill came too late: $(ls -A)"
start_until "$taken_away"
[[ -z $(ls -A) ]] || complain "the start after a killed one leaves $(ls -A)"

# The look at a FIFO is followed by no open, which would wait.
mkfifo config.ini
start_until 'stat.*/config.ini".*S_IFIFO'
grep -q 'open.*config.ini' "$work/trace" && complain "the FIFO was opened"
[[ -p config.ini ]] || complain "the FIFO is gone"

exit $((complaints > 0))
