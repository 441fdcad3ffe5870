#!/usr/bin/env bash
# A long work shows how far it is on a terminal, and on nothing else.
set -uo pipefail
cli=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
command -v python3 >/dev/null || exit 77

# A graph of the largest size: few words on the command line then make a long work.
{
  printf '%s\r\n' '[PRINCIPAL]' '01.versiones_compatibles=2.0' ' ' '[VISTA PRINCIPAL]' ' ' \
    '[GRAFICOS PRINCIPAL]' '[PROPIEDADES]' 'nombre=a' 'color=255'
  printf 'ecuacion=%s\r\n' "$(printf 'x+%.0s' {1..3000})x"
  printf '%s\r\n' 'tipo=F' ' ' '[PARAMETROS]' ' ' ' '
} >"$work/slow.zel"

timeout 300 python3 - "$cli" "$work/slow.zel" <<'PYTHON'
import os
import pty
import subprocess
import sys

cli, document = sys.argv[1:]


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


assert shows_progress(["evaluate", "--document", document, "a(x)"] +
                      ["%d" % x for x in range(100000)])
assert shows_progress(["check-formula", "--document", document] +
                      ["a(x)+%d" % n for n in range(100000)])
PYTHON
