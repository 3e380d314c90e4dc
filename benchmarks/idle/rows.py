# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

ROWS = [
    Row("idle", "Idle for 20 s with a panel, ten windows, a notification and the tray's icon",
        {name: f"{{bin}}/time_idle {program}" for name, program in (
            ("ours", "{bin}/ours_idle"), ("tint2", "tint2"), ("xfce4-panel", "xfce4-panel --disable-wm-check"),
            ("dunst", "dunst"))},
        [Metric("wakeups", "in 20 s", [Mark(at_most=2)], counted=True)],
        """
Counted are the times that any thread of the program has waited, from the kernel's figures, under openbox with a host for the
tray. The library has no timer that runs on and no thread: what it waits for are the X server, the bus, and the notification's
end. Up to two are for what the desktop itself tells.
""", session=["-w", "openbox", "-t", "service"]),
]
