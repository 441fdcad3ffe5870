# To be sourced by tests that wait: for a condition, and far longer than a busy machine takes.
# shellcheck shell=bash

PATIENCE=600 # seconds; tests/support/patience.h has the same

# wait_until COMMAND...: runs it again and again until it succeeds.
wait_until() { wait_for "$PATIENCE" "$@"; }

# wait_for SECONDS COMMAND...
wait_for() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [[ $SECONDS -lt $end ]] || return 1
    sleep 0.1
  done
}
