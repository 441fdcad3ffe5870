# To be sourced by the tests of the Windows programs, with the path of zel-cli.exe and the project's
# folder as arguments: `cli` and `linux_cli` run the two builds of zel-cli; `work` is a folder that
# goes away.
# shellcheck shell=bash disable=SC2034

cli_path=$1
root=$2
# shellcheck source-path=SCRIPTDIR
. "$(dirname "${BASH_SOURCE[0]}")/../support/patience.sh"
linux_path=$root/build/release/bin/zel-cli
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LANG=es_ES.UTF-8
failures=0

skip() {
  echo "skipped: $1"
  exit 77
}

# wine PROGRAM ARGUMENT...
wine() { timeout "$PATIENCE" "$root/scripts/wine.sh" "$@" 2>"$work/wine.log"; }
cli() { timeout "$PATIENCE" "$root/scripts/wine.sh" "$cli_path" "$@"; }
linux_cli() { "$linux_path" "$@"; }

# A Windows of the test's own, which shows its windows on the screen that is open by now.
own_windows() {
  wine cmd /c exit
  cp -a "$root/build/wine" "$work/home"
  export WINEPREFIX=$work/home
}
end_windows() { [[ ${WINEPREFIX:-} != "$work/home" ]] || timeout "$PATIENCE" /usr/lib/wine/wineserver64 -k; }

complain() {
  printf 'failed: %s\n' "$*"
  failures=$((failures + 1))
}

# same NAME FILE FILE: complains of files that differ.
same() {
  cmp "$2" "$3" >"$work/difference" 2>&1 || complain "$1: $(<"$work/difference")"
}

# says NAME EXPECTED COMMAND...: compares what a command writes, both streams, to the byte; the
# expected text has no line end at its end.
says() {
  local name=$1 expected=$2
  shift 2
  "$@" >"$work/said" 2>&1
  [[ "$(od -c "$work/said")" == "$(printf '%s\n' "$expected" | od -c)" ]] && return
  complain "$name: expected"
  printf '%s\nfound\n' "$expected"
  cat -A "$work/said"
}
