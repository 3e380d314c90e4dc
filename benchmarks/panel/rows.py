# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

ALL = {name: f"{{bin}}/{name}_panel {{size}}" for name in ("ours", "floor", "WnckTasklist")}
BESIDE_FLOOR = {name: ALL[name] for name in ("ours", "floor")}
SIZES = [10, 100, 500, 1000]
# With 1,000 windows it takes minutes to show.
ONLY_AT = {"WnckTasklist": [10, 100, 500]}
OPENBOX = ["-w", "openbox"]
# A step of ten buttons is short: more rounds tell it as well.
ROUNDS = {10: 21, 100: 11}
FLOOR = [Mark("floor", at_most=1.1)]
FAR_LESS = [Mark("WnckTasklist", at_most=0.02, size=500)]
# The same with 1,000 as with 10.
DOES_NOT_GROW = [Mark("ours", at_most=1.1, size=1000, beside_size=10)]


# For a step that grows with the buttons; closing sends five requests beside the floor's four, whatever their number.
MANY = [Mark("floor", at_most=1.1, size=size) for size in SIZES[1:]]


def of(step, unit, more=(), allocations=FLOOR, x_requests=FLOOR):
    """The metrics of one step; `more` are further marks of the CPU."""
    return [Metric(f"{step}_cpu_us", f"us {unit}", [*FLOOR, *more]),
            Metric(f"{step}_allocations", unit, allocations, counted=True),
            Metric(f"{step}_x_requests", unit, x_requests, counted=True)]


def instructions(step):
    return Metric(f"{step}_instructions", "", FLOOR, counted=True, callgrind=True, step=step, sizes=[10])


ROWS = [
    Row("panel-show", "Show, hide and close a panel with 10, 100, 500, 1,000 windows", ALL,
        of("show", "a button", FAR_LESS) + [Metric("show_heap", "bytes a button", FLOOR, counted=True), instructions("show")]
        + of("hide", "a button") + of("close", "a button", allocations=MANY, x_requests=[]),
        """
Ours is `zo_window_manager_open` and `_show` of a panel whose windows are open, until it is drawn; the floor makes the same
tree in plain GTK calls. Of the time of a button about half goes into the close button's icon, which GTK loads and colours
for each button, since it shares styles only among siblings; the rest are two buttons, a label and the layout. The cost of a
button does not grow with their number. Ours dims the buttons of hidden windows when all are there: dimming has a style
computed, and the next button beside it would have it computed again. WnckTasklist lays out and sorts its list once more for
each button: what one costs grows with their number. Hiding and closing are GTK's, which destroys button by button; ours has
thirty allocations for each of ten windows more there, and one request in all.
""", sizes=SIZES, only_at=ONLY_AT, session=OPENBOX, rounds=ROUNDS),
    Row("panel-retitle", "Retitle a window 1,000 times, one frame each", BESIDE_FLOOR,
        [Metric("retitle_cpu_us", "us", FLOOR + DOES_NOT_GROW),
         Metric("retitle_allocations", "", FLOOR + DOES_NOT_GROW, counted=True)],
        """
Setting a button's label makes GTK make a new one, for ours as for the floor. A plain box measures all its children when one changes, lays them all out, considers all of them for drawing, and tells the
new label's style of all of them (a text for each): the floor's retitle grows with the number of windows. The library's row
measures the one that changed, lays out those that move or are in sight, and draws those in sight. With 10 windows a new
title moves the buttons beside it, and those are drawn anew; with 100 and more all have their smallest width, nothing moves,
and it takes less. What grows from 100 to 1,000 is a walk over their numbers.
""", sizes=SIZES, session=OPENBOX, rounds=ROUNDS),
    Row("panel-join", "Ten more windows join in one burst, beside WnckTasklist", ALL, of("join", "a button", FAR_LESS),
        """
The panel is on screen; ten windows come, and it is drawn with them. A new button stands left of the others, so all of them
move: ours and the floor lay out the whole row once for the burst. WnckTasklist makes and destroys its list's buttons, sorts
and lays out more than once for each window that comes.
""", sizes=SIZES, only_at=ONLY_AT, session=OPENBOX, rounds=ROUNDS),
]
