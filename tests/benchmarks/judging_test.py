#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The benchmarks' runner on figures that are known: which marks it says are reached, and which are missed."""
import sys
from dataclasses import replace
from pathlib import Path

root = Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(root / "benchmarks"))
import report  # noqa: E402
import run  # noqa: E402
from table import Mark, Metric, Row, asserted  # noqa: E402

# Ours is half of the peer in all rounds but one, and does not grow; the peer does.
# The other never says anything.
ROUNDS = [{"10": {"ours": {"us": 2.0}, "peer": {"us": 4.0}, "other": {}},
           "100": {"ours": {"us": 2.0}, "peer": {"us": peer}, "other": {}}} for peer in (40.0, 40.0, 0.1)]


def row_with(*marks):
    metric = Metric("us", "us", list(marks), counted=True)
    return Row("row", "Row", {"ours": "a", "peer": "b", "other": "c"}, [metric, Metric("s", "s")], "", sizes=[10, 100])


def lines(*marks):
    return report.lines_of(row_with(*marks), ROUNDS)


def verdicts(*marks):
    return [line.cells[-1] for line in lines(*marks) if line.cells[2]]


def counted(*marks):
    """What a run that only counts does."""
    row = asserted(row_with(*marks))
    return row and ([metric.name for metric in row.metrics], list(row.contenders), row.sizes)


def expect(got, wanted):
    if got != wanted:
        sys.exit(f"{got} instead of {wanted}")


expect(verdicts(), ["", ""])
expect(verdicts(Mark("peer", at_most=0.5)), ["reached", "reached"])
expect(verdicts(Mark("peer", at_most=0.49)), ["MISSED", "reached"])
expect(verdicts(Mark("peer", at_least=0.4)), ["reached", "MISSED"])
expect(verdicts(Mark("peer", at_most=0.49, size=100)), ["", "reached"])
expect(verdicts(Mark(at_most=2)), ["", "reached", "", "reached"])
expect(verdicts(Mark(at_most=1.9, size=10)), ["", "MISSED", ""])
expect(verdicts(Mark("ours", at_most=1, size=100, beside_size=10)), ["", "", "reached"])
expect(verdicts(Mark("ours", at_most=0.9, size=100, beside_size=10)), ["", "", "MISSED"])
# Who has a mark and no figures has missed it; who has no figures at all is told of, and it must not be ours.
expect([line.cells[4:6] for line in lines() if not line.cells[2]], [("other", "failed")] * 2)
expect([line.reached for line in report.lines_of(Row("row", "Row", {"ours": "a"}, [], "", sizes=[10]),
                                                 [{"10": {"ours": {}}}])], [False])
expect(verdicts(Mark("other", at_most=1)), ["", "MISSED", "", "MISSED"])
expect(report.lines_of(Row("row", "Row", {"ours": "a"}, [Metric("s", "s")], "", sizes=[10]), ROUNDS), [])
expect([line.reached for line in report.lines_of(
    Row("row", "Row", {"ours": "a"}, [Metric("s", "s", [Mark(at_most=1)])], "", sizes=[10]), ROUNDS)], [False])
expect(counted(Mark("peer", at_most=0.49, median_only=True)), None)
expect(counted(), None)
expect(verdicts(Mark("peer", at_most=0.49, median_only=True)), ["MISSED", "reached"])
expect(counted(Mark("peer", at_most=0.49)), (["us"], ["ours", "peer"], [10, 100]))
expect(counted(Mark(at_most=2, size=100)), (["us"], ["ours"], [100]))
expect(counted(Mark("ours", at_most=1, size=100, beside_size=10)), (["us"], ["ours"], [10, 100]))
expect(counted(Mark("peer", at_most=1, size=10), Mark("other", at_most=1, median_only=True)),
       (["us"], ["ours", "peer"], [10]))
expect(run.printed("us 12.5\na word\ncount 3\nsmall 2.5e-06\n"), {"us": 12.5, "count": 3.0, "small": 2.5e-06})


def commands_of(row, number):
    return [(size, name, job.kind) for size, name, _, job in run.jobs_of("group", row, number)]


# What is counted is counted once, unless its median is wanted; what is short is timed more often.
expect(commands_of(row_with(), 0)[:4], [(10, "ours", "counted"), (10, "peer", "counted"), (10, "other", "counted"),
                                        (10, "ours", "timed")])
expect({kind for _, _, kind in commands_of(row_with(), 1)}, {"timed"})
expect({kind for _, _, kind in commands_of(row_with(Mark("peer", at_most=1, median_only=True)), 6)}, {"counted", "timed"})
expect(commands_of(row_with(), 7), [])
expect({size for size, _, _ in commands_of(replace(row_with(), rounds={10: 9}), 8)}, {10})
# A program that fails is left out from then on, and others of its name go on.
results = run.Results()
works, fails = run.Job("echo us 2", "timed"), run.Job("false", "timed")
results.run([works, fails], 0, False)
results.run([works, fails], 1, True)
expect([results.of(job, number, [Metric("us")]) for job in (works, fails) for number in (0, 1)],
       [{"us": 2.0}, {"us": 2.0}, {}, {}])
# Rows that share a desktop are measured together.
expect([(group, len(rows)) for group, rows in run.together(
    [("a", row_with()), ("a", replace(row_with(), session=["-w", "x"])), ("a", row_with()), ("b", row_with())])],
       [("a", 2), ("a", 1), ("b", 1)])

names = [row.name for _, rows in run.groups() for row in rows]
expect(sorted(set(names)), sorted(names))
for _, rows in run.groups():
    for row in rows:
        besides = {mark.beside for metric in row.metrics for mark in metric.marks}
        expect(besides - set(row.contenders) - {""}, set())
        expect("ours" in row.contenders and bool(row.about.strip()), True)
