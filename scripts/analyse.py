"""analyse.py [--most COUNT] REGEX: clang-tidy over the sources of build/tidy whose path matches.

A source has passed when clang-tidy had nothing to say of it; a file in build/analysis/passed, named
after a hash, notes it. The hash is of what the verdict depends on: the settings, the version, this
file, the command that compiles it, and the text of the source and of every header of the project
that it includes. System headers come with the compiler and are left out.

Most of clang-tidy's time goes into system headers. So the sources that are left are joined: those
that are compiled alike and have no name of their own in common are copied into one file, which is
looked at in their place. A file that included them would not do: what is not in the file itself the
analyzer follows along no path. Where that does not compile, they are looked at one by one.
"""

import argparse
import bisect
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
from typing import NamedTuple

ROOT = pathlib.Path(__file__).resolve().parent.parent
PASSED = ROOT / "build/analysis/passed"
JOINED = ROOT / "build/analysis/joined"
MOST_JOINED = 40
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
# What stands at the begin of a line and gives a name: a type, a constant, a function.
NAME = re.compile(r"^(?=[A-Za-z])(?!namespace|using namespace)"
                  r"(?:.*?\b(?:struct|class|enum|using|namespace) (\w+)\b"
                  r"|[^\n(={;]*?([\w:~]+)\s*[(={;])", re.MULTILINE)

COMPLAINT = re.compile(r"^(/[^:\n]+):\d+:\d+: error", re.MULTILINE)


class Source(NamedTuple):
    path: pathlib.Path
    flags: tuple  # the command that compiles it, without the file and what it makes
    key: str


@functools.cache
def text_of(path):
    return path.read_text(encoding="utf-8", errors="replace")


def included(path):
    """The headers of the project that a file names."""
    for name in INCLUDE.findall(text_of(path)):
        places = (folder / name for folder in (path.parent, ROOT / "src", ROOT / "tests"))
        yield from [place.resolve() for place in places if place.is_file()][:1]


def files_of(source):
    """The source and all that it includes, directly or not."""
    found, left = {source}, [source]
    while left:
        new = set(included(left.pop())) - found
        found |= new
        left.extend(new)
    return sorted(found)


def key_of(flags, files, general):
    digest = hashlib.sha256(general.encode())
    for text in [" ".join(flags), *(text_of(path) for path in files)]:
        digest.update(hashlib.sha256(text.encode()).digest())
    return digest.hexdigest()


def flags_of(command):
    words = shlex.split(command)
    begin = words.index("-o")
    return tuple(words[1:begin])  # then come the object, -c and the source


def latest_changes():
    """The rank of each file by its last change: uncommitted ones first, then commit by commit."""
    commands = (["diff", "--name-only", "HEAD"], ["ls-files", "--others", "--exclude-standard"],
                ["log", "--name-only", "--format=", "-n", "300"])
    ranks = {}
    for command in commands:
        said = subprocess.run(["git", *command], cwd=ROOT, capture_output=True, text=True)
        for name in said.stdout.split("\n"):
            ranks.setdefault(ROOT / name, len(ranks))
    return ranks


def left_over(regex):
    """The sources that have not passed as they are, the latest change first."""
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True)
    general = version.stdout + text_of(ROOT / ".clang-tidy") + text_of(pathlib.Path(__file__))
    ranks = latest_changes()
    found = []
    for entry in json.loads((ROOT / "build/tidy/compile_commands.json").read_text()):
        path = pathlib.Path(entry["directory"], entry["file"]).resolve()
        if not path.is_relative_to(ROOT) or path.is_relative_to(ROOT / "build"):
            continue
        if not re.search(regex, str(path.relative_to(ROOT))):
            continue
        files = files_of(path)
        flags = flags_of(entry["command"])
        key = key_of(flags, files, general)
        if not (PASSED / key).exists():
            rank = min(ranks.get(file, len(ranks)) for file in files)
            found.append((rank, path, Source(path, flags, key)))
    return [source for _, _, source in sorted(found)]


def first_of(sources, most):
    """The first ones that are compiled like the very first: looked at together they take little
    more time than one."""
    alike = [source for source in sources if source.flags == sources[0].flags]
    return alike[:most]


@functools.cache
def names_in(path):
    return {one or other for one, other in NAME.findall(text_of(path))}


def joined(sources):
    """Groups of sources that can be looked at together."""
    groups = []
    for source in sorted(sources):
        for group in groups:
            if (len(group) < MOST_JOINED and group[0].flags == source.flags and
                    not any(names_in(one.path) & names_in(source.path) for one in group)):
                group.append(source)
                break
        else:
            groups.append([source])
    return groups


def one_after_the_other(sources):
    """The text of the sources, and the line that each begins with. None includes again what one
    before it has included."""
    lines, begins, seen = [], [], set()
    for source in sources:
        begins.append(len(lines) + 1)
        own = text_of(source.path).split("\n")
        lines += ["" if line in seen else line for line in own]
        seen.update(line for line in own if line.startswith("#include"))
    return "\n".join(lines) + "\n", begins


def with_own_places(said, path, sources, begins):
    """Messages on a joined file as messages on the sources."""
    def place(match):
        i = bisect.bisect(begins, int(match[1])) - 1
        return f"{sources[i].path}:{int(match[1]) - begins[i] + 1}:"
    return re.sub(rf"^{re.escape(str(path))}:(\d+):", place, said, flags=re.MULTILINE)


def clang_tidy(path, flags):
    said = subprocess.run(["clang-tidy", "--quiet", "--warnings-as-errors=*",
                           f"--config-file={ROOT / '.clang-tidy'}", str(path), "--", *flags],
                          cwd=ROOT, capture_output=True, text=True)
    return said.returncode, said.stdout + said.stderr * (said.returncode != 0)


def look_at(group):
    """What clang-tidy says of the sources, and which of them have passed."""
    path, begins = group[0].path, [1]
    if len(group) > 1:
        path = JOINED / (group[0].key + ".cpp")
        text, begins = one_after_the_other(group)
        path.write_text(text, encoding="utf-8")
    status, said = clang_tidy(path, group[0].flags)
    if status == 0:
        return "", group
    said = with_own_places(said, path, group, begins)
    named = {pathlib.Path(name) for name in COMPLAINT.findall(said)}
    if len(group) > 1 and "[clang-diagnostic-error" in said:
        return look_apart(group, named)
    if not named <= {source.path for source in group}:
        return said, []  # a header's fault may be anybody's
    return said, [source for source in group if source.path not in named]


def look_apart(group, named):
    """Those that do not compile with the others alone, and the others together."""
    alone = [source for source in group if source.path in named] or group
    together = [source for source in group if source not in alone]
    looks = [look_at(part) for part in [[source] for source in alone] + [together] if part]
    return "".join(said for said, _ in looks), [one for _, passed in looks for one in passed]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--most", type=int)
    parser.add_argument("regex")
    wanted = parser.parse_args()
    for folder in (PASSED, JOINED):
        folder.mkdir(parents=True, exist_ok=True)
    left = left_over(wanted.regex)
    looked = left if wanted.most is None else first_of(left, wanted.most)
    good = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
        for said, passed in workers.map(look_at, joined(looked)):
            good += len(passed)
            for source in passed:
                (PASSED / source.key).touch()
            print(said, end="", flush=True)
    print(f"clang-tidy: {good} passed, {len(looked) - good} did not, "
          f"{len(left) - len(looked)} left for another time")
    return good < len(looked)


if __name__ == "__main__":
    sys.exit(main())
