#!/usr/bin/env bash
# Another program talks to a plot through pipes: each object comes before the next command is sent.
set -uo pipefail
cli=$1
source_dir=$2
export LC_ALL=C.UTF-8

timeout 600 python3 - "$cli" "$source_dir/examples/waves.zel" <<'PYTHON'
import json
import subprocess
import sys

cli, document = sys.argv[1:]
command = [cli, "drive", document, "--range", "-12", "12", "-9", "9"]
plot = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                        stderr=subprocess.PIPE)


def answer():
    """The next object; hangs, and so fails by time, when none comes."""
    return json.loads(plot.stdout.readline())


def say(line):
    plot.stdin.write(line.encode() + b"\n")
    plot.stdin.flush()
    return answer()


assert answer()["redraws"] == 1
assert say("Derecha")["xi"] == -8
plot.stdin.write(b"\n")  # no object for an empty line
assert say("Izquierda\r")["xi"] == -12
assert say("no such command")["redraws"] == 3
assert plot.stderr.readline().startswith("línea 4: ".encode())  # at once, too
before = say("Zoom_a_Medida")
assert before["pointer"] == "cross" and before["zoom_rectangle"] is None
assert say("down left 3000 2250")["zoom_rectangle"] == [3000, 2250, 1, 1]
assert say("move left 9000 6750")["zoom_rectangle"] == [3000, 2250, 6000, 4500]
zoomed = say("up left 9000 6750")
assert [zoomed[end] for end in ("xi", "xf", "yi", "yf")] == [-6, 6, -4.5, 4.5], zoomed
assert say("Imprimir")["closed_to"] == "print"
assert say("Parar")["closed_to"] is None
plot.stdin.close()
assert plot.stdout.read() == b""
assert plot.wait() == 1  # for the line that was no command

# Without any input there is the start alone.
silent = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, check=True)
assert silent.stdout.count(b"\n") == 1 and silent.stderr == b"", silent

# A reader that goes away ends the plot.
deaf = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                        stderr=subprocess.PIPE)
deaf.stdout.readline()
deaf.stdout.close()
deaf.communicate(b"Derecha\n" * 1000)
PYTHON
