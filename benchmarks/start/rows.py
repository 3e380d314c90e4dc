# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

ROWS = [
    Row("start", "Process start until the panel with ten windows is on screen",
        {"ours": "{bin}/time_start {bin}/ours_start", "floor": "{bin}/time_start {bin}/floor_start",
         "tint2": "{bin}/time_start --panel tint2", "xfce4-panel": "{bin}/time_start --panel xfce4-panel --disable-wm-check"},
        [Metric("wall_us", "us", [Mark("floor", at_most=1.2)]), Metric("cpu_us", "us", [Mark("floor", at_most=1.2)])],
        """
Most of it is not the library's: the linking of GTK, its style sheets and fonts, the X connection, and eleven windows. The
floor is a plain GTK program with the same panel and as many windows. tint2 and xfce4-panel show only their panel, tint2
without GTK's widgets; they stop being timed when that is mapped, ours and the floor when all windows are drawn.
""", session=["-w", "openbox"]),
]
