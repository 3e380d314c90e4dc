# SPDX-License-Identifier: MIT
"""Medians, ratios and marks: the table on the terminal and in docs/benchmarks.md."""
import os
import platform
import re
import subprocess
from dataclasses import dataclass
from pathlib import Path
from statistics import median

HEAD = ("Work", "Size", "What", "Ours", "Beside", "Theirs", "Ratio", "Mark", "")


@dataclass
class Line:
    cells: tuple
    reached: bool = True


def number(value):
    return f"{value:,.0f}" if abs(value) >= 1000 else f"{value:.3g}"


def samples(rounds, size, contender, metric):
    """The metric in each round in which it was taken: what is counted by a slow tool is taken once."""
    return [values[contender][metric.name] for values in (one[str(size)] for one in rounds)
            if metric.name in values[contender]]


def bounds(marks):
    return ", ".join(mark.text() for mark in marks)


def compared(row, rounds, metric, size, beside, marks):
    """One line: ours beside one contender, or beside none."""
    ours = samples(rounds, size, "ours", metric)
    name, _, other_size = beside.partition("@")
    theirs = samples(rounds, other_size or size, name, metric) if beside else ours
    other = f"{name} at {other_size}" if other_size else name
    if not ours or not theirs:
        return Line((row.title, str(size), metric.name, "not measured", other, "", "", bounds(marks), "MISSED"), False)
    with_unit = f"{number(median(ours))} {metric.unit}".strip()
    if beside:
        value = median(a / b if b else float("inf") if a else 1.0 for a, b in zip(ours, theirs))
        shown = (other, number(median(theirs)), f"{value:.3g}")
    else:
        value = median(ours)
        shown = ("", "", "")
    reached = all(mark.holds(value) for mark in marks)
    verdict = "" if not marks else "reached" if reached else "MISSED"
    return Line((row.title, str(size), metric.name, with_unit, *shown, bounds(marks), verdict), reached)


def lines_of(row, rounds):
    lines = []
    for metric in row.metrics:
        for size in row.sizes if metric.sizes is None else metric.sizes:
            marks = {}
            for mark in metric.marks:
                if mark.size in (None, size):
                    other = f"@{mark.beside_size}" if mark.beside_size is not None else ""
                    marks.setdefault(mark.beside + other, []).append(mark)
            measured = [name for name in row.contenders if samples(rounds, size, name, metric)]
            others = [name for name in measured if name != "ours"] if "ours" in measured else []
            for beside in dict.fromkeys([*others, *marks]) or ([""] if "ours" in measured else []):
                lines.append(compared(row, rounds, metric, size, beside, marks.get(beside, [])))
    return lines + [failed(row, size, name) for size in row.sizes for name in row.contenders_at(size)
                    if not any(one[str(size)][name] for one in rounds)]


def failed(row, size, name):
    """Ours must not fail; of another it is told."""
    cells = (row.title, str(size), "", "failed" if name == "ours" else "", "" if name == "ours" else name,
             "" if name == "ours" else "failed", "", "", "MISSED" if name == "ours" else "")
    return Line(cells, name != "ours")


def show(lines):
    table = [HEAD, *(line.cells for line in lines)]
    widths = [max(len(cells[column]) for cells in table) for column in range(len(HEAD))]
    for cells in table:
        print("  ".join(cell.ljust(width) for cell, width in zip(cells, widths)).rstrip(), flush=True)


def show_sum(lines):
    missed = sum(not line.reached for line in lines)
    marked = sum(bool(line.cells[-1]) for line in lines)
    print(f"bench: {marked - missed} of {marked} marks are reached")


def machine():
    processor = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())
    system = re.search(r'PRETTY_NAME="(.*)"', Path("/etc/os-release").read_text())
    versions = [f"{name} {version}" for name, module in (("GLib", "glib-2.0"), ("GTK", "gtk+-3.0"))
                for version in [subprocess.run(["pkg-config", "--modversion", module], capture_output=True,
                                               text=True).stdout.strip()]]
    compiler = subprocess.run(["c++", "--version"], capture_output=True, text=True).stdout.split("\n")[0]
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return (f"{processor.group(1) if processor else platform.machine()}, {os.cpu_count()} cores, {memory:.0f} GiB; "
            f"{system.group(1) if system else platform.system()}; {compiler}; {', '.join(versions)}")


def write(file, rows, lines):
    text = ["# Benchmarks", "", "Written by `script/bench`, in release mode, on this machine:", "", f"    {machine()}", "",
            "Contenders run in turn, at least 7 rounds, every other round the other way round; figures are medians, ratios the",
            "medians of the rounds' ratios, ours divided by theirs. Times mean little from machine to machine; ratios and counts",
            "are what to look at. Counts are taken in runs of their own, in which all memory is asked for from malloc. The floor",
            "is what an expert would write by hand for the same visible result.", "",
            "| " + " | ".join(HEAD) + " |", "|" + "---|" * len(HEAD)]
    text += ["| " + " | ".join(line.cells) + " |" for line in lines]
    for row in rows:
        text += ["", f"## {row.title}", "", row.about.strip()]
    file.write_text("\n".join(text) + "\n")
