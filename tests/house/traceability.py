"""What the program promises by name, and no test shows: rows of the message table, controls, keys
of the toolbar, bounds of docs/limits.md; and where that document is not true. One line for each."""

import fnmatch
import functools
import pathlib
import re
import sys

LITERAL = r'"(?:[^"\\\n]|\\.)*"'
CHARACTER = r"'(?:[^'\\\n]|\\[^\n]+?)'"
COMMENT = r"//[^\n]*|/\*.*?\*/"
CONSTANT = r"(?:\w+::)*\bk[A-Z]\w*"
PIECE = re.compile(rf"{LITERAL}|{CHARACTER}|({COMMENT})", re.DOTALL)


@functools.cache
def read(path):
    """A source without its comments, and with its adjacent literals made one."""
    text = path.read_text(encoding="utf-8", errors="replace")
    if path.suffix == ".sh":
        return re.sub(r"(?m)^\s*#.*$", "", text)
    text = PIECE.sub(lambda piece: "" if piece[1] else piece[0], text)
    return re.sub(r'"\s*\n\s*"', "", text)


def sources(folder, *endings):
    return [path for path in sorted(folder.rglob("*")) if path.suffix in endings]


def in_lines(text):
    """The text of a literal, with the line breaks that it writes down."""
    return text.replace(r"\r", "").replace(r"\n", "\n")


class Tests:
    """What the tests of a folder say, without their comments."""

    def __init__(self, folder):
        paths = [path for path in sources(folder, ".cpp", ".h", ".sh") if path.stem != "message_table_test"]
        texts = {path: read(path) for path in paths}
        self.code = "\n".join(texts.values())
        words = set(re.findall(r"[^\W\d]\w*(?:::\w+)*", self.code))
        self.words = words | {re.sub(r"\d+$", "", word) for word in words}  # optIdioma0
        self.names = set(re.findall(r"\bTEST(?:_F|_P)?\(\s*(\w+,\s*\w+)\s*\)", self.code))
        self.names = {re.sub(r",\s*", ".", name) for name in self.names}
        literals = {literal[1:-1] for path, text in texts.items()
                    for literal in re.findall(LITERAL + ("|'[^']*'" if path.suffix == ".sh" else ""), text)}
        self.literals = "\n\0\n".join(in_lines(literal) for literal in sorted(literals))

    def exist(self, root, name):
        """Whether there is a test "Suite.Name" or a script "tests/....sh"."""
        return name in self.names or (name.startswith("tests/") and (root / name).is_file())


def expects(literals, row, others):
    """Whether a literal has a line that is the row, begins or ends with it, with anything in the
    place of its %1. A longer row that has this one in it does not count."""
    for other in others:
        if row != other and row in other:
            literals = literals.replace(in_lines(other).split("%1")[0], "\0")
    pattern = re.escape(in_lines(row)).replace("%1", "[^%\n]*")
    begins = pattern + (r"\b" if row[-1].isalnum() else "")
    ends = (r"\b" if row[0].isalnum() else "") + pattern
    return re.search(rf"(?m)^{begins}|{ends}$", literals) is not None


def messages(root, tests):
    """The rows that the program shows; it never shows some, which are kept all the same."""
    table = root / "src/base/message_table.cpp"
    text = read(table)
    program = "\n".join(read(path) for path in sources(root / "src", ".cpp", ".h")
                        if path.stem != "message_table")
    constants = dict(re.findall(rf"string_view (k\w+) =\s*({LITERAL});", text))
    texts = {literal[1:-1] for literal in re.findall(LITERAL, text)} - {""}
    seen = set()
    for spanish, english in re.findall(rf"\{{({LITERAL}|k\w+),\s*({LITERAL})\}}",
                                       text[text.index("kRows = {{"):]):
        shown = re.search(rf"\b{spanish}\b", program) if spanish in constants else spanish in program
        if not shown or spanish in seen:  # of two equal rows the first one wins
            continue
        seen.add(spanish)
        for column in (constants.get(spanish, spanish), english):
            if not expects(tests.literals, column[1:-1], texts):
                yield f"message {column}"


def controls(root, tests):
    kinds = "bcdfilmotBCDFILMOT"
    for path in sources(root / "src/forms", ".cpp"):
        text = read(path)
        names = re.findall(r'setObjectName\("(\w+)"\)', text)
        names += re.findall(rf'"((?:[{kinds}][A-Za-z]{{0,6}}|Shape|Slider|Toolbar)[A-Z0-9]\w*)"', text)
        yield from (f"control {name}" for name in names if name not in tests.words)


def toolbar_keys(root, tests):
    header = read(root / "src/plot/session/plot_command.h")
    yield from (f"key {key}" for key in re.findall(r'"(\w+)"', header) if key not in tests.words)


def constants(root):
    """The constants of src by their qualified names, with what they are made from. Those of a
    function are nobody else's."""
    definition = re.compile(r"^(?:(?:class|struct) (?P<owner>\w+)\b[^;{]*\{|"
                            r"(?:inline |(?P<member>  static ))?constexpr [\w:]+(?: \w+)? "
                            r"(?P<name>k[A-Z]\w*)(?: = |(?=[({]))(?P<value>[^;]+);)", re.MULTILINE)
    known = {}
    for path in sources(root / "src", ".h", ".cpp"):
        owner = ""
        for found in definition.finditer(read(path)):
            owner = found["owner"] or owner
            if found["name"]:
                name = (owner + "::" if found["member"] else "") + found["name"]
                known.setdefault(name, {})[path.relative_to(root)] = found["value"]
    return known


