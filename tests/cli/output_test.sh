#!/usr/bin/env bash
# Pictures, examples and a full disk, through the program itself.
set -uo pipefail
cli=$1
source_dir=$2
for program in "$cli" "$(dirname "$cli")/make_examples"; do
  [[ -x $program ]] || { echo "there is no $program"; exit 1; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
unset LC_ALL LC_MESSAGES
export LANG=C

check() {
  local what=$1
  shift
  "$@" && return
  echo "failed: $what"
  failures=$((failures + 1))
}

# The examples are what the program's own writer makes of them.
make_examples=$(dirname "$cli")/make_examples
check "make_examples runs" "$make_examples" "$work"
for example in "$source_dir"/examples/*.zel; do
  check "$(basename "$example") is up to date" cmp "$example" "$work/$(basename "$example")"
done
examples=("$source_dir"/examples/*.zel)
check "there are six examples at least" test ${#examples[@]} -ge 6

# An output that cannot be written is a failed job.
"$cli" compile x >/dev/full 2>"$work/err"
check "a full disk fails" test $? -eq 1
check "a full disk has its line" grep -q 'No se pudo escribir la salida.' "$work/err"

for asked in --version --help "render --help"; do
  # shellcheck disable=SC2086 # two words
  "$cli" $asked >/dev/full 2>"$work/err"
  check "$asked to a full disk fails" test $? -eq 1
  check "$asked to a full disk has its line" grep -q 'No se pudo escribir la salida.' "$work/err"
done

# through_pipe PIPE FILE COMMAND...: runs it while a reader puts what goes through the pipe into the
# file. A reader to whom nothing comes does not wait.
through_pipe() {
  local pipe=$1 reader status
  cat "$pipe" >"$2" &
  reader=$!
  shift 2
  "$@"
  status=$?
  [[ $status == 0 && -p $pipe ]] || kill "$reader"
  wait "$reader"
  return "$status"
}

# A pipe and a device are written as they are, and stay what they are.
mkfifo "$work/fifo.svg" "$work/fifo.zel"
"$cli" render "$source_dir/examples/waves.zel" -o "$work/waves.svg"
check "render to a pipe" through_pipe "$work/fifo.svg" "$work/through.svg" \
  "$cli" render "$source_dir/examples/waves.zel" -o "$work/fifo.svg"
check "the pipe gets the picture" cmp "$work/waves.svg" "$work/through.svg"
check "resave to a pipe" through_pipe "$work/fifo.zel" "$work/through.zel" \
  "$cli" resave "$source_dir/examples/waves.zel" "$work/fifo.zel"
check "the pipe gets the document" cmp "$source_dir/examples/waves.zel" "$work/through.zel"
check "the pipe is still there" test -p "$work/fifo.svg" -a -p "$work/fifo.zel"
check "a device takes a document" "$cli" resave "$source_dir/examples/waves.zel" /dev/null
check "the device is still there" test -c /dev/null
"$cli" resave "$source_dir/examples/waves.zel" /dev/full 2>"$work/err"
check "a full device fails" test $? -eq 1
check "a full device has its line" grep -q 'No se pudo salvar el archivo.' "$work/err"

# The SVG is well-formed.
check "svg" "$cli" render "$source_dir/examples/all_kinds.zel" -o "$work/a.svg"
check "svg is well-formed" xmllint --noout "$work/a.svg"

# It starts without a toolkit's libraries.
if command -v ldd >/dev/null; then
  check "no toolkit is linked" test "$(ldd "$cli" | grep -c 'libQt')" -eq 0
fi

check "png" "$cli" render "$source_dir/examples/all_kinds.zel" -o "$work/a.png" --width 320 --height 200
check "png size" grep -q 'PNG 320x200 .* 8-bit sRGB' <(identify "$work/a.png")
check "a large png" "$cli" render "$source_dir/examples/conics.zel" -o "$work/large.png" --width 9000 --height 3000
check "large png size" grep -q 'PNG 9000x3000 ' <(identify "$work/large.png")

for example in "$source_dir"/examples/*.zel; do
  name=$(basename "$example" .zel)
  check "$name as pdf" "$cli" render "$example" -o "$work/$name.pdf"
  check "$name is a sound pdf" qpdf --check "$work/$name.pdf" >/dev/null
  # Another process gives the same bytes: nothing in them depends on addresses or threads.
  for ending in pdf svg png; do
    "$cli" render "$example" -o "$work/one.$ending"
    "$cli" render "$example" -o "$work/again.$ending"
    check "$name is the same $ending again" cmp "$work/one.$ending" "$work/again.$ending"
  done
done
check "pdf page of 600 x 450 points" grep -qE '^Page size: +600 x 450 pts' <(pdfinfo "$work/all_kinds.pdf")
check "pdf has one page" grep -qE '^Pages: +1$' <(pdfinfo "$work/all_kinds.pdf")
check "pdf has no date" test "$(pdfinfo "$work/all_kinds.pdf" | grep -c Date)" -eq 0

# The axes cross in the middle of both, and the circle's colour is on its leftmost point.
cat >"$work/look.py" <<'PYTHON'
import sys
with open(sys.argv[1], 'rb') as page:
    assert page.readline() == b'P6\n'
    width, height = map(int, page.readline().split())
    page.readline()
    pixels = page.read()
def near(x, y, wanted):
    spots = [pixels[3 * (v * width + u):][:3] for u in range(x - 2, x + 3) for v in range(y - 2, y + 3)]
    return any(all(abs(a - b) < 60 for a, b in zip(spot, wanted)) for spot in spots)
assert (width, height) == (800, 600), (width, height)
assert near(400, 300, (0, 0, 0))
assert near(100, 140, (213, 94, 0))
assert not near(20, 20, (0, 0, 0))
PYTHON
check "pdf renders" pdftoppm -r 96 -singlefile "$work/all_kinds.pdf" "$work/page"
check "pdf shows the plot" python3 "$work/look.py" "$work/page.ppm"
check "png of 800 x 600" "$cli" render "$source_dir/examples/all_kinds.zel" -o "$work/b.png"
check "png as ppm" convert "$work/b.png" -depth 8 "ppm:$work/b.ppm"
check "png shows the plot" python3 "$work/look.py" "$work/b.ppm"
exit "$failures"
