# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

THREADS = {1: "1 thread", 4: "4 threads on one object"}


def access_row(kind, operation, threads, marks, about):
    metrics = [Metric("ns", "ns", marks)]
    if threads == 1:
        metrics += [Metric("allocations", "", [Mark(at_most=0)], counted=True),
                    Metric("instructions", "", [], counted=True, callgrind=True)]
    return Row(f"{kind}-{operation}-{threads}", f"{operation.capitalize()} a {kind} property, {THREADS[threads]}",
               {name: f"{{bin}}/{program}_{kind} {operation} {threads}"
                for name, program in {"ours": "ours", "GObject": "gobject", "floor": "floor"}.items()},
               metrics, about)


ROWS = [
    access_row("bool", "read", 1, [Mark("GObject", at_most=0.65), Mark("floor", at_most=1.6)], ""),
    access_row("bool", "read", 4, [Mark("GObject", at_most=0.35), Mark("floor", at_most=1.6)], ""),
    access_row("bool", "write", 1, [Mark("floor", at_most=1.6)], ""),
    access_row("bool", "write", 4, [Mark("floor", at_most=1.6)], ""),
]
