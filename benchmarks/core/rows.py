# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

THREADS = {1: "1 thread", 4: "4 threads on one object"}
SHOWN = {"ours": "ours", "gobject": "GObject", "floor": "floor"}


def access_row(kind, operation, threads, about, gobject=None, floor=None, allocations=None, title=None, programs=None):
    """A row of reads or writes. `gobject` and `floor` are the most that ours may take beside them."""
    marks = [Mark(beside, at_most=most) for beside, most in (("GObject", gobject), ("floor", floor)) if most]
    metrics = [Metric("ns", "ns", marks)]
    if threads == 1:
        metrics += [Metric("allocations", "", [Mark(at_most=allocations)], counted=True),
                    Metric("instructions", "", marks, counted=True, callgrind=True)]
    programs = programs or {name: f"{name}_{kind}" for name in SHOWN}
    return Row(f"{kind}-{operation}-{threads}", title or f"{operation.capitalize()} a {kind} property, {THREADS[threads]}",
               {SHOWN[name]: f"{{bin}}/{program} {operation} {threads}" for name, program in programs.items()},
               metrics, about)


ACCESS = """
Ours is `zo_window_get_keep_above` and its setter, the peer `g_object_get` and `g_object_set` of a property that is kept
under a GMutex, the floor a mutex, a `std::map` and a `std::any`, called without a handle.
"""

ROWS = [
    access_row("bool", "read", 1, f"""{ACCESS}
Four atomic operations are most of it: two count the handle, which is passed by value, and two take the lock. The floor has
only the latter. What is left is the walk through the map, where names are told apart by eight bytes at a time; it grows
with the logarithm of the number of properties. Nothing is allocated.
""", gobject=0.65, floor=1.6, allocations=0),
    access_row("bool", "read", 4, f"""{ACCESS}
The handle's count and the lock go from core to core. What a GObject has besides is the lock of the process's table of
properties, which all objects share. The ratio depends on how many cores the threads really have: who finds the lock taken
sleeps, so on two cores one thread runs most of the time, and the ratio is nearly that of 1 thread. Beside the floor it shows
what a handle costs: the floor, which counts none, takes half a GObject's time itself.
""", gobject=0.35, floor=1.6),
    access_row("bool", "write", 1, f"{ACCESS}\nAs reading.", gobject=0.65, floor=1.6, allocations=0),
    access_row("bool", "write", 4, f"{ACCESS}\nAs reading.", floor=1.6),
    access_row("text", "read", 1, """
`zo_window_get_title` into a string that is used again, beside `g_object_get` and beside the floor's copy. The text is copied
once, under the lock, into the caller's own memory: nothing is allocated when it fits. A GObject copies and allocates twice.
""", gobject=0.7, floor=1.6, allocations=0),
    access_row("text", "read", 4, "As with 1 thread.", gobject=0.7, floor=1.6),
    access_row("text", "write", 1, """
`zo_notification_set_title`, beside `g_object_set` and the floor: a text that is stored and that nothing follows. The one
allocation is the caller's copy, which is passed by value; it changes places with the old text.
""", gobject=0.7, floor=1.6, allocations=1, title="Write a text, 1 thread",
               programs={"ours": "ours_stored_text", "gobject": "gobject_text", "floor": "floor_text"}),
    access_row("posted-text", "write", 1, """
`zo_window_set_title`, which besides posts a task with the old text and the new one, beside a GObject whose writer does so
with `g_idle_add_full`. Three allocations: the caller's copy, which goes into the task, the stored copy, and the task. The
task's run is not in the figures. Now and then the queue grows, too.
""", gobject=0.7, allocations=3.01, title="Write a text property and post the change, 1 thread",
               programs={"ours": "ours_text", "gobject": "gobject_posted_text", "floor": "floor_text"}),
    Row("object", "Create and drop an object with its whole property table",
        {name: f"{{bin}}/{name}_object" for name in ("ours", "floor")},
        [Metric("cpu_us", "us", [Mark("floor", at_most=1.5)]),
         Metric("allocations", "", [Mark("floor", at_most=1.5)], counted=True),
         Metric("instructions", "", [Mark("floor", at_most=1.5)], counted=True, callgrind=True)],
        """
A window, made with `zo_window_new` and let go, beside a map of the same 46 values. Allocations dominate: a node for each
property, its value, and its name where that is longer than fifteen characters; the cost is linear in the number of
properties. A window has a bool's value on the heap where a `std::any` holds it in place, and the nine handlers of its title
bar.
"""),
]