def values_of(name, known):
    """The numbers of a constant, in all the files that define it."""
    values = set()
    for text in known.get(name, {}).values():
        text = re.sub(CONSTANT, lambda part: "".join(map(str, values_of(part[0], known))), text)
        text = re.sub(r"[\w:]*\{([^{}]*)\}", r"(\1)", text).replace("'", "")
        if not re.fullmatch(r"[\d.<*/+(), -]+", text):
            return set()
        number = eval(text)  # digits and signs alone
        values |= set(number) if isinstance(number, tuple) else {number}
    return values


def numbers_in(text):
    for power, number, unit in re.findall(r"2\^(\d+)|(\d{1,3}(?:,\d{3})+|\d+(?:\.\d+)?)( [KM]iB)?", text):
        factor = {" KiB": 1024, " MiB": 1024 ** 2}.get(unit, 1)
        yield 2 ** int(power) if power else float(number.replace(",", "")) * factor


# What is done in another way beyond them comes out the same.
OF_NO_CONCERN = {"KeyedDictionary::kMostWalked", "PlanCache::kMostPlans", "kLeastFineTangent",
                 "ReferenceEngine::kMaxExpandedCode"}


def is_bound(name, paths):
    """Whether a constant bounds what a user may do: those of headers and of the windows."""
    if name in OF_NO_CONCERN or not re.match(r"k(Most|Max|Least|Longest)", name.split("::")[-1]):
        return False
    return any(path.suffix == ".h" or path.parts[1] == "forms" or path.parts[1:3] == ("platform", "widgets")
               for path in paths)


def row_faults(root, tests, known, row):
    """What is wrong with a row of the table: what, bound, constant or test, past it."""
    what, bound, shown_by = row[:3]
    names = re.findall(r"`([^`]+)`", shown_by)
    named = [name for name in names if re.fullmatch(r"(\w+::)?k[A-Z]\w*", name)]
    shown = [name for name in names if name not in named]
    if not names:
        yield f"bound of {what}: nothing shows it"
    for name in named:
        values = values_of(name, known)
        if not values or not values <= set(numbers_in(bound)):
            yield f"bound {name} is {values or 'no constant'}, not {bound}"
        if not shown and name not in tests.words:
            yield f"bound {name}"
    yield from (f"test {name}, of {what}" for name in shown if not tests.exist(root, name))


def bounds(root, tests):
    text = (root / "docs/limits.md").read_text(encoding="utf-8")
    rest = text[text.rindex("|\n") + 1:]
    known = constants(root)
    rows = [[cell.strip() for cell in line.strip("|").split("|")]
            for line in text.splitlines() if line.startswith("| ")][1:]
    for row in rows:
        yield from row_faults(root, tests, known, row)
    listed = {name for row in rows for name in re.findall(r"`([\w:]+)`", row[2])}
    listed |= {part for name in listed for text in known.get(name, {}).values()
               for part in re.findall(CONSTANT, text)}
    yield from (f"bound {name} has no row" for name, values in known.items()
                if is_bound(name, values) and name not in listed)
    for item in re.split(r"\n\n|\n(?=- )", rest.strip()):
        shown = re.findall(r"`(\w+\.\w+|tests/[\w./]+)`", item)
        if not shown and not item.endswith(":"):
            yield f"nothing shows: {item}"
        yield from (f"test {name}" for name in shown if not tests.exist(root, name))


RELIABILITY = "docs/reliability.md"


def named_tests(root, tests):
    """Tests that the document of what is promised names, one or a suite, or by a filter."""
    text = (root / RELIABILITY).read_text("utf-8")
    suites = {name.split(".")[0] for name in tests.names}
    for suite, name in re.findall(r"`(\w+)\.([A-Z]\w*|\*)`", text):
        if suite not in suites if name == "*" else f"{suite}.{name}" not in tests.names:
            yield f"test {suite}.{name} of {RELIABILITY}"
    for folder, option in re.findall(r"\b(\w+)_tests --gtest_filter='?([^\s'`]+)", text):
        names = Tests(root / "tests" / folder).names
        for wanted in option.split("-")[0].split(":"):
            if not fnmatch.filter(names, wanted):
                yield f"filter {wanted} of {RELIABILITY}"


def named_files(root, _):
    """What the same document names by its path, and scripts by their names alone: these are in each
    folder of the tests that their cell or paragraph names, or in any where it names none."""
    for cell in re.split(r" \| |\n\n", (root / RELIABILITY).read_text("utf-8")):
        paths = set(re.findall(r"(?<![\w/])(?:tests|scripts|fuzz)/[\w./-]*[\w/]", cell))
        yield from (f"file {path} of {RELIABILITY}" for path in paths if not (root / path).exists())
        folders = [path for path in paths if re.fullmatch(r"tests/[\w/]+/", path)] or ["tests/**/"]
        for script in re.findall(r"`(\w+\.(?:sh|py))`", cell):
            yield from (f"script {script} of {RELIABILITY}, in {folder}"
                        for folder in folders if not any(root.glob(folder + script)))


def main():
    root = pathlib.Path(sys.argv[1])
    tests = Tests(root / "tests")
    for check in (messages, controls, toolbar_keys, bounds, named_tests, named_files):
        for line in sorted(set(check(root, tests))):
            print(line)


main()
