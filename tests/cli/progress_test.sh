#!/usr/bin/env bash
# A long work shows how far it is on a terminal, and on nothing else.
set -uo pipefail
cli=$1
command -v python3 >/dev/null || exit 77

timeout 600 python3 - "$cli" <<'PYTHON'
import os
import pty
import subprocess
import sys
import tempfile

cli = sys.argv[1]
slow = "+".join(["x"] * 7000)


def shows_progress(arguments, lines=b""):
    """Waits for the first look at how far the command is, and ends it."""
    terminal, end = pty.openpty()
    command = subprocess.Popen([cli] + arguments, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                               stderr=end)
    os.close(end)
    try:
        command.stdin.write(lines)
        command.stdin.flush()
        shown = os.read(terminal, 100)
    except OSError:  # the command has ended
        shown = b""
    command.kill()
    command.communicate()
    os.close(terminal)
    return shown.startswith(b"\r")


def shows_bar(arguments, bar, complaint):
    """Waits for the bar, which the complaint of another document does not break."""
    terminal, end = pty.openpty()
    command = subprocess.Popen([cli] + arguments, stderr=end)
    os.close(end)
    shown = b""
    try:
        while bar not in shown or complaint not in shown:
            shown += os.read(terminal, 1000)
    except OSError:  # the command has ended
        pass
    command.kill()
    command.wait()
    os.close(terminal)
    return bar in shown and complaint in shown


def write_document(path, formula, kind, *parameters):
    with open(path, "w", newline="") as document:
        document.write("\r\n".join([
            "[PRINCIPAL]", "01.versiones_compatibles=2.0", " ", "[VISTA PRINCIPAL]", " ",
            "[GRAFICOS PRINCIPAL]", "[PROPIEDADES]", "nombre=a", "color=255", "codigo=" + formula,
            "ecuacion=" + formula, "tipo=" + kind, " ", "[PARAMETROS]", *parameters, " ", " "]))


assert shows_progress(["evaluate", slow] + ["%d" % x for x in range(30000)])
with tempfile.TemporaryDirectory() as work:
    write_document(work + "/endless.zel", "p*x", "Z", "inicio=0", "fin=1", "variacion=0")
    assert shows_bar(["render", work + "/missing.zel", work + "/endless.zel", "-o", work + "/out/",
                      "--quality", "1"], b"\r[" + b"=" * 20 + b" " * 20 + b"] 1/2", b"missing.zel: ")

    write_document(work + "/long.zel", "+".join(["x"] * 4000), "F")
    assert shows_progress(["check-formula", "--document", work + "/long.zel"]
                          + ["a(x)+%d" % n for n in range(10_000)])
PYTHON
