# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

THREADS = {1: "1 thread", 4: "4 threads on one object"}
SHOWN = {"ours": "ours", "gobject": "GObject", "floor": "floor"}


def access_row(kind, operation, threads, about, gobject=None, floor=None, allocations=None, title=None, programs=None):
    """A row of reads or writes. `gobject` and `floor` are the most that ours may take beside them."""
    marks = [Mark(beside, at_most=most) for beside, most in (("GObject", gobject), ("floor", floor)) if most]
    metrics = [Metric("ns", "ns", marks)]
    if allocations is not None:
        metrics += [Metric("allocations", "", [Mark(at_most=allocations)], counted=True)]
    if threads == 1:
        metrics += [Metric("instructions", "", marks, counted=True, callgrind=True)]
    programs = programs or {name: f"{name}_{kind}" for name in SHOWN}
    return Row(f"{kind}-{operation}-{threads}", title or f"{operation.capitalize()} a {kind} property, {THREADS[threads]}",
               {SHOWN[name]: f"{{bin}}/{program} {operation} {threads}" for name, program in programs.items()},
               metrics, about)


ACCESS = """
Ours is `zo_window_get_keep_above` and its setter, the peer `g_object_get` and `g_object_set` of a property that is kept
under a GMutex, the floor a mutex, a `std::map` and a `std::any`, called without a handle.
"""

STORED = {"ours": "ours_stored_text", "gobject": "gobject_text", "floor": "floor_text"}
STORED_TEXT = """
`zo_property_set` of a text by its name, under the object's lock, beside `g_object_set` and the floor: a text that nothing on
the loop follows. The one allocation is the caller's copy, which is passed by value; it changes places with the old text, so
the memory is what dominates, then the lock and the walk through the map. It grows with the length of the text.
"""

POSTED = {"ours": "ours_text", "gobject": "gobject_posted_text", "floor": "floor_posted_text"}
POSTED_TEXT = """
`zo_window_set_title`, which besides posts a task with the old text and the new one, beside a GObject whose writer does so
with `g_idle_add_full`, and the floor's map with one source for all tasks. Three allocations: the caller's copy, which goes
into the task, the stored copy, and the task; the floor's tasks stand in its vector and cannot be anything else. The task's
run is not in the figures. Now and then the queue grows, too.
"""

ROWS = [
    access_row("bool", "read", 1, f"""{ACCESS}
Four atomic operations are most of it: two count the handle, which is passed by value, and two take the lock. The floor has
only the latter. What is left is the walk through the map, where names are told apart by eight bytes at a time; it grows
with the logarithm of the number of properties. Nothing is allocated.
""", gobject=0.65, floor=1.6, allocations=0),
    access_row("bool", "read", 4, f"""{ACCESS}
Once several threads read, the object remembers the flag, and they read it past the lock while nothing is changed: what is left
is the handle's count, which goes from core to core. A GObject has its mutex and besides the lock of the process's table of
properties, which all objects share, the floor its mutex: who finds one taken sleeps. How far they are apart depends on how
many cores the threads really have; it does not grow with the number of properties.
""", gobject=0.35, floor=1.6, allocations=0),
    access_row("bool", "write", 1, f"{ACCESS}\nAs reading.", gobject=0.65, floor=1.6, allocations=0),
    access_row("bool", "write", 4, f"{ACCESS}\nAs reading a text: the lock goes from core to core.", floor=1.6, allocations=0),
    access_row("text", "read", 1, """
`zo_window_get_title` into a string that is used again, beside `g_object_get` and beside the floor's copy. The text is copied
once, under the lock, into the caller's own memory: nothing is allocated when it fits. A GObject copies and allocates twice.
""", gobject=0.7, floor=1.6, allocations=0),
    access_row("text", "read", 4, """
As with 1 thread; the lock goes from core to core, and who finds it taken sleeps.
""", gobject=0.7, floor=1.6, allocations=0),
    access_row("text", "write", 1, STORED_TEXT, gobject=0.7, floor=1.6, allocations=1, programs=STORED),
    access_row("text", "write", 4, f"{STORED_TEXT}\nWith 4 threads, the lock goes from core to core.", gobject=0.7, floor=1.6,
               allocations=1, programs=STORED),
    access_row("posted-text", "write", 1, POSTED_TEXT, gobject=0.7, floor=1.6, allocations=3.01, programs=POSTED,
               title="Write a text property and post the change, 1 thread"),
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
