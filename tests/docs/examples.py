"""Tries every example of the manual pages, the help, the docs and the help of each command.

  examples.py ZEL_CLI SOURCE_FOLDER

Commands: in a code block a line that begins with "$ " is run in a copy of examples/, and the lines
behind it are what it must print; "..." at the end of a line or instead of lines stands for anything.
So are those below "Examples:" in what each command tells with --help, two spaces further in.

Formulas: in a table a column whose heading begins with "it gives", "gives", "da" or "vale" says what
the formulas in backticks in the column before it give: a number, no value, or that they are refused.
The heading may add "with x = 2" or "with f(x) = x+1" for its row; otherwise x is 1.
"""

import fnmatch
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

CLI, SOURCE = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
GIVES = re.compile(r"^(it gives|gives|da|vale)\b")
X_IS = re.compile(r"\bx = (-?\d+)")
F_IS = re.compile(r"\b([a-z])\(x\) = (\S+)")
NO_VALUE = ("no value", "sin valor")
REFUSED = ("refused", "se rechaza")

complaints = []


def run(command, folder):
    environment = dict(os.environ, PATH=f"{CLI.parent}:{os.environ['PATH']}", LC_ALL="C")
    done = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, text=True,
                          capture_output=True, timeout=600, check=False, encoding="utf-8")
    return done.returncode, done.stdout + done.stderr


def cli(*arguments):
    done = subprocess.run([CLI, *arguments], capture_output=True, check=False)
    return done.stdout.decode().strip()


def plain_manual(text):
    for mark, plain in ((r"\(aq", "'"), (r"\(ha", "^"), (r"\(ti", "~"), (r"\-", "-"), (r"\e", "\\"),
                        (r"\&", "")):
        text = text.replace(mark, plain)
    return text


def blocks(path):
    text = path.read_text(encoding="utf-8")
    if path.suffix == ".1":
        return [plain_manual(block) for block in re.findall(r"^\.EX\n(.*?)^\.EE$", text, re.M | re.S)]
    return re.findall(r"^```\w*\n(.*?)^```$", text, re.M | re.S)


def commands(block):
    """The commands of a block, each with the lines that it prints."""
    result = []
    for line in block.splitlines():
        if line.startswith("$ "):
            result.append((line[2:], []))
        elif result:
            result[-1][1].append(line)
    return result


def pattern(lines):
    escaped = re.sub(r"([\[\]*?])", r"[\1]", "\n".join(lines))
    return re.sub(r"\.\.\.$", "*", escaped, flags=re.M)


def try_commands(where, texts, folder):
    count = 0
    for text in texts:
        for command, wanted in commands(text):
            if re.match(r"(sudo|cd|\./|zel )", command):
                continue
            count += 1
            status, said = run(command, folder)
            if status != 0 or not fnmatch.fnmatchcase(said.rstrip("\n"), pattern(wanted)):
                complaints.append(f"{where}: $ {command}\n  (status {status}) {said}")
    return count


def try_help(folder):
    """Tries the examples in the help of each command; each must have one."""
    listed = re.search(r"^Commands:\n((?:  .*\n)+)", cli("--help") + "\n", re.M)
    names = re.findall(r"^  ([a-z-]+)", listed[1] if listed else "", re.M)
    if len(names) < 9:
        complaints.append(f"zel-cli --help tells of no commands but {names}")
    for name in names:
        examples = cli(name, "--help").partition("\nExamples:\n")[2]
        count = try_commands(f"zel-cli {name} --help", [re.sub("^  ", "", examples, flags=re.M)], folder)
        print(f"zel-cli {name} --help: {count} commands")
        if count == 0:
            complaints.append(f"zel-cli {name} --help: no examples")


def document_with(letter, formula, folder):
    """A document in which this graph has this formula."""
    text = (folder / "calls.zel").read_bytes().decode("cp1252")
    start = text.index(f"nombre={letter}\r\n")
    changed = text[start:]
    for key in ("codigo", "ecuacion"):
        changed = re.sub(rf"{key}=.*?\r\n", f"{key}={formula}\r\n", changed, count=1)
    path = folder / "with.zel"
    path.write_bytes((text[:start] + changed).encode("cp1252"))
    return str(path)


def try_formula(where, formula, wanted, x, document):
    options = ["--document", document] if document else []
    if wanted in REFUSED:
        good = cli("check-formula", *options, "--", formula).startswith("error\t")
        said = "accepted"
    else:
        said = cli("evaluate", *options, "--", formula, x)
        good = said.startswith("error\t") if wanted in NO_VALUE else said == f"ok\t{wanted}"
    if not good:
        complaints.append(f"{where}: {formula} gives {said}, not {wanted} (x = {x})")


def cells(line):
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def try_tables(path, folder):
    count = 0
    heading = None
    for line in path.read_text(encoding="utf-8").splitlines():
        if not line.startswith("|"):
            heading = None
            continue
        if heading is None:
            heading = cells(line)
            x = X_IS.search(line)
            function = F_IS.search(line)
            document = document_with(*function.groups(), folder) if function else None
            continue
        row = cells(line)
        for i, title in enumerate(heading):
            if i == 0 or not GIVES.match(title) or line.startswith("|---"):
                continue
            formula = re.fullmatch(r"`([^`]+)`", row[i - 1])
            if formula is None:
                complaints.append(f"{path}: no formula before '{title}' in {line}")
                continue
            count += 1
            try_formula(path, formula[1], row[i], x[1] if x else "1", document)
    return count


def main():
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work)
        for example in (SOURCE / "examples").glob("*.zel"):
            shutil.copy(example, folder)
        pages = sorted([*SOURCE.glob("packaging/man/**/*.1"), *SOURCE.glob("*.md"),
                        *SOURCE.glob("docs/*.md"), *SOURCE.glob("help/*.hlp")])
        for path in pages:
            tried = (try_commands(path, blocks(path), folder), try_tables(path, folder))
            if any(tried):
                print(f"{path.relative_to(SOURCE)}: {tried[0]} commands, {tried[1]} formulas")
        try_help(folder)
    print("\n".join(complaints))
    sys.exit(1 if complaints else 0)


main()
