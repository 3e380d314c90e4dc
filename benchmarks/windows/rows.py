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
    row("window", "under openbox", ["-w", "openbox"], """
Ours is `zo_window_open` and `_show`, the floor the same tree in plain GTK calls, gtkmm's that tree in its classes, HdyWindow
a window with a HdyHeaderBar of its own. Without animations, so that the number of frames does not depend on the machine. Nearly
all is GTK's: the X windows of a toplevel, the styles of its tree, the first layout and the drawing. The library's own are its
properties, 47 named values in six kilobytes, and the tasks of opening and showing: about a hundredth of the instructions, and
four hundredths of the heap. What assistive programs read of the title's buttons is made when one asks. What grows with
the number of windows is the same for all: the desktop gives the focus back to one of them, which is drawn anew. What one left
behind is measured after ten were open at once before: nothing that grows.
"""),
    row("window-unmanaged", "without a window manager", [], """
As under openbox. Nobody gives the focus to a window here, so that none is drawn a second time.
"""),
]
