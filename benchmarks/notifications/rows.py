# SPDX-License-Identifier: MIT
from pathlib import Path

from table import Mark, Metric, Row

SIZES = [10, 100, 500, 1000]
OPENBOX = ["-w", "openbox"]
# Among the libraries of the machine's architecture.
NOTIFYD = next(Path("/usr/lib").glob("*/xfce4/notifyd/xfce4-notifyd"), "xfce4-notifyd")


def contenders(how):
    return {name: f"env G_SLICE=always-malloc {{bin}}/{name}_notifications {{size}} {how}" for name in ("ours", "floor")}


def closing(how, title, about, cpu, allocations, x_requests):
    return Row(f"notifications-close-{how}", title, contenders(how),
               [Metric("close_cpu_us", "us each", [Mark("floor", at_most=cpu)] if cpu else []),
                Metric("close_allocations", "each", [Mark("floor", at_most=allocations)] if allocations else [], counted=True),
                Metric("close_x_requests", "each", [Mark("floor", at_most=x_requests)], counted=True)],
               about, sizes=SIZES, session=OPENBOX)


ROWS = [
    Row("notifications-show", "Show 10, 100, 500, 1,000 notifications in one burst", contenders("all"),
        [Metric("show_cpu_us", "us each",
                [Mark("floor", at_most=1.1), Mark("ours", at_most=1.1, size=1000, beside_size=100)]),
         Metric("show_allocations", "each", [Mark("floor", at_most=1.1)], counted=True),
         Metric("show_x_requests", "each",
                [Mark("floor", at_most=1.1), Mark("ours", at_most=1.1, size=1000, beside_size=100)], counted=True)],
        """
Ours is `zo_notification_open_show`, the floor the same popups in plain GTK calls, each below the one before, until all are
on screen. A popup is a window of its own, and that is nearly all of it: its X window, its styles, the layout and the drawing
of its text. The first popups pay for what GTK loads once. The library's own share are the properties and the watch over the
stacking order.
""", sizes=SIZES, session=OPENBOX),
    closing("oldest", "Close as many, the oldest first, each in its own turn", """
Each that leaves moves all the others up: one request each, and GTK looks at every window when one is hidden (it takes the
background away and gives it back), two requests each. Both grow with the number of popups, the floor's as ours.
""", 1.25, 1.35, 1.1),
    closing("random", "Close as many in random order, each in its own turn",
            "As the oldest first; on the average half as many popups stand below the one that leaves.", 1.25, 1.35, 1.1),
    closing("all", "Close as many in one turn of the loop", """
The stack is put in order once for all that leave in one turn, which leaves GTK's own share: the requests for every window
when one is hidden. They are all that grows; ours and the floor send the same.
""", 1.25, 1.1, 1.1),
    Row("notifications-daemons", "Show and close 10 and 100 notifications, beside notification daemons",
        contenders("all") | {
            "dunst": "{bin}/daemon_notifications {size} dunst",
            "xfce4-notifyd": f"{{bin}}/daemon_notifications {{size}} {NOTIFYD}"},
        [Metric("show_cpu_us", "us each", [Mark("dunst", at_most=1), Mark("xfce4-notifyd", at_most=1)]),
         Metric("close_cpu_us", "us each", [Mark("dunst", at_most=1), Mark("xfce4-notifyd", at_most=1)])],
        """
The daemons get the same texts over D-Bus; only their own processor time is counted, of ours and the floor all of the
program's. dunst draws all its notifications into one window, anew for each that comes or goes, and at 500 does not answer
any more; xfce4-notifyd has a window for each, with an animation.
""", sizes=[10, 100], session=OPENBOX),
]
