"""From what was measured to the lines of the table, with their goals."""
import math
from dataclasses import dataclass, field

FRAME = 1 / 60  # seconds


@dataclass
class Goal:
    """The limits of a ratio."""
    words: str
    least: float = 0
    most: float = math.inf

    def verdict(self, ratio):
        return "reached" if self.least <= ratio <= self.most else "missed"


@dataclass
class Line:
    what: str
    measured: str
    beside: str
    ratio: float
    goal: Goal | None = None

    def cells(self):
        goal = [self.goal.words, self.goal.verdict(self.ratio)] if self.goal else ["", ""]
        return [self.what, self.measured, self.beside, f"{self.ratio:.2f}", *goal]


@dataclass
class Measured:
    lines: list
    details: list = field(default_factory=list)


def at_least(limit):
    return Goal(f"at least {limit:g}", least=limit)


def at_most(limit):
    return Goal(f"at most {limit:g}", most=limit)


def milliseconds(seconds):
    value = seconds * 1000
    digits = 3 if value < 1 else 1 if value < 100 else 0
    return f"{value:.{digits}f} ms"


def rate(seconds):
    return f"{1e-6 / seconds:.3g} million/s"


def mean(values):
    return math.exp(sum(math.log(value) for value in values) / len(values))


def rate_line(what, name, measured, beside, goal=None):
    return Line(what, rate(measured), f"{name}: {rate(beside)}", beside / measured, goal)


def mean_line(what, name, measured, goal=None):
    return rate_line(what, name, mean([ours for _, ours, _ in measured]),
                     mean([theirs for _, _, theirs in measured]), goal)


def formula_details(measured):
    return [f"{formula:<40} {ours * 1e9:8.1f} ns beside {theirs * 1e9:8.1f} ns {theirs / ours:8.2f}"
            for formula, ours, theirs in measured]


def sweep(measured, with_threads):
    worst = min(measured, key=lambda times: times[2] / times[1])
    return Measured([
        mean_line("sweeps of 1,920 samples, mean of twelve formulas", "muParser, bulk mode",
                  measured, at_least(3.5)),
        rate_line(f"sweeps, the worst of them: `{worst[0]}`", "muParser, bulk mode", *worst[1:],
                  at_least(1.5)),
        mean_line("sweeps, mean again", "muParser, bulk mode, all processors", with_threads),
    ], formula_details(measured))


def single(measured):
    return Measured([mean_line("one `Evaluate` at a time, mean", "muParser, one `Eval` at a time",
                               measured, at_least(0.75))], formula_details(measured))


def reference(swept, single_values):
    return Measured([
        mean_line("sweeps, mean", "evaluation by number text", swept, at_least(50)),
        mean_line("one `Evaluate` at a time, mean", "evaluation by number text", single_values),
    ], formula_details(swept))


def functions(single_values, swept):
    return Measured([
        *(rate_line(f"{name}, one value at a time", "C library", ours, theirs, at_least(0.5))
          for name, ours, theirs in single_values),
        *(rate_line(f"{name}, sweeps", "C library, one value at a time", ours, theirs, at_least(2))
          for name, ours, theirs in swept),
    ])


def time_line(what, name, measured, beside, goal):
    return Line(what, milliseconds(measured), f"{name}: {milliseconds(beside)}", measured / beside,
                goal)


def faster_line(what, name, measured, beside, goal):
    """How many times as fast."""
    return Line(what, milliseconds(measured), f"{name}: {milliseconds(beside)}", beside / measured,
                goal)


def painting(measured):
    (_, graphs, graphs_beside), (_, family_lines, family_beside) = measured
    return Measured([
        faster_line("painting the lines of 26 graphs, 1920 x 1080", "QPainter", graphs,
                    graphs_beside, at_least(3)),
        faster_line("painting a family of 1,000 sines", "QPainter", family_lines, family_beside,
                    at_least(5)),
    ])


def redraw(measured, dense):
    return Measured([
        time_line("redraw of 26 graphs, 1920 x 1080, quality 100", "a frame at 60 Hz",
                  measured[0][1], FRAME, at_most(0.33)),
        time_line("the same in 3840 x 2160 pixels (scale 2)", "a frame at 60 Hz", dense[0][1],
                  FRAME, at_most(1)),
    ])


def render(ours, gnuplot):
    return Measured([time_line("`zel-cli render` of 26 graphs to PNG, whole process",
                               "gnuplot, whole process", ours, gnuplot, at_most(0.2))])


def family(measured):
    _, thousand, hundred = measured[0]
    what = "redraw of a family of 1,000 members"
    return Measured([
        time_line(what, "of 100 members", thousand, hundred, Goal("9 to 11", 9, 11)),
        time_line(what, "25 frames", thousand, 25 * FRAME, at_most(1)),
    ])


def opening(measured):
    return Measured([time_line("opening a document of 26 graphs", "the goal", measured[0][1],
                               0.001, at_most(1))])


def start(ours, empty):
    return Measured([time_line("start of `zel` to its first window", "an empty Qt main window",
                               ours, empty, at_most(1.2))])


def compile_start(ours, true):
    return Measured([time_line("`zel-cli compile x`, whole process", "`true`, whole process", ours,
                               true, at_most(5))])


def as_table(table):
    """Markdown whose columns are also columns to the eye."""
    rows = [["what", "measured", "beside", "ratio", "goal", ""], *(line.cells() for line in table)]
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    texts = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |"
             for row in rows]
    return [texts[0], "|" + "|".join("-" * (width + 2) for width in widths) + "|", *texts[1:]]
