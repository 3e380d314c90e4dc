#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""run.py [--counts] [--list] [ROW...]: runs the rows of all groups; see script/bench."""
import argparse
import importlib.util
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from fnmatch import fnmatch
from pathlib import Path

here = Path(__file__).resolve().parent
root = here.parent
build = root / "build/bench"
sys.dont_write_bytecode = True
sys.path.insert(0, str(here))
import report  # noqa: E402: it stands beside this file
import table  # noqa: E402

limit = 300  # seconds that one round of one contender may take

# So that every request for memory is seen, and what is given back is free at once. Not where time is taken.
COUNTING = {"G_SLICE": "always-malloc", "GLIBC_TUNABLES": "glibc.malloc.tcache_count=0"}


def groups():
    for file in sorted(here.glob("*/rows.py")):
        spec = importlib.util.spec_from_file_location(f"rows_{file.parent.name}", file)
        module = importlib.util.module_from_spec(spec)
        spec.loader.exec_module(module)
        yield file.parent.name, module.ROWS


def all_rows():
    return {row.name: (group, row) for group, rows in groups() for row in rows}


def chosen(patterns):
    rows = all_rows()
    for pattern in patterns:
        if not any(fnmatch(name, pattern) or group == pattern for name, (group, _) in rows.items()):
            sys.exit(f"bench: no row or group is named {pattern}; script/bench --list tells them")
    return [(group, row) for name, (group, row) in rows.items()
            if not patterns or any(fnmatch(name, pattern) or group == pattern for pattern in patterns)]


def output(command, environment=None):
    """What a program printed, or None when it failed: then its figures are missing, and its marks are missed."""
    try:
        done = subprocess.run(command, capture_output=True, text=True, timeout=limit, env=os.environ | (environment or {}))
    except subprocess.TimeoutExpired:
        print(f"bench: {shlex.join(map(str, command))} did not end within {limit} s", file=sys.stderr, flush=True)
        return None
    if done.returncode == 0:
        return done
    print(f"bench: {shlex.join(map(str, command))} ended with {done.returncode}\n{done.stdout}{done.stderr}", file=sys.stderr,
          flush=True)
    return None


def printed(text):
    return {name: float(value) for name, value in re.findall(r"^(\S+) (-?[\d.]+(?:e[+-]?\d+)?)$", text, re.M)}


@dataclass(frozen=True)
class Job:
    """One run of one program, for one kind of figures: "timed", "counted", or "callgrind" and the step it is about."""
    command: str
    kind: str
    session: tuple = ()  # of its own, when it has one

    def figures(self):
        """None when the program failed."""
        words = shlex.split(self.command)
        if self.session:
            words = [root / "script/session", *self.session, "--", *words]
        kind, _, step = self.kind.partition(" ")
        if kind == "callgrind":
            return self.instructions(words, step)
        done = output(words, COUNTING if kind == "counted" else None)
        return printed(done.stdout) if done else None

    def instructions(self, words, step):
        with tempfile.TemporaryDirectory() as folder:
            done = output(["valgrind", "--tool=callgrind", "--instr-atstart=no", f"--callgrind-out-file={folder}/out", *words],
                          {"ZO_BENCH_STEP": step})
        if not done:
            return None
        collected = int(re.search(r"Collected : (\d+)", done.stderr).group(1))
        operations = printed(done.stdout)[f"{step}_operations" if step else "operations"]
        return {"instructions": collected / operations}


def kinds(row, size, number):
    """The kinds of runs that a size of a row wants in a round, each with its metrics."""
    wanted = {}
    for metric in row.metrics:
        if metric.sizes is not None and size not in metric.sizes:
            continue
        once = metric.counted and not any(mark.median_only for mark in metric.marks)
        if number < (1 if once else row.rounds_at(size)):
            kind = f"callgrind {metric.step}".strip() if metric.callgrind else "counted" if metric.counted else "timed"
            wanted.setdefault(kind, []).append(metric)
    return wanted


def jobs_of(group, row, number):
    """What a round of a row takes, as (size, contender, metrics, job)."""
    for size in row.sizes:
        places = {"bin": build / "benchmarks" / group, "here": here / group, "size": size}
        for kind, metrics in kinds(row, size, number).items():
            for name, command in row.contenders_at(size).items():
                yield size, name, metrics, Job(command.format(**places), kind, tuple(row.session) if row.apart else ())


