#!/usr/bin/env bash
# The desktop program, too, needs at most 8 n MB of memory and 100 MB besides for a document of n MB,
# n being the larger of what is read and what is written: it shows the document and keeps it as its
# session, the second time beside the session before.
set -uo pipefail
zel=$(dirname "$1")/zel
[[ -x $zel ]] || { echo "no desktop program in this build"; exit 77; }
[[ -r /proc/self/status ]] || { echo "no /proc"; exit 77; }
# The sanitizer has memory of its own. (grep -q would end before nm, and fail the pipe.)
nm -D "$zel" | grep __asan_init >/dev/null && exit 77
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state
export XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=offscreen QT_QPA_PLATFORMTHEME=none LC_ALL=C.UTF-8
chmod 700 "$work"
cd "$work" || exit 1
printf 'EN\r\nFalse' >config.ini

python3 - "$zel" "$work" <<'PYTHON'
import pathlib, re, subprocess, sys, time
zel, work = sys.argv[1], pathlib.Path(sys.argv[2])
BESIDES, EACH = 100 << 20, 8
SIZE = 40 << 20
PATIENCE = 600  # seconds
session = work / "state/zel/session.zel"


def document(*properties, view=b"xf=10"):
    lines = [b"[PRINCIPAL]", b"01.versiones_compatibles=2.0", b" ", b"[VISTA PRINCIPAL]", view, b" ",
             b"[GRAFICOS PRINCIPAL]", b"[GRAFICO]", b"[PROPIEDADES]", b"nombre=a", b"color=255",
             *properties, b" ", b"[PARAMETROS]", b" ", b" ", b" "]
    return b"\r\n".join(lines)


# Each byte becomes three in memory. The code of a formula is written beside it; a parabola, whose
# code does not come from its text, is written as it is read.
euros = b"\x80" * SIZE
documents = {
    "formula": document(b"tipo=F", b"ecuacion=" + euros),
    "range": document(b"tipo=F", b"ecuacion=x", view=b"xi=" + euros),
    "parabola": document(b"tipo=P", b"codigo=x", b"ecuacion=" + euros),
}


def peak(path):
    """Of the program with this document, in bytes, when it has kept the session."""
    before = session.stat().st_ino if session.exists() else None
    process = subprocess.Popen([zel, path.name], cwd=work)
    try:
        end = time.monotonic() + PATIENCE
        while not session.exists() or session.stat().st_ino == before:
            assert process.poll() is None, f"the program ended with {process.returncode}"
            assert time.monotonic() < end, "no session was kept"
            time.sleep(0.1)
        status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
        return int(re.search(r"VmHWM:\s+(\d+) kB", status)[1]) << 10
    finally:
        process.kill()
        process.wait()


failures = 0
for name, content in documents.items():
    path = work / f"{name}.zel"
    path.write_bytes(content)
    for start in "first", "second":
        used = peak(path)
        size = max(len(content), session.stat().st_size)
        bound = EACH * size + BESIDES
        print(f"{name}, {start} start: {used >> 20} MB for {size >> 20} MB, at most {bound >> 20}")
        failures += used > bound
    session.unlink()
sys.exit(failures)
PYTHON
