#!/usr/bin/env python3
"""Measures the program beside others and prints a table; see docs/benchmarks.md."""
import argparse
import os
import subprocess
import sys

import lines
import machine
import processes
import startup

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
TABLE_FILE = os.path.join(ROOT, "build", "bench.md")

# Each row, what it is, and the targets that it needs.
ROWS = {
    "sweep": ("sweeps of 1,920 samples beside muParser's bulk mode", ["bench_rows"]),
    "single": ("one evaluation at a time beside muParser", ["bench_rows"]),
    "reference": ("both beside the evaluation by number text", ["bench_rows"]),
    "functions": ("each elementary function beside the C library's", ["bench_rows"]),
    "painting": ("painting lines beside a QPainter", ["bench_rows"]),
    "redraw": ("a redraw of 26 graphs beside a frame, on two screens", ["bench_rows"]),
    "render": ("zel-cli render beside gnuplot", ["zel-cli"]),
    "family": ("a family of 1,000 members beside one of 100", ["bench_rows"]),
    "open": ("opening a document of 26 graphs", ["bench_rows"]),
    "compile": ("zel-cli compile beside a program that does nothing", ["zel-cli"]),
    "start": ("the first window of zel beside an empty one", ["zel", "empty_window"]),
}

OTHER_LINES = {"single": lines.single, "painting": lines.painting, "family": lines.family,
               "open": lines.opening}


def parse_arguments():
    known = "\n".join(f"  {row:<11}{what}" for row, (what, _) in ROWS.items())
    parser = argparse.ArgumentParser(
        prog="./bench", formatter_class=argparse.RawDescriptionHelpFormatter,
        description="Measures the program beside others, prints a table and writes it to\n"
                    "build/bench.md. The status is 0 whether the goals are reached or not.",
        epilog=f"rows (all of them without a word):\n{known}\n\n"
               "./bench micro [OPTION...]: the small benchmarks, with Google Benchmark's options")
    parser.add_argument("row", nargs="*", help="measure these rows only")
    parser.add_argument("--rows", default="", metavar="A,B", help="the same, in one word")
    parser.add_argument("--programs", metavar="FOLDER",
                        help="take the programs from this folder, as they are")
    arguments = parser.parse_args()
    wanted = arguments.row + [row for row in arguments.rows.split(",") if row]
    for row in wanted:
        if row not in ROWS:
            parser.error(f"there is no row {row}")
    return [row for row in ROWS if row in wanted or not wanted], arguments.programs


def build(rows):
    targets = sorted({target for row in rows for target in ROWS[row][1]})
    built = subprocess.run([os.path.join(ROOT, "benchmarks", "build.sh"), *targets], check=False)
    if built.returncode != 0:
        sys.exit(built.returncode)
    return os.path.join(ROOT, "build", "release", "bin")


def measure(row, programs):
    """The lines of a row."""
    if row == "render":
        document = os.path.join(ROOT, "examples", "alphabet.zel")
        return lines.render(*processes.render_times(programs, document))
    if row == "compile":
        return lines.compile_start(*processes.compile_times(programs))
    if row == "start":
        return lines.start(*startup.first_window_times(programs))
    measured = processes.in_process(programs, row, threads=1)
    if row == "sweep":
        return lines.sweep(measured, processes.in_process(programs, "sweep-on-all"))
    if row == "redraw":
        return lines.redraw(measured, processes.in_process(programs, row, threads=1, scale=2))
    if row == "reference":
        return lines.reference(measured, processes.in_process(programs, "single-reference"))
    if row == "functions":
        return lines.functions(measured, processes.in_process(programs, "function-sweeps"))
    return OTHER_LINES[row](measured)


def main():
    rows, programs = parse_arguments()
    programs = os.path.abspath(programs) if programs else build(rows)
    notes = [machine.in_words(), *machine.busy_note()]
    table = []
    for row in rows:
        print(f"== Measuring {row}: {ROWS[row][0]}", flush=True)
        measured = measure(row, programs)
        for detail in measured.details:
            print("  ", detail)
        table += measured.lines
    text = "\n".join([*lines.as_table(table), "", *notes, ""])
    print("\n" + text, end="")
    os.makedirs(os.path.dirname(TABLE_FILE), exist_ok=True)
    with open(TABLE_FILE, "w", encoding="utf-8") as file:
        file.write(text)


main()
