"""The machine in words, and whether it had something else to do."""
import datetime
import os
import platform
import re
import time

BUSY = 0.1  # of the processors


def first_match(path, pattern, otherwise):
    try:
        with open(path, encoding="utf-8") as file:
            found = re.search(pattern, file.read(), re.MULTILINE)
    except OSError:
        found = None
    return found.group(1) if found else otherwise


def in_words():
    model = first_match("/proc/cpuinfo", r"^model name\s*: (.*)$", platform.machine())
    kilobytes = int(first_match("/proc/meminfo", r"^MemTotal:\s*(\d+)", "0"))
    system = first_match("/etc/os-release", r'^PRETTY_NAME="?(.*?)"?$', platform.system())
    return (f"Measured on {datetime.date.today()}: {os.cpu_count()} processors ({model}), "
            f"{kilobytes / 2**20:.0f} GB of memory, {system}.")


def processor_times():
    """Seconds times a constant: of all processors, and what they were idle of it."""
    with open("/proc/stat", encoding="ascii") as file:
        times = [int(word) for word in file.readline().split()[1:9]]
    return sum(times), times[3] + times[4]


def busy_note():
    """A line, when other programs keep the machine busy."""
    before = processor_times()
    time.sleep(2)
    after = processor_times()
    total = after[0] - before[0]
    share = 1 - (after[1] - before[1]) / total if total else 0
    if share < BUSY:
        return []
    return ["", f"The machine was busy: other programs used {share:.0%} of the processors before "
                f"the first row (load average {os.getloadavg()[0]:.1f})."]
