# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

CONTENDERS = {name: f"env G_SLICE=always-malloc {{bin}}/{name}_window {{size}}"
              for name in ("ours", "floor", "gtkmm", "HdyWindow")}
NO_MORE = [Mark("floor", at_most=1.05)]
# Among others, another of them may be drawn once more when the focus moves.
ALONE = [Mark("floor", at_most=1.05, size=1)] + [Mark("floor", at_most=1.05, size=size, median_only=True)
                                                 for size in (10, 100, 500)]


def row(name, desktop, session, about):
    return Row(name, f"Open a window until it is drawn, and destroy it, among so many alive, {desktop}", CONTENDERS,
               [Metric("window_cpu_us", "us", NO_MORE + [Mark("gtkmm", at_most=1)]),
                Metric("window_x_requests", "", ALONE, counted=True),
                Metric("window_allocations", "", ALONE, counted=True),
                Metric("open_heap", "bytes", NO_MORE),
                Metric("left_heap", "bytes")], about, sizes=[1, 10, 100, 500], session=session)


ROWS = [
    row("window", "under openbox", ["-w", "openbox"], ""),
    row("window-unmanaged", "without a window manager", [], ""),
]
