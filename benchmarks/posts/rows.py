# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

TASKS = 1_000_000
CONTENDERS = ["g_idle_add_full", "glib_dispatcher", "glib_signal_idle", "floor"]


def commands(arguments):
    return {name: f"{{bin}}/{name} {arguments}" for name in ["ours", *CONTENDERS]}


ROWS = [
    Row("posts", "Post 1,000,000 tasks holding a handle, from the loop, from 1 and from 4 other threads",
        commands(f"{{size}} {TASKS}"),
        [Metric("tasks_per_s", "/s", [Mark("g_idle_add_full", at_least=5), Mark("glib_dispatcher", at_least=10),
                                      Mark("floor", at_least=0.8)])],
        """
Each task counts up what its handle points to. A task on the loop posts the next thousand when it is the last of those before; other threads
post while the loop runs. The floor is one GSource with a vector under a mutex, the Dispatcher has a queue beside it
and one signal for each task, as its manual shows. Memory dominates: the task's own, which its maker allocates and the
loop frees, mostly of another thread: with one poster the floor is no further from the Dispatcher than ours. The queue
adds a lock, and a wake-up only when the loop may sleep; a source of GLib for each task adds five allocations and its
place among all sources. The cost of a task does not grow with their number.
""",
        sizes=["loop", 1, 4]),
    Row("posts-latency", "From posting on another thread to running on the loop, one task at a time",
        commands("{size} 10000"),
        [Metric("p50_us", "us", [Mark("g_idle_add_full", at_most=1)]),
         Metric("p99_us", "us", [Mark("g_idle_add_full", at_most=1)])],
        """
The time from before the post until the task runs, of 10,000 tasks that another thread posts one by one: each when the one
before has run, so that the loop is about to fall asleep, and each when it has been asleep for a while. Waking it is nearly
all of it: what is left for the queues is a microsecond, of which g_idle_add_full takes the most, for a source. It does not
grow with anything.
""", sizes=["busy", "asleep"]),
]
