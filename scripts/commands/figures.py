"""The figures that goal_bench prints, and the table of them in docs/performance.md."""

import re
from dataclasses import dataclass

BEGIN = "<!-- figures: written by ./bench -->"
END = "<!-- end of figures -->"


@dataclass(frozen=True)
class Figure:
    goal: str  # its number, "1b"
    what: str
    value: float
    unit: str
    limit: float  # the value is not to be above it
    details: str
    different: int  # pixels; -1 where no pictures are compared

    @property
    def met(self):
        return self.value <= self.limit and self.different <= 0

    def row(self):
        """A line of the table."""
        unit = f" {self.unit}" if self.unit else ""
        pixels = "" if self.different < 0 else str(self.different)
        met = "yes" if self.met else "**no**"
        return (
            f"| {self.goal} | {self.what} | {self.limit:.3g}{unit} | {self.value:.3g}{unit} "
            f"| {met} | {pixels} | {self.details} |"
        )


def read_figures(output):
    """The figures among the lines that goal_bench printed."""
    figures = []
    for line in output.splitlines():
        if line.startswith("figure\t"):
            goal, what, value, unit, limit, details, different = line.split("\t")[1:]
            figures.append(
                Figure(goal, what, float(value), unit, float(limit), details, int(different))
            )
    return figures


def in_order(figures):
    """By the goals' numbers; figures of one goal stay as they are."""
    def number(figure):
        digits, letter = re.fullmatch(r"(\d+)([a-z]?)", figure.goal).groups()
        return int(digits), letter

    return sorted(figures, key=number)


def table(figures):
    head = (
        "| # | what | goal | figure | met | pixels different | times |\n"
        "| --- | --- | --- | --- | --- | --- | --- |\n"
    )
    return head + "\n".join(figure.row() for figure in in_order(figures)) + "\n"


def replace_figures(page, machine, figures):
    """The page with another table between the marks; what is written by hand stays."""
    begin = page.index(BEGIN) + len(BEGIN)
    end = page.index(END)
    return f"{page[:begin]}\n\n{machine}\n\n{table(figures)}\n{page[end:]}"
