# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

# Windows that are on screen, icons in the tray, notifications that a daemon is sent.
CONTENDERS = {"ours": "12 1 0 {bin}/ours_idle", "floor": "12 1 0 {bin}/floor_idle", "tint2": "1 0 0 tint2",
              "xfce4-panel": "1 0 0 xfce4-panel --disable-wm-check", "dunst": "1 0 1 dunst"}

ROWS = [
    Row("idle", "Idle for 20 s with a panel, ten windows, a notification and the tray's icon",
        {name: f"{{bin}}/time_idle {program}" for name, program in CONTENDERS.items()},
        [Metric("wakeups", "in 20 s", [Mark(at_most=2)], counted=True),
         Metric("preempted", "in 20 s", counted=True)],
        """
Counted are the context switches of all threads, from the kernel's figures, under openbox with a host for the tray: how often
one had waited and went on, and how often the processor was taken from it. The windows and the icon must be there before and
after. The library has no timer that runs on and no thread: what it waits for are the X server, the bus, and the
notification's end. Up to two are for what the desktop itself tells. The floor is the same in plain calls of the toolkit, and
tells how many are the toolkit's. tint2 and xfce4-panel show only their panel, with a clock, dunst one notification. What is
counted does not vary: one round of 45 s for each contender is enough.
""", session=["-w", "openbox", "-t", "service"], apart=True),
]
