#!/usr/bin/env python3
"""Time from the start of a process to its first mapped window: the program beside an empty window.

Usage: startup.py FOLDER_WITH_PROGRAMS [RUNS]. Needs Xvfb and xev; both programs run in turn on one
virtual screen, and the medians and their ratio are printed.
"""
import os
import statistics
import subprocess
import sys
import tempfile
import time

NAMES = ["zel", "empty_window"]
RUNS = 15


def start_screen():
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-noreset", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24"],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    with open(read_end, encoding="ascii") as number:
        display = ":" + number.readline().strip()
    return server, display


def time_to_window(program, folder, environment):
    """Seconds from the start of the program to the first window it maps."""
    watcher = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "substructure"],
                               stdout=subprocess.PIPE, env=environment, text=True)
    time.sleep(0.2)  # xev watches from here on
    began = time.perf_counter()
    process = subprocess.Popen([program], cwd=folder, env=environment,
                               stderr=subprocess.DEVNULL)
    if not any(line.startswith("MapNotify") for line in watcher.stdout):
        sys.exit("the screen went away")
    elapsed = time.perf_counter() - began
    for child in (process, watcher):
        child.kill()
        child.wait()
    return elapsed


def first_window_times(folder_with_programs, runs=RUNS):
    """Median seconds of zel and of the empty window, started in turn."""
    programs = [os.path.join(os.path.abspath(folder_with_programs), name) for name in NAMES]
    server, display = start_screen()
    try:
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "config.ini"), "w", encoding="latin-1") as config:
                config.write("EN\r\nFalse")
            environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb",
                               HOME=folder, XDG_RUNTIME_DIR=folder)
            times = [[time_to_window(program, folder, environment) for program in programs]
                     for _ in range(runs + 1)]
    finally:
        server.kill()
        server.wait()
    return [statistics.median(seconds) for seconds in zip(*times[1:])]  # the first ones warm up


def main():
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else RUNS
    medians = first_window_times(sys.argv[1], runs)
    for name, median in zip(NAMES, medians):
        print(f"{name:>14}: {median * 1000:7.1f} ms to its first window (median of {runs})")
    print(f"{'ratio':>14}: {medians[0] / medians[1]:7.2f}")


if __name__ == "__main__":
    main()
