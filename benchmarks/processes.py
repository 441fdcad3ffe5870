"""Rows that other processes measure or are."""
import os
import re
import statistics
import subprocess
import sys
import tempfile

WIDTH, HEIGHT, QUALITY = 1920, 1080, 100
RENDER_RUNS = 15
COMPILE_RUNS = 51


def in_process(programs, row, threads=None, scale=1):
    """What bench_rows prints of a row: what exactly, seconds, and the seconds beside it. muParser's
    bulk mode uses so many threads, by itself as many as there are processors. The scale is that of
    the screen."""
    with tempfile.TemporaryDirectory() as folder:
        environment = dict(os.environ, XDG_RUNTIME_DIR=folder, QT_SCALE_FACTOR=str(scale))
        if threads:
            environment["OMP_NUM_THREADS"] = str(threads)
        ran = subprocess.run([os.path.join(programs, "bench_rows"), row], env=environment,
                             stdout=subprocess.PIPE, text=True, check=False)
    if ran.returncode != 0:
        sys.exit(f"The row {row} could not be measured.")
    measured = []
    for line in ran.stdout.splitlines():
        _, what, *seconds = line.split("\t")
        measured.append((what, *map(float, seconds)))
    return measured


def gnuplot_script(document, picture):
    """The functions and the range of a document, in gnuplot's language."""
    with open(document, encoding="cp1252") as file:
        pairs = re.findall(r"^(\w+)=(.*?)\r?$", file.read(), re.MULTILINE)
    view = dict(pairs)
    functions = [re.sub(r"/(\d+)\b", r"/\1.0", text.replace("^", "**"))  # no division of integers
                 for key, text in pairs if key == "ecuacion"]
    return "\n".join([
        f"set terminal png size {WIDTH},{HEIGHT}",
        f"set output '{picture}'",
        f"set samples {WIDTH * QUALITY // 100}",
        "set angles degrees",
        "set zeroaxis",
        "unset key",
        f"set xrange [{view['xi']}:{view['xf']}]",
        f"set yrange [{view['yi']}:{view['yf']}]",
        "plot " + ", ".join(functions), ""])


def processor_seconds(command):
    """What a process and the system for it take of the processor, from its start to its end."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command[0]} failed.")
    return usage.ru_utime + usage.ru_stime


def seconds_of(command, picture):
    seconds = processor_seconds(command)
    with open(picture, "rb") as file:
        if not file.read(8).startswith(b"\x89PNG"):
            sys.exit(f"{command[0]} made no picture.")
    os.remove(picture)
    return seconds


def compile_times(programs):
    """Median seconds of the processor, of zel-cli compiling a formula and of a program that does nothing, in turn."""
    commands = [[os.path.join(programs, "zel-cli"), "compile", "x"], ["true"]]
    times = []
    for _ in range(COMPILE_RUNS + 1):
        times.append([processor_seconds(command) for command in commands])
    return [statistics.median(seconds) for seconds in zip(*times[1:])]  # the first ones warm up


def render_times(programs, document):
    """Median seconds of the processor, of zel-cli and of gnuplot, in turn, from a document to a PNG file."""
    with tempfile.TemporaryDirectory() as folder:
        picture = os.path.join(folder, "picture.png")
        script = os.path.join(folder, "script")
        with open(script, "w", encoding="ascii") as file:
            file.write(gnuplot_script(document, picture))
        commands = [
            [os.path.join(programs, "zel-cli"), "render", document, "-o", picture,
             "--width", str(WIDTH), "--height", str(HEIGHT), "--quality", str(QUALITY)],
            ["gnuplot", script]]
        times = [[seconds_of(command, picture) for command in commands]
                 for _ in range(RENDER_RUNS + 1)]
    return [statistics.median(seconds) for seconds in zip(*times[1:])]  # the first ones warm up
