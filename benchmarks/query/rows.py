# SPDX-License-Identifier: MIT
from table import Mark, Metric, Row

ROWS = [
    Row("active-window", "getActiveWindowInfo for a window in a frame of openbox, among so many clients",
        {name: f"{{bin}}/{name}_query {{size}}" for name in ("ours", "libxdo", "libwnck", "floor")},
        [Metric("round_trips", "", [Mark(at_most=15)], counted=True),
         Metric("requests", "", [], counted=True),
         Metric("us", "us"),
         Metric("cpu_us", "us")],
        """Waiting dominates: each round trip is a change to the server and back, as dear as several of its answers. Ours waits
twelve times: six times while Xlib opens the connection and once while it closes it, and five times for the question (the
focus with the atoms, the client, its frame, the state of the frame's children, the client's name, class and process).
The floor waits as often for the question, but XCB opens in one round trip and closes in none; a title in any encoding
needs Xlib. Cost grows with the levels between frame and client, two round trips each, and by a request for each part of
the frame, of which openbox has 56; not with the number of clients, which only libwnck asks for, some thirty requests
each. What waits on a busy server is the wall's time ("us"); "cpu_us" is the program's own.""", sizes=[1, 100], session=["-w", "openbox"]),
]
