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


def start_screen():
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24"],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    display = ":" + os.read(read_end, 16).decode().strip()
    os.close(read_end)
    return server, display


def time_to_window(program, folder, environment):
    """Seconds from the start of the program to the first window it maps."""
    watcher = subprocess.Popen(["stdbuf", "-oL", "xev", "-root", "-event", "substructure"],
                               stdout=subprocess.PIPE, env=environment, text=True)
    time.sleep(0.2)  # xev watches from here on
    began = time.perf_counter()
    process = subprocess.Popen([program], cwd=folder, env=environment,
                               stderr=subprocess.DEVNULL)
    for line in watcher.stdout:
        if line.startswith("MapNotify"):
            break
    elapsed = time.perf_counter() - began
    for child in (process, watcher):
        child.kill()
        child.wait()
    return elapsed


def main():
    programs = {name: os.path.join(sys.argv[1], name) for name in ("zel", "empty_window")}
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    server, display = start_screen()
    times = {name: [] for name in programs}
    try:
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "config.ini"), "w", encoding="latin-1") as config:
                config.write("EN\r\nFalse")
            environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb",
                               HOME=folder, XDG_RUNTIME_DIR=folder)
            os.chmod(folder, 0o700)
            for run in range(runs + 1):
                for name, path in programs.items():
                    elapsed = time_to_window(path, folder, environment)
                    if run > 0:  # the first run of each warms the disk's cache
                        times[name].append(elapsed)
    finally:
        server.kill()
        server.wait()
    medians = {name: statistics.median(values) for name, values in times.items()}
    for name, median in medians.items():
        print(f"{name:>14}: {median * 1000:7.1f} ms to its first window (median of {runs})")
    print(f"{'ratio':>14}: {medians['zel'] / medians['empty_window']:7.2f}")


main()
