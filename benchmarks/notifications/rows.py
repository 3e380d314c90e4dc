# SPDX-License-Identifier: MIT
from pathlib import Path

from table import Mark, Metric, Row

SIZES = [10, 100, 500, 1000]
OPENBOX = ["-w", "openbox"]
# Among the libraries of the machine's architecture.
NOTIFYD = next(Path("/usr/lib").glob("*/xfce4/notifyd/xfce4-notifyd"), "xfce4-notifyd")
DAEMONS = {"dunst": "{bin}/daemon_notifications {size} dunst",
           "xfce4-notifyd": f"{{bin}}/daemon_notifications {{size}} {NOTIFYD}"}


def program(name, how):
    return f"{{bin}}/{name}_notifications {{size}} {how}"


def contenders(how):
    return {name: program(name, how) for name in ("ours", "floor")}


def closing(how, title, about, cpu, allocations, cpu_growth=(), allocations_growth=(), others=()):
    return Row(f"notifications-close-{how}", title, contenders(how) | dict(others),
               [Metric("close_cpu_us", "us each", [Mark("floor", at_most=cpu), *cpu_growth]),
                Metric("close_allocations", "each", [Mark("floor", at_most=allocations), *allocations_growth], counted=True),
                Metric("close_x_requests", "each", [Mark("floor", at_most=1.05)], counted=True)],
               about, sizes=SIZES, session=OPENBOX)


def beside_daemons(name, title, daemons, sizes, about):
    """Only the daemons' own processor time is counted: who asks them has other costs."""
    marks = [Mark(daemon, at_most=1) for daemon in daemons]
    return Row(name, title, contenders("all") | {daemon: DAEMONS[daemon] for daemon in daemons},
               [Metric("show_cpu_us", "us each", list(marks)), Metric("close_cpu_us", "us each", list(marks))],
               about, sizes=sizes, session=OPENBOX)


ROWS = [
    Row("notifications-show", "Show 10, 100, 500, 1,000 notifications in one burst", contenders("all"),
        [Metric("show_cpu_us", "us each",
                [Mark("floor", at_most=1.1), Mark("ours", at_most=1.2, size=500, beside_size=100)]),
         Metric("show_allocations", "each", [Mark("floor", at_most=1.1)], counted=True),
         Metric("show_x_requests", "each",
                [Mark("floor", at_most=1.1), Mark("ours", at_most=1.1, size=1000, beside_size=100)], counted=True)],
        """
Ours is `zo_notification_open_show`, the floor the same popups in plain GTK calls, each below the one before, with heights
that are remembered, until each has been drawn; GTK draws those below the screen's end as well. A popup is a window of its
own, and that is nearly all of it: its X window, its styles, the layout and the drawing of its text. The first popups pay for
what GTK loads once. The library's own share are the properties, the watch over the stacking order, and the search for the
place below the lowest popup, which looks at each.

The requests are constant per popup, and up to 500 the processor time nearly is. GTK itself looks at all windows when it
places one, which grows a little with each: two allocations for each other popup, the floor's as ours. A thousand popups have
60 MB, more than the caches hold, so there each look at all others is felt.
""", sizes=SIZES, session=OPENBOX),
    closing("oldest", "Close as many, the oldest first, each in its own turn", """
Each that leaves moves all the others up: one request each, and the server tells of each move twice, once because of the
watch over the stacking order, whose look at an event grows with the number of popups. When GTK unmaps a popup it takes the
background of every other window away and gives it back: two more requests each. So a turn costs what there are popups, and
the floor's as ours but for the watch.
""", cpu=2, allocations=1.35),
    closing("random", "Close as many in random order, each in its own turn",
            "As the oldest first; on the average half as many popups stand below the one that leaves.",
            cpu=2, allocations=1.35),
    closing("all", "Close as many in one turn of the loop", """
The stack is put in order once for all that leave in one turn. To do so for each would cost each of a thousand ten times as
much as each of a hundred, as it does in a turn of its own, with allocations for every popup that moves; in one turn they are
constant. What grows is GTK's, the floor's as ours: a popup that is unmapped costs two requests for every other window, and
lists of all windows are searched for it. The bare floor does without the requests: it lets GTK take the popup for unmapped
and destroys it, so that the X server takes it off the screen.
""", cpu=1.25, allocations=1.1, cpu_growth=[Mark("ours", at_most=6, size=1000, beside_size=100)],
            allocations_growth=[Mark("ours", at_most=1.05, size=1000, beside_size=100)],
            others={"bare floor": program("floor", "all bare")}),
    beside_daemons("notifications-daemons", "Show and close 10 and 100 notifications, beside notification daemons",
                   ["dunst", "xfce4-notifyd"], [10, 100], """
The daemons get the same texts in one burst over D-Bus, and are asked to close all in another; only their own processor time
is counted, of all their threads, while of ours and the floor it is all of the program's. dunst draws all its notifications
into one window, anew for each that comes or goes, so each costs the more the more there are. xfce4-notifyd has a window for
each, with an animation.
"""),
    beside_daemons("notifications-daemons-many", "Show and close 500 and 1,000 notifications, beside a notification daemon",
                   ["xfce4-notifyd"], [500, 1000], """
As with 100. dunst gives up: 200 it shows and closes, of 300 it has not closed all within three minutes, and of 500 it has
not taken all.
"""),
]
