"""What the program promises by name, and no test names: rows of the message table, controls,
keys of the toolbar, bounds of docs/limits.md. One line for each."""

import pathlib
import re
import sys

LITERAL = r'"(?:[^"\\]|\\.)*"'


def read(path):
    """A source with its adjacent literals made one."""
    return re.sub(r'"\s*\n\s*"', "", path.read_text(encoding="utf-8", errors="replace"))


def sources(folder, *endings):
    return [path for path in sorted(folder.rglob("*")) if path.suffix in endings]


def stands(text, where):
    """Whether a text of the table is in `where`, with anything in the place of its %1."""
    return re.search(re.escape(text).replace("%1", '[^"%]*'), where) is not None


def is_named(name, where):
    return re.search(rf"\b{re.escape(name)}\d*\b", where) is not None  # optIdioma0 as well


def messages(root, tests):
    """The rows that the program shows; it never shows some, which are kept all the same."""
    table = root / "src/base/message_table.cpp"
    text = read(table)
    program = "\n".join(read(path) for path in sources(root / "src", ".cpp", ".h")
                        if path.stem != "message_table")
    constants = dict(re.findall(rf"string_view (k\w+) =\s*({LITERAL});", text))
    seen = set()
    for spanish, english in re.findall(rf"\{{({LITERAL}|k\w+),\s*({LITERAL})\}}",
                                       text[text.index("kRows = {{"):]):
        shown = is_named(spanish, program) if spanish in constants else spanish in program
        if not shown or spanish in seen:  # of two equal rows the first one wins
            continue
        seen.add(spanish)
        for column in (constants.get(spanish, spanish), english):
            if not stands(column[1:-1], tests):
                yield f"message {column}"


def controls(root, tests):
    kinds = "bcdfilmotBCDFILMOT"
    for path in sources(root / "src/forms", ".cpp"):
        text = read(path)
        names = re.findall(r'setObjectName\("(\w+)"\)', text)
        names += re.findall(rf'"((?:[{kinds}][A-Za-z]{{0,6}}|Shape|Slider|Toolbar)[A-Z0-9]\w*)"', text)
        yield from (f"control {name}" for name in names if not is_named(name, tests))


def toolbar_keys(root, tests):
    header = read(root / "src/plot/session/plot_command.h")
    yield from (f"key {key}" for key in re.findall(r'"(\w+)"', header) if not is_named(key, tests))


def bounds(root, tests):
    for line in (root / "docs/limits.md").read_text(encoding="utf-8").splitlines():
        cells = line.split("|")
        for name in re.findall(r"`([\w:]+)`", cells[3]) if len(cells) > 3 else []:
            if not is_named(name.split("::")[-1], tests):
                yield f"bound {name}"


def main():
    root = pathlib.Path(sys.argv[1])
    tests = "\n".join(read(path) for path in sources(root / "tests", ".cpp", ".h", ".sh")
                      if path.stem != "message_table_test")
    for check in (messages, controls, toolbar_keys, bounds):
        for line in sorted(set(check(root, tests))):
            print(line)


main()
