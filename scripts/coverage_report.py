"""scripts/coverage_report.py LIST: from what llvm-cov exports (standard input, JSON) a table of the
lines and branches that ran, a row for each folder below src/; then the lines that did not run and
that LIST does not explain. Ends with 1 where there is one, or where too few branches ran. A branch
is one outcome of a condition; those of a template count once, whatever it is made for."""
import collections
import json
import pathlib
import sys

import explained

ROOT = pathlib.Path(__file__).resolve().parent.parent
LEAST_BRANCHES = 95  # per cent of a folder


def line_counts(segments, last_line):
    """How often each line with code ran: the most of what begins on it and what reaches into it."""
    starting = collections.defaultdict(list)
    for segment in segments:
        starting[segment[0]].append(segment)
    counts, wrapped = {}, None
    for line in range(1, last_line + 1):
        here = starting[line]
        begins = [count for _, _, count, counted, entry, gap in here if counted and entry and not gap]
        is_skipped = bool(here) and not here[0][3] and here[0][4]
        reaching = [wrapped[2]] if wrapped and wrapped[3] else []
        if not is_skipped and (begins or reaching):
            counts[line] = max(begins + reaching)
        wrapped = here[-1] if here else wrapped
    return counts


def count_at(segments, place):
    """How often the code at a place (line, column) ran."""
    before = [segment for segment in segments if (segment[0], segment[1]) <= place]
    return before[-1][2] if before else 0


def outcomes(entry):
    """For each condition how often it was true and false. One that the compiler has decided, which
    ran and has neither, is left out."""
    sums = collections.defaultdict(lambda: [0, 0])
    for branch in entry["branches"]:
        place = sums[tuple(branch[:4])]
        place[0] += branch[4]
        place[1] += branch[5]
    return {place: counts for place, counts in sums.items()
            if any(counts) or not count_at(entry["segments"], place[:2])}


class Folder:
    def __init__(self):
        self.lines = self.lines_run = self.branches = self.branches_run = 0

    def share(self):
        return 100 * self.branches_run / self.branches if self.branches else 100


class Source:
    """A file, which may come more than once, by paths that lead to the same one."""

    def __init__(self, path):
        self.text = path.read_text(encoding="utf-8").splitlines()
        self.lines = collections.Counter()
        self.branches = collections.defaultdict(lambda: [0, 0])

    def add(self, entry):
        self.lines.update(line_counts(entry["segments"], len(self.text)))
        for place, counts in outcomes(entry).items():
            self.branches[place] = [sum(both) for both in zip(self.branches[place], counts)]


def read(export):
    """The folders' sums, the lines that did not run, and the outcomes that did not happen."""
    sources = {}
    for entry in export["data"][0]["files"]:
        path = pathlib.Path(entry["filename"]).resolve()
        sources.setdefault(path.relative_to(ROOT), Source(path)).add(entry)
    folders, lines_left, branches_left = collections.defaultdict(Folder), [], []
    for path, source in sorted(sources.items()):
        folder = folders[path.parts[1]]
        for line, count in sorted(source.lines.items()):
            folder.lines += 1
            folder.lines_run += count > 0
            if not count:
                lines_left.append((path, line, source.text[line - 1].strip()))
        for (line, column, *_), counts in sorted(source.branches.items()):
            folder.branches += 2
            folder.branches_run += sum(count > 0 for count in counts)
            branches_left += [f"{path}:{line}:{column}: never {name}"
                              for name, count in zip(("true", "false"), counts) if not count]
    return folders, lines_left, branches_left


def print_table(folders):
    print("folder     lines    run   branches    run")
    for name, folder in folders.items():
        print(f"{name:8} {folder.lines:7} {100 * folder.lines_run / folder.lines:5.1f}% "
              f"{folder.branches:9} {folder.share():5.1f}%")


def main():
    path = pathlib.Path(sys.argv[1])
    folders, lines_left, branches_left = read(json.load(sys.stdin))
    print_table(folders)
    path_of_branches = ROOT / "build/coverage/branches.txt"
    path_of_branches.write_text("".join(f"{line}\n" for line in branches_left), encoding="utf-8")
    new, old = explained.compare(path, (f"{file}: {text}" for file, _, text in lines_left))
    for file, line, text in lines_left:
        if new[f"{file}: {text}"]:
            print(f"{file}:{line}: does not run: {text}")
    for line in old:
        print(f"runs, though {path.name} explains why it does not: {line}")
    few = [name for name, folder in folders.items() if folder.share() < LEAST_BRANCHES]
    for name in few:
        print(f"{name}: less than {LEAST_BRANCHES} % of the branches run; "
              f"{path_of_branches.relative_to(ROOT)} has those that do not")
    sys.exit(1 if new or few else 0)


main()