class Results:
    """Figures by job and round. A job that rows have in common is done once in a round, one that failed never again."""

    def __init__(self):
        self.figures = {}
        self.failed = set()

    def run(self, jobs, number, at_once):
        wanted = [job for job in dict.fromkeys(jobs) if job not in self.failed and (job, number) not in self.figures]
        with ThreadPoolExecutor(max_workers=len(wanted) or 1 if at_once else 1) as pool:
            # Each goes first in turn: what one leaves behind, another would pay for.
            for job, figures in zip(wanted, pool.map(Job.figures, wanted)):
                self.figures[job, number] = figures
                if figures is None:
                    self.failed.add(job)

    def of(self, job, number, metrics):
        figures = {} if job in self.failed else self.figures[job, number]
        names = {metric.name: "instructions" if metric.callgrind else metric.name for metric in metrics}
        return {name: figures[printed_name] for name, printed_name in names.items() if printed_name in figures}


def measure_round(group, rows, number, results):
    """Everything that a round of these rows takes, ours, the peers and the floor of a size one after the other."""
    for row in rows:
        for size in row.sizes:
            jobs = [job for other, _, _, job in jobs_of(group, row, number) if other == size]
            results.run(jobs if number % 2 == 0 else jobs[::-1], number, row.apart)


def rounds_of(group, row, results):
    """A list of rounds; each is {size: {contender: {metric: value}}}."""
    rounds = []
    for number in range(max(map(row.rounds_at, row.sizes))):
        values = {str(size): {name: {} for name in row.contenders} for size in row.sizes}
        for size, name, metrics, job in jobs_of(group, row, number):
            values[str(size)][name].update(results.of(job, number, metrics))
        rounds.append(values)
    return rounds


def measure(group, rows):
    """The rounds of each row by its name."""
    results = Results()
    for number in range(max(row.rounds_at(size) for row in rows for size in row.sizes)):
        measure_round(group, rows, number, results)
    return {row.name: rounds_of(group, row, results) for row in rows}


def measured(group, rows, counts):
    """Measures here, or on a private desktop when the rows ask for one."""
    if rows[0].session is None or rows[0].apart or "ZO_BENCH_INSIDE" in os.environ:
        return measure(group, rows)
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "rounds.json"
        command = [root / "script/session", *rows[0].session, "--", "env", "ZO_BENCH_INSIDE=1", sys.executable, __file__,
                   "--into", file, *(row.name for row in rows)] + (["--counts"] if counts else [])
        if subprocess.run(command).returncode:
            sys.exit(f"bench: the rows of {group} failed on their desktop")
        return json.loads(file.read_text())


def together(rows):
    """Rows of one group that want the same desktop are measured together: they share programs."""
    parts = {}
    for group, row in rows:
        parts.setdefault((group, tuple(row.session or ()), row.session is None, row.apart), []).append(row)
    return [(key[0], part) for key, part in parts.items()]


def warn_of_load():
    load = os.getloadavg()[0]
    if load > 0.5:
        print(f"bench: the machine is not quiet (load {load:.1f}): times will vary", file=sys.stderr, flush=True)


def shown(row, rounds):
    lines = report.lines_of(row, rounds)
    report.show(lines)
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--counts", action="store_true", help="only what is counted and does not vary")
    parser.add_argument("--list", action="store_true", help="tell the names of all rows")
    parser.add_argument("--into", help=argparse.SUPPRESS)
    parser.add_argument("rows", nargs="*", metavar="ROW", help="a row's name, a pattern of names, or a group")
    options = parser.parse_args()
    rows = chosen(options.rows)
    if options.list:
        print("\n".join(f"{group}: {row.name}: {row.title}" for group, row in rows))
        return 0
    if options.counts:
        rows = [(group, counted) for group, row in rows if (counted := table.asserted(row))]
    if not options.into:
        warn_of_load()
    lines = []
    for group, part in together(rows):
        began = time.monotonic()
        rounds = measured(group, part, options.counts)
        if options.into:
            Path(options.into).write_text(json.dumps(rounds))
            return 0
        for row in part:
            lines += shown(row, rounds[row.name])
        print(f"bench: {group}: {time.monotonic() - began:.0f} s", file=sys.stderr, flush=True)
    report.show_sum(lines)
    if not options.rows and not options.counts:
        report.write(root / "docs/benchmarks.md", [row for _, row in rows], lines)
    return 0 if all(line.reached for line in lines) else 1


if __name__ == "__main__":
    sys.exit(main())
