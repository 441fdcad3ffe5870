#!/usr/bin/env bash
# With too little memory a command fails like any other: a message and status 1, never an abort. The
# limit of the address space grows from where the program can begin to where the command is done.
set -uo pipefail
cli=$1
[[ -x $cli ]] || { echo "there is no $cli"; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# The sanitizer needs its terabytes. (grep -q would end before nm, and fail the pipe.)
nm -D "$cli" | grep __asan_init >/dev/null && exit 77

python3 - "$work" <<'PYTHON'
import sys
long = "x+" * 2_000_000 + "x"
with open(sys.argv[1] + "/long.zel", "w", newline="") as document:
    document.write("\r\n".join([
        "[PRINCIPAL]", "01.versiones_compatibles=2.0", " ", "[VISTA PRINCIPAL]", " ",
        "[GRAFICOS PRINCIPAL]", "[PROPIEDADES]", "nombre=a", "color=255", "ecuacion=" + long,
        "tipo=F", " ", "[PARAMETROS]", " ", " ", " "]))
with open(sys.argv[1] + "/lines", "w") as lines:
    lines.write("1\t" + long[:1_000_001] + "\n")
PYTHON

# below LIMIT ARGUMENTS...: the command with so many KiB of address space.
below() {
  local limit=$1
  shift
  (ulimit -v "$limit" && exec "$cli" "$@") <"$work/lines" >/dev/null 2>"$work/err"
}

first=4000
until below "$first" --version 2>/dev/null; do
  first=$((first + 256))
  [[ $first -lt 4000000 ]] || exit 1
done

# Not even the start aborts; the libraries of a toolkit may, before the program begins.
if ! ldd "$cli" | grep -q libQt; then
  for ((limit = first - 2000; limit <= first; limit += 8)); do
    below "$limit" --version
    status=$?
    case $status in
      0 | 127) ;; # done, or not loaded
      1) [[ -s $work/err ]] || { echo "silence below $limit KiB"; failures=$((failures + 1)); } ;;
      *)
        echo "the start below $limit KiB ended with $status and said: $(cat "$work/err")"
        failures=$((failures + 1))
        ;;
    esac
  done
fi

scarce() {
  local limit=$first status failed=0
  while [[ $limit -lt $((first + 400000)) ]]; do
    below "$limit" "$@"
    status=$?
    [[ $status -ne 0 ]] || break
    if [[ $status -ne 1 || ! -s $work/err ]]; then
      echo "$1 below $limit KiB ended with $status and said: $(cat "$work/err")"
      failures=$((failures + 1))
    fi
    failed=$((failed + 1))
    limit=$((limit + 512))
  done
  echo "$1 failed below $failed limits, and then ended with $status"
  [[ $status -eq 0 && $failed -gt 0 ]] || failures=$((failures + 1))
}

scarce check "$work/long.zel"
scarce resave "$work/long.zel" /dev/null
scarce evaluate --batch
exit "$failures"
