#!/usr/bin/env bash
# A long work shows how far it is on a terminal, and on nothing else.
set -uo pipefail
cli=$1
command -v python3 >/dev/null || exit 77

timeout 120 python3 - "$cli" <<'PYTHON'
import os
import pty
import subprocess
import sys

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


assert shows_progress(["evaluate", slow] + ["%d" % x for x in range(30000)])
assert shows_progress(["check-formula"] + ["%s+%d" % (slow, n) for n in range(100)] * 1)
PYTHON
