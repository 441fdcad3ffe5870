"""The single faults of a source: an operator or a comparison that is another one, a constant that is
one more, a condition that is negated, a statement that is not there. None is made in comments, texts
and directives, in what is only declared, and none of a size that only says how much room there is."""
import re

OTHER_OPERATORS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="], "|=": ["&="],
}
NOT_CODE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:[^"\\\n]|\\.)*"|(?<![0-9A-Fa-f])\'(?:[^\'\\\n]|\\.)+\''
    r"|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*|\bstatic_assert\b[^;]*;|\btemplate <[^>]*>",
    re.DOTALL | re.MULTILINE)
OPERATOR = re.compile("(?<= )(?:%s)(?= )" % "|".join(
    re.escape(name) for name in sorted(OTHER_OPERATORS, key=len, reverse=True)))
NUMBER = re.compile(r"(?<![\w.'])(?:0[xX][0-9A-Fa-f.']+(?:p[+-]?\d+)?|\d[\d']*\.?\d*(?:e[+-]?\d+)?)"
                    r"(?=[uUlL]*\b)")
ROOM = re.compile(r"array<[^;=>]*\Z|alignas\(\Z|reserve\([^;]*\Z")
STEP = re.compile(r"\+\+|--")
NEGATION = re.compile(r"(?<=[( ])!(?=[\w(:])")
CONDITION = re.compile(r"\b(?:if|while) \(")
STATEMENT = re.compile(
    r"^[ \t]*(?:(?!return\b|break\b|using\b|delete\b|static_cast\b)[\w.:>\[\]()*-]*[\w\])]"
    r"(?: [-+*/|&]?= [^;{}]*|\([^;{}]*\)|\.\w+\([^;{}]*\))|(?:break|continue)|(?:\+\+|--)[\w.]+);"
    r"[ \t]*$", re.MULTILINE)


def blanked(text):
    """The text with blanks in the place of all that is no code."""
    return NOT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def closing(code, opening):
    """Where the parenthesis that opens there closes."""
    depth = 0
    for place in range(opening, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place
    return None


def next_number(number):
    """One more, or for a fraction another one."""
    if "p" in number:  # a hexadecimal fraction
        return number.replace(".", ".8", 1) if "." in number else number.replace("p", ".8p", 1)
    number = number.replace("'", "")
    if number.lower().startswith("0x"):
        return hex((int(number, 16) + 1) % 2 ** (4 * (len(number) - 2)))
    whole = re.match(r"\d+", number).group()
    return str(int(whole) + 1) + number[len(whole):]


def conditions(code):
    for found in CONDITION.finditer(code):
        opening = found.end() - 1
        end = closing(code, opening)
        inside = code[opening + 1:end]
        if ";" not in inside and not re.search(r"(?<![=!<>])=(?!=)", inside):
            yield opening, end + 1, f"(!({{}}))"


def of_source(text):
    """All of them, as (begin, end, what stands there instead), in their order."""
    code = blanked(text)
    faults = []
    for found in OPERATOR.finditer(code):
        faults += [(*found.span(), other) for other in OTHER_OPERATORS[found.group()]]
    for found in NUMBER.finditer(code):
        if not ROOM.search(code, 0, found.start()):
            faults.append((*found.span(), next_number(found.group())))
    for found in STEP.finditer(code):
        faults.append((*found.span(), "--" if found.group() == "++" else "++"))
    for found in re.finditer(r"\b(?:true|false)\b", code):
        faults.append((*found.span(), "false" if found.group() == "true" else "true"))
    for found in NEGATION.finditer(code):
        faults.append((*found.span(), ""))
    for begin, end, form in conditions(code):
        faults.append((begin, end, form.format(text[begin + 1:end - 1])))
    for found in STATEMENT.finditer(code):
        if ".reserve(" not in found.group():
            faults.append((*found.span(), ";"))
    return sorted(faults)
