"""scripts/mutants.py [COUNT [SEED [FOLDER...]]]: see scripts/mutants.sh. The faults of a folder are
drawn by the seed; those that do not compile, or of which no program is made here, count for nothing,
and others are drawn for them. What a fault needs, which is its source or whatever includes its
header, is compiled and linked with the rest of the preset `mutants`, which is built already. What
came out is kept in build/mutants/verdicts, under the sum of the source with the fault."""
import atexit
import collections
import hashlib
import itertools
import json
import os
import pathlib
import queue
import random
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import threading

import explained
import mutations

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/mutants"
VERDICTS = BUILD / "verdicts"
LIST = ROOT / "tests/survivors.txt"
EQUAL = ROOT / "tests/equivalents.txt"
FOLDERS = ("numbers", "engine", "graphs", "files", "plot")
WORKERS = int(os.environ.get("ZEL_WORKERS", os.cpu_count()))
LEAST_FOUND = 90  # per cent of a folder
MOST_MEMORY = 8 << 30  # bytes, of a program of tests
SLOW = 0.1  # seconds of a test
FOUND, MISSED, NO_PROGRAM = "found", "missed", "no program"


class Fault:
    """One text of one source that is another text."""

    def __init__(self, path, text, begin, end, other):
        self.path, self.text, self.begin, self.end, self.other = path, text, begin, end, other
        self.folder = path.split("/")[1]
        first = text.rfind("\n", 0, begin) + 1
        last = text.find("\n", end)
        self.line = text.count("\n", 0, begin) + 1
        code, faulty = text[first:last], text[first:begin] + other + text[end:last]
        self.name = f"{path}: {' '.join(code.split())} => {' '.join(faulty.split())}"
        self.key = hashlib.sha256(f"{path} {begin} {self.source()}".encode()).hexdigest()

    def source(self):
        return self.text[:self.begin] + self.other + self.text[self.end:]


def faults_of(folder, seed):
    """All of a folder, in the order of the seed."""
    faults = []
    for path in sorted((ROOT / "src" / folder).rglob("*")):
        if path.suffix in (".cpp", ".h") and not path.stem.endswith("_win32"):
            text = path.read_text(encoding="utf-8")
            name = str(path.relative_to(ROOT))
            faults += [Fault(name, text, *fault) for fault in mutations.of_source(text)]
    random.Random(f"{folder} {seed}").shuffle(faults)
    return faults


class Verdicts:
    """What is known of faults, here and in the file."""

    def __init__(self):
        self.known = {}
        self.lock = threading.Lock()
        if VERDICTS.exists():
            for line in VERDICTS.read_text(encoding="utf-8").splitlines():
                verdict, key = line.split("\t")
                self.known[key] = verdict

    def add(self, fault, verdict):
        with self.lock:
            self.known[fault.key] = verdict
            with VERDICTS.open("a", encoding="utf-8") as file:
                file.write(f"{verdict}\t{fault.key}\n")

    def of(self, fault):
        return self.known.get(fault.key)


running = set()


@atexit.register
def end_all():
    for group in list(running):
        end(group)


def end(group):
    running.discard(group)
    try:
        os.killpg(group, signal.SIGKILL)
    except ProcessLookupError:
        pass


def run(command, seconds, folder):
    """Its status; None where it took too long. All that it has started ends with it."""
    environment = dict(os.environ, LOCPATH=str(ROOT / "build/locales"))
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          stdin=subprocess.DEVNULL, start_new_session=True, cwd=folder,
                          env=environment) as process:
        running.add(process.pid)
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            return None
        finally:
            end(process.pid)


def run_tests(program, seconds, folder, *options):
    return run(["prlimit", "--core=0", f"--as={MOST_MEMORY}", str(program), "--gtest_brief=1", *options],
               seconds, folder)


def ninja(*words):
    return subprocess.run(["ninja", "-C", str(BUILD), *words], check=True, capture_output=True,
                          text=True).stdout


