#!/usr/bin/env bash
# Ctrl-C ends a command that would never end with status 130 and leaves no half-written file.
set -uo pipefail
cli=$1
source_dir=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

printf '%s\r\n' '[PRINCIPAL]' '01.versiones_compatibles=2.0' ' ' '[VISTA PRINCIPAL]' ' ' \
  '[GRAFICOS PRINCIPAL]' '[PROPIEDADES]' 'nombre=a' 'color=255' 'ecuacion=p*x' 'tipo=Z' ' ' \
  '[PARAMETROS]' 'inicio=0' 'fin=1' 'variacion=0' ' ' ' ' >"$work/endless.zel"

# interrupted NAME COMMAND...: the command must still run after a second, and end with 130.
interrupted() {
  local name=$1 pid status
  shift
  # A shell's background jobs ignore Ctrl-C; setting the trap to its default undoes that.
  (
    trap - INT
    exec env -i LC_ALL=es_ES.UTF-8 python3 -c '
import os, signal, sys
signal.signal(signal.SIGINT, signal.SIG_DFL)
signal.alarm(60)  # what cannot be interrupted fails, and ends too
os.execv(sys.argv[1], sys.argv[1:])' "$@"
  ) >"$work/out" 2>"$work/err" <"$work/pipe" &
  pid=$!
  exec 9>"$work/pipe" # keeps the input open
  sleep 1
  if ! kill -INT "$pid" 2>/dev/null; then
    echo "$name ended by itself"
    failures=$((failures + 1))
  fi
  wait "$pid"
  status=$?
  exec 9>&-
  if [[ $status -ne 130 ]]; then
    echo "$name ended with $status"
    failures=$((failures + 1))
  fi
}

mkfifo "$work/pipe"
interrupted "a table with a step of 0" \
  "$cli" table "$work/endless.zel" --graph a --from 0 --to 1 --step 0
interrupted "a family with a step of 0" \
  "$cli" render "$work/endless.zel" -o "$work/picture.svg" --quality 1
interrupted "endless pictures in a folder, with some that are done" \
  "$cli" render "$work/endless.zel" "$source_dir"/examples/*.zel -o "$work/pictures/" --quality 1
for example in "$source_dir"/examples/*.zel; do
  picture=$work/pictures/$(basename "$example" .zel).png
  [[ ! -e $picture ]] || identify "$picture" >"$work/said" 2>&1 ||
    { echo "half a picture: $(cat "$work/said")"; failures=$((failures + 1)); }
done
interrupted "a plot with a family with a step of 0" "$cli" drive "$work/endless.zel" --quality 1
interrupted "a plot that waits for commands" \
  "$cli" drive "$source_dir/examples/waves.zel" --quality 1
interrupted "a batch that waits for input" "$cli" evaluate --batch
mkfifo "$work/unread.svg" "$work/unread.zel"
interrupted "a picture for a pipe that nobody reads" \
  "$cli" render "$source_dir/examples/waves.zel" -o "$work/unread.svg"
interrupted "a document for a pipe that nobody reads" \
  "$cli" resave "$source_dir/examples/waves.zel" "$work/unread.zel"
for pipe in "$work/unread.svg" "$work/unread.zel"; do
  [[ -p $pipe ]] || { echo "$pipe is no pipe any more"; failures=$((failures + 1)); }
done
rm "$work/unread.svg" "$work/unread.zel"

# Whoever starts the program with Ctrl-C ignored keeps it ignored: the answer comes after the signal.
python3 - "$cli" <<'PYTHON' || failures=$((failures + 1))
import signal, subprocess, sys
batch = subprocess.Popen([sys.argv[1], "evaluate", "--batch"], stdin=subprocess.PIPE,
                         stdout=subprocess.PIPE,
                         preexec_fn=lambda: signal.signal(signal.SIGINT, signal.SIG_IGN))
for x in b"1\tx\n", b"2\tx\n":
    batch.stdin.write(x)
    batch.stdin.flush()
    answer = batch.stdout.readline()
    assert answer == b"ok\t" + x[:1] + b"\n", f"an ignored Ctrl-C ended the program: {answer}"
    batch.send_signal(signal.SIGINT)
batch.stdin.close()
assert batch.wait() == 0, batch.returncode
PYTHON

# While many pictures are put in their places, from all threads, Ctrl-C leaves whole ones only.
python3 - "$cli" "$source_dir" "$work" <<'PYTHON' || failures=$((failures + 1))
import os, pathlib, shutil, signal, subprocess, sys
cli, work = sys.argv[1], pathlib.Path(sys.argv[3])
document = pathlib.Path(sys.argv[2]) / "examples" / "waves.zel"
names = [work / f"{i}.zel" for i in range(300)]
for name in names:
    shutil.copy(document, name)
default = lambda: signal.signal(signal.SIGINT, signal.SIG_DFL)
whole = None
for wanted in (1, 2, 5, 20, 60):
    out = work / f"many{wanted}"
    out.mkdir()
    render = subprocess.Popen([cli, "render", *names, "-o", out, "--format", "svg", "--width", "100",
                               "--height", "100"], preexec_fn=default)
    while len(list(out.glob("*.svg"))) < wanted and render.poll() is None:
        pass
    render.send_signal(signal.SIGINT)
    assert render.wait() == 130, render.returncode
    files = [one for one in out.iterdir() if not one.name.startswith(".zel-")]
    assert len(files) < len(names), "it was done before"
    for one in files:
        whole = whole or one.read_bytes()
        assert one.read_bytes() == whole and whole.endswith(b"</svg>\n"), one
    assert not list(out.glob(".zel-*")), "a temporary file is left"
    shutil.rmtree(out)
PYTHON

left=$(find "$work" -name '*.svg*' -o -name '.zel-*')
if [[ -n $left ]]; then
  echo "left behind: $left"
  failures=$((failures + 1))
fi
exit "$failures"
