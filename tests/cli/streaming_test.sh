#!/usr/bin/env bash
# A batch answers line by line, and a million lines need no more memory than ten. Nor do a million rows
# of a table.
set -uo pipefail
cli=$1

python3 - "$cli" "$2" <<'PYTHON'
import resource
import subprocess
import sys

cli = sys.argv[1]


def peak_after(lines):
    """The peak memory in KiB of a batch of so many lines, all of which must be answered."""
    code = ("import resource, subprocess, sys\n"
            "p = subprocess.Popen([sys.argv[1], 'evaluate', '--batch'], stdin=subprocess.PIPE,"
            " stdout=subprocess.PIPE)\n"
            "import threading\n"
            "n = int(sys.argv[2])\n"
            "def feed():\n"
            "    for i in range(n): p.stdin.write(b'%d\\tx^2+1\\n' % (i % 1000))\n"
            "    p.stdin.close()\n"
            "threading.Thread(target=feed).start()\n"
            "answered = sum(1 for line in p.stdout if line.startswith(b'ok'))\n"
            "p.wait()\n"
            "assert answered == n, answered\n"
            "print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)\n")
    out = subprocess.run([sys.executable, "-c", code, cli, str(lines)], check=True,
                         capture_output=True)
    return int(out.stdout)


few, many = peak_after(10), peak_after(1_000_000)
print(f"peak memory: {few} KiB for ten lines, {many} KiB for a million")
assert many < few + 4096, "memory grows with the lines"

def peak_of_table(rows):
    """The peak memory in KiB of a table of so many rows in JSON, all of which must be there."""
    code = ("import resource, subprocess, sys\n"
            "n = int(sys.argv[3])\n"
            "p = subprocess.Popen([sys.argv[1], 'table', sys.argv[2], '--graph', 'a', '--from', '1',"
            " '--to', str(n), '--step', '1', '--json'], stdout=subprocess.PIPE)\n"
            "rows = sum(1 for line in p.stdout if line.startswith(b'{'))\n"
            "assert p.wait() == 0\n"
            "assert rows == n, rows\n"
            "print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)\n")
    document = sys.argv[2] + "/examples/waves.zel"
    out = subprocess.run([sys.executable, "-c", code, cli, document, str(rows)], check=True,
                         capture_output=True)
    return int(out.stdout)


few, many = peak_of_table(10), peak_of_table(1_000_000)
print(f"peak memory: {few} KiB for ten rows, {many} KiB for a million")
assert many < few + 4096, "memory grows with the rows"

batch = subprocess.Popen([cli, "evaluate", "--batch"], stdin=subprocess.PIPE,
                         stdout=subprocess.PIPE)
for x in range(3):
    batch.stdin.write(b"%d\tx+1\n" % x)
    batch.stdin.flush()
    answer = batch.stdout.readline()  # hangs, and so fails by time, when no answer comes
    assert answer == b"ok\t%d\n" % (x + 1), answer
batch.stdin.close()
assert batch.wait() == 0
PYTHON