class Tests:
    """How the test program of a folder is made, and how long its tests take."""

    compiling = {}  # objects: command
    needed = collections.defaultdict(set)  # sources and headers: objects

    def __init__(self, folder):
        self.program = f"bin/{folder}_tests"
        commands = [line for line in ninja("-t", "commands", self.program).splitlines() if " -o " in line]
        self.linking = next(words.split() for words in commands[-1].split(" && ") if " -o " in words)
        self.objects = {words.split()[words.split().index("-o") + 1] for words in commands}
        self.steps = self.measure(folder)

    @classmethod
    def read_build(cls):
        for entry in json.loads((BUILD / "compile_commands.json").read_text()):
            command = shlex.split(entry["command"])
            cls.compiling[command[command.index("-o") + 1]] = command
        made = None
        for line in ninja("-t", "deps").splitlines():
            if line.startswith(" "):
                cls.needed[os.path.realpath(BUILD / line.strip())].add(made)
            elif line:
                made = line.partition(":")[0]

    def measure(self, folder):
        """Filters with the seconds that their tests take; all of them pass without a fault. The slow
        ones come last, as most faults need none of them."""
        report = BUILD / f"{folder}.json"
        if run_tests(BUILD / self.program, 1800, BUILD, f"--gtest_output=json:{report}") != 0:
            raise SystemExit(f"{self.program} fails without a fault")
        times = {f"{suite['name']}.{test['name']}": float(test["time"].rstrip("s"))
                 for suite in json.loads(report.read_text())["testsuites"]
                 for test in suite["testsuite"]}
        slow = {name: time for name, time in times.items() if time > SLOW}
        names = ":".join(slow)
        steps = [(f"--gtest_filter=-{names}", sum(times.values()) - sum(slow.values()))]
        return steps + ([(f"--gtest_filter={names}", sum(slow.values()))] if slow else [])

    def make(self, fault, place):
        """The program with the fault, in a folder of its own; nothing where it does not compile, or is no
        part of the program, as what is for another system."""
        objects = sorted(self.objects & self.needed[str(ROOT / fault.path)])
        if not objects:
            return None
        source = place / fault.path
        source.parent.mkdir(parents=True)
        source.write_text(fault.source(), encoding="utf-8")
        linking = list(self.linking)
        for number, name in enumerate(objects):
            command = [str(source) if word == str(ROOT / fault.path) else word
                       for word in self.compiling[name]]
            command[command.index("-o") + 1] = made = str(place / f"{number}.o")
            command.insert(next(i for i, word in enumerate(command) if word.startswith("-I")),
                           f"-I{place / 'src'}")
            if run(command, 1800, BUILD) != 0:
                return None
            if name in linking:
                linking[linking.index(name)] = made
            else:  # ahead of the library that has the one without the fault
                linking.insert(next(i for i, word in enumerate(linking) if word.endswith(".a")), made)
        program = place / "tests"
        linking[linking.index("-o") + 1] = str(program)
        return program if run(linking, 600, BUILD) == 0 else None

    def verdict(self, fault):
        place = pathlib.Path(tempfile.mkdtemp(dir=BUILD))
        try:
            program = self.make(fault, place)
            if program is None:
                return NO_PROGRAM
            passes = all(run_tests(program, 20 + 5 * seconds, place, "--gtest_fail_fast", tests) == 0
                         for tests, seconds in self.steps)
            return MISSED if passes else FOUND
        finally:
            shutil.rmtree(place)


def wanted(folder, seed, count, verdicts):
    """The sample: the first faults that are neither known not to compile nor listed as none; and those
    that are listed."""
    listed = explained.entries(EQUAL)
    faults, equal = [], []
    for fault in faults_of(folder, seed):
        if verdicts.of(fault) != NO_PROGRAM:
            (equal if listed[fault.name] else faults).append(fault)
    return faults[:count], equal


def try_all(faults, tests, verdicts):
    waiting = queue.SimpleQueue()
    for fault in faults:
        waiting.put(fault)

    def work():
        try:
            while True:
                fault = waiting.get_nowait()
                verdict = tests[fault.folder].verdict(fault)
                verdicts.add(fault, verdict)
                print(f"{verdict}: {fault.path}:{fault.line}: {fault.name.partition(': ')[2]}", flush=True)
        except queue.Empty:
            pass

    threads = [threading.Thread(target=work, daemon=True) for _ in range(WORKERS)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()


def report(folders, seed, count, verdicts):
    """Whether enough faults are found, and the others explained."""
    missed, is_good = [], True
    print("folder   faults   found")
    for folder in folders:
        sample, equal = wanted(folder, seed, count, verdicts)
        for fault in equal:
            if verdicts.of(fault) == FOUND:
                print(f"a fault after all: {fault.path}:{fault.line}: {fault.name.partition(': ')[2]}")
                is_good = False
        found = sum(verdicts.of(fault) == FOUND for fault in sample)
        missed += [fault for fault in sample if verdicts.of(fault) == MISSED]
        print(f"{folder:8} {len(sample):6} {100 * found / len(sample):6.1f}%")
        is_good &= 100 * found >= LEAST_FOUND * len(sample)
    new, _ = explained.compare(LIST, (fault.name for fault in missed))
    for fault in missed:
        if new[fault.name]:
            print(f"not found: {fault.path}:{fault.line}: {fault.name.partition(': ')[2]}")
    return is_good and not new


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 80
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    folders = sys.argv[3:] or FOLDERS
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    Tests.read_build()
    tests = {folder: Tests(folder) for folder in folders}
    verdicts = Verdicts()
    is_again = {MISSED, None}
    while faults := [fault for folder in folders
                     for fault in itertools.chain(*wanted(folder, seed, count, verdicts))
                     if verdicts.of(fault) in is_again]:
        try_all(faults, tests, verdicts)
        is_again = {None}
    sys.exit(0 if report(folders, seed, count, verdicts) else 1)


main()
