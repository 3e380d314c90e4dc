# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

TIMED = {"ours": "{bin}/ours_start", "floor": "{bin}/floor_start", "plain window": "{bin}/plain_start",
         "tint2": "--panel tint2", "xfce4-panel": "--panel xfce4-panel --disable-wm-check"}

ROWS = [
    Row("start", "Process start until the panel with ten windows is on screen",
        {name: f"{{bin}}/time_start {program}" for name, program in TIMED.items()},
        [Metric("wall_us", "us", [Mark("floor", at_most=1.2)]), Metric("cpu_us", "us", [Mark("floor", at_most=1.2)])],
        """
Most of it is not the library's: the linking of GTK, its style sheets and fonts, and the X connection, which the plain window
of GTK takes as well, and then eleven windows; the cost is linear in their number. The floor is a plain GTK program with the
same panel and as many windows. Ours, the floor and the plain window have ended when all their windows are drawn. tint2 and
xfce4-panel show only their panel, tint2 without GTK's widgets; their time ends when that is mapped, and what other processes
do for them is not counted.
""", session=["-w", "openbox"]),
]
