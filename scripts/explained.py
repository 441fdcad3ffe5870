"""Lists of what a measurement leaves over, each with its reason: lines that begin with "# " say why,
and hold for the lines below them up to the next such lines."""
import collections


def entries(path):
    """How often each line of a list stands in it. A line without a reason is an error."""
    found = collections.Counter()
    has_reason = False
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.startswith("# "):
            has_reason = True
        elif line and not has_reason:
            raise SystemExit(f"{path}: no reason for: {line}")
        elif line:
            found[line] += 1
    return found


def compare(path, left_over):
    """What is left over and not in the list, and what is in the list and not left over."""
    listed = entries(path)
    found = collections.Counter(left_over)
    return found - listed, listed - found
