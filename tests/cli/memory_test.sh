#!/usr/bin/env bash
# A document of n MB needs at most 8 n MB of memory and 100 MB besides, n being the larger of what is
# read and what is written. Of each byte in a file three can become in memory, in formula and code.
set -uo pipefail
cli=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The sanitizer has memory of its own. (grep -q would end before nm, and fail the pipe.)
nm -D "$cli" | grep __asan_init >/dev/null && exit 77

python3 - "$work" <<'PYTHON' || exit 1
import pathlib, sys
work = pathlib.Path(sys.argv[1])
SIZE = 12 << 20


def document(*graphs, header=()):
    lines = [b"[PRINCIPAL]", b"01.versiones_compatibles=2.0", *header, b" ", b"[VISTA PRINCIPAL]",
             b" ", b"[GRAFICOS PRINCIPAL]"]
    for letter, properties, parameters in graphs:
        lines += [b"[GRAFICO]", b"[PROPIEDADES]", b"nombre=" + letter, b"color=255", *properties,
                  b" ", b"[PARAMETROS]", *parameters, b" ", b" "]
    return b"\r\n".join(lines + [b" "])


def pairs(count):
    return [b"%d=" % i for i in range(count)]


euros = b"\x80" * SIZE
signs = b"\x80!" * (SIZE // 2)
letters = b"abcdefghijklmnopqrstuvwxyz"
documents = {
    "formula": document((b"a", [b"tipo=F", b"ecuacion=" + euros], [])),
    "signs": document((b"a", [b"tipo=F", b"ecuacion=" + signs], [])),
    "circle": document((b"a", [b"tipo=C"], [b"codigo1=" + euros])),
    "twice": document(*[(b"a", [b"tipo=F", b"ecuacion=" + euros[:SIZE // 2]], [])] * 2),
    "pairs": document(*[(letters[i:i + 1], [b"tipo=F", b"ecuacion=x"], pairs(16384))
                        for i in range(26)], header=pairs(16383)),
}


for name, content in documents.items():
    (work / f"{name}.zel").write_bytes(content)
PYTHON

# Another process: what it has itself counts for those that it starts.
python3 - "$cli" "$work" <<'PYTHON'
import os, pathlib, subprocess, sys
cli, work = sys.argv[1], pathlib.Path(sys.argv[2])
BESIDES, EACH = 100 << 20, 8


def peak(*arguments):
    process = subprocess.Popen([cli, *arguments], stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    assert process.returncode == 0, (arguments, process.returncode)
    return usage.ru_maxrss << 10


failures = 0


def expect(name, used, size):
    global failures
    bound = EACH * size + BESIDES
    print(f"{name}: {used >> 20} MB for {size >> 20} MB, at most {bound >> 20}")
    failures += used > bound


for path in sorted(work.glob("*.zel")):
    expect(f"check {path.stem}", peak("check", path), path.stat().st_size)
    out = work / "out"
    used = peak("resave", path, out)
    expect(f"resave {path.stem}", used, max(path.stat().st_size, out.stat().st_size))
sys.exit(failures)
PYTHON
