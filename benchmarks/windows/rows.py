# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

SIZES = [1, 10, 100, 500]
CONTENDERS = {name: f"{{bin}}/{name}_window {{size}}" for name in ("ours", "floor", "gtkmm", "HdyWindow")}
NO_MORE = [Mark("floor", at_most=1.05)]
AHEAD = [Mark("gtkmm", at_most=1)]
# Of what one left behind, nothing may grow: a page's rest of the heap is not what a window takes.
NOTHING_LEFT = [Mark(at_most=256)]


def medians(marks):
    """Where one round may differ a little: the desktop gives the focus before the first drawing or after it, and a page's rest
    more or less is near to what a mark of the heap leaves."""
    return [Mark(mark.beside, mark.at_most, median_only=True) for mark in marks]


def row(name, desktop, session, about, of_counts):
    return Row(name, f"Open a window until it is drawn, and destroy it, among so many alive, {desktop}", CONTENDERS,
               [Metric("window_cpu_us", "us", NO_MORE + AHEAD),
                Metric("window_x_requests", "", of_counts(NO_MORE), counted=True),
                Metric("window_allocations", "", of_counts(NO_MORE), counted=True),
                Metric("open_heap", "bytes", medians(NO_MORE), counted=True),
                Metric("left_heap", "bytes", medians(NOTHING_LEFT), counted=True)],
               about, sizes=SIZES, session=session)


ROWS = [
    row("window", "under openbox", ["-w", "openbox"], """
Ours is `zo_window_open` and `_show`, the floor the same tree in plain GTK calls, gtkmm's that tree in its classes, HdyWindow
a window with a HdyHeaderBar of its own. Without animations, so that the number of frames does not depend on the machine. Nearly
all is GTK's: the X windows of a toplevel, the styles of its tree, the first layout and the drawing. The library's own are its
properties, 47 named values in six kilobytes, and the tasks of opening and showing: about a hundredth of the instructions, and
four hundredths of the heap. What assistive programs read of the title's buttons is made when one asks. What grows with
the number of windows is the same for all: the desktop gives the focus back to one of them, which is drawn anew. What one left
behind is measured after ten were open at once before: nothing that grows.
""", medians),
    row("window-unmanaged", "without a window manager", [], """
As under openbox. Nobody gives the focus to a window here, so that none is drawn a second time.
""", list),
    Row("windows-instructions", "The instructions of opening and destroying a window, among so many alive, under openbox",
        CONTENDERS, [Metric("window_instructions", "", NO_MORE + AHEAD, counted=True, callgrind=True)], """
The same work, counted by callgrind, which takes minutes: what does not vary of the processor time.
""", sizes=[1, 10], session=["-w", "openbox"]),
]
