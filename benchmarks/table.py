# SPDX-License-Identifier: MIT
"""What the rows.py of each group are written in.

ROWS is a list of Row. A row's contenders are programs that do the same work: "ours", the peers by their names, and
"floor", what an expert would write by hand for the same visible result. A command is a text; {bin} in it is the folder
of the group's built programs, {here} the group's source folder, {size} the size. A program does one round and prints
lines "metric value"; what it prints beyond the row's metrics is let be.
"""
from dataclasses import dataclass, field, replace


@dataclass
class Mark:
    """Ours divided by the contender `beside` must be in the bounds; without `beside`, ours itself."""
    beside: str = ""
    at_most: float | None = None
    at_least: float | None = None
    size: object = None          # only at this size; at each when None
    beside_size: object = None   # the contender's size, when it is another: how cost grows
    median_only: bool = False    # not by script/bench --counts, whose one round may differ a little

    def holds(self, value):
        return (self.at_most is None or value <= self.at_most) and (self.at_least is None or value >= self.at_least)

    def text(self):
        bounds = [f"at most {self.at_most:g}"] if self.at_most is not None else []
        bounds += [f"at least {self.at_least:g}"] if self.at_least is not None else []
        return ", ".join(bounds)


@dataclass
class Metric:
    name: str                    # as the program prints it
    unit: str = ""
    marks: list = field(default_factory=list)
    counted: bool = False        # does not vary: asserted by script/bench --counts, from one round
    callgrind: bool = False      # counted: instructions in bench::section, told by callgrind; divided by "operations"
    step: str = ""               # the bench::step that callgrind looks at; divided by "STEP_operations"
    sizes: list | None = None    # only at these


@dataclass
class Row:
    name: str                    # for the command line, unique: "bool-read"
    title: str
    contenders: dict             # name -> command; "ours" is compared with the others
    metrics: list
    about: str                   # for docs/benchmarks.md: what dominates, how cost grows, how far the floor is
    sizes: list = field(default_factory=lambda: [""])
    only_at: dict = field(default_factory=dict)  # contender -> its sizes, where it would take too long at others
    session: list | None = None  # options of script/session; one private desktop for all rounds of the row
    apart: bool = False          # a desktop for each contender instead, all at once: for what only waits
    rounds: dict = field(default_factory=dict)  # by size, where more than seven are taken: for what is short

    def contenders_at(self, size):
        return {name: command for name, command in self.contenders.items() if size in self.only_at.get(name, [size])}

    def rounds_at(self, size):
        return self.rounds.get(size, 7)


def asserted(row):
    """What script/bench --counts runs of a row: what the marks of its counted metrics are about. None without any."""
    metrics = [replace(metric, marks=[mark for mark in metric.marks if not mark.median_only])
               for metric in row.metrics if metric.counted]
    marks = [mark for metric in metrics for mark in metric.marks]
    if not marks:
        return None
    sizes = {size for mark in marks for size in (mark.size, mark.beside_size)}
    for metric in metrics:
        if any(mark.size is None for mark in metric.marks):
            sizes.update(row.sizes if metric.sizes is None else metric.sizes)
    besides = {"ours", *(mark.beside for mark in marks)}
    return replace(row, metrics=[metric for metric in metrics if metric.marks],
                   sizes=[size for size in row.sizes if size in sizes],
                   contenders={name: command for name, command in row.contenders.items() if name in besides})
