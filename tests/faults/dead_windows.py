# SPDX-License-Identifier: MIT
"""Windows that are gone, and windows that go while they are asked about."""
import ctypes
import itertools
import os
import threading

from fault import Application, row, without_warnings

X = ctypes.CDLL("libX11.so.6")
X.XOpenDisplay.restype = ctypes.c_void_p
X.XDefaultRootWindow.restype = X.XInternAtom.restype = X.XCreateSimpleWindow.restype = ctypes.c_ulong
POINTER_ROOT, CURRENT_TIME = 1, 0
CARDINAL, STRING, WM_CLASS = 6, 31, 67


class Client:
    """A foreign program's connection."""

    def __init__(self):
        self.display = ctypes.c_void_p(X.XOpenDisplay(None))
        self.root = X.XDefaultRootWindow(self.display)
        self.pid = X.XInternAtom(self.display, b"_NET_WM_PID", 0)
        self.state = X.XInternAtom(self.display, b"WM_STATE", 0)

    def make(self):
        """A window in a frame, as window managers put them: the frame and the window."""
        frame = self.map(self.root)
        window = self.map(frame)
        X.XStoreName(self.display, ctypes.c_ulong(window), b"short-lived")
        self.set(window, WM_CLASS, STRING, 8, b"short\0Short\0", 12)
        self.set(window, self.pid, CARDINAL, 32, ctypes.byref(ctypes.c_long(os.getpid())), 1)
        self.set(window, self.state, self.state, 32, (ctypes.c_long * 2)(1, 0), 2)
        return frame, window

    def map(self, parent):
        none = ctypes.c_ulong(0)
        window = X.XCreateSimpleWindow(self.display, ctypes.c_ulong(parent), 0, 0, 20, 20, 0, none, none)
        X.XMapWindow(self.display, ctypes.c_ulong(window))
        return window

    def set(self, window, name, kind, bits, value, count):
        X.XChangeProperty(self.display, ctypes.c_ulong(window), ctypes.c_ulong(name), ctypes.c_ulong(kind), bits, 0, value,
                          count)

    def end(self, window):
        X.XDestroyWindow(self.display, ctypes.c_ulong(window))

    def sync(self):
        X.XSync(self.display, 0)


# A window is focused when it can be seen, so each is mapped first; the server has handled that before the next request.
handler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda display, error: 0)
X.XSetErrorHandler(handler)

application = Application()
client = Client()
dead = [client.make() for _ in range(500)]
for frame, _ in dead:
    client.end(frame)
client.sync()
never = [1, 0x1FFFFFFF, 0xFFFFFFFF, 2**63]
ids = [*sum(dead, ()), *never]
got = application.ask("query " + " ".join(map(str, ids)))
assert got == f"asked about {len(ids)}, wrong 0, errors 0", got
application.expect_alive()

going_on = True


def churn():
    """Windows that live for as long as it takes to ask the server 0 to 39 times: a question needs about as many."""
    for life in itertools.cycle(range(40)):
        if not going_on:
            return
        frame, window = client.make()
        X.XSetInputFocus(client.display, ctypes.c_ulong(window), POINTER_ROOT, ctypes.c_ulong(CURRENT_TIME))
        for _ in range(life):
            client.sync()
        client.end(frame)
        client.sync()


QUESTIONS = 3000
thread = threading.Thread(target=churn)
thread.start()
try:
    got = application.ask(f"active {QUESTIONS} {os.getpid()}")
finally:
    going_on = False
    thread.join()
answered = int(got.split(",")[0].removeprefix("answered "))
assert got == f"answered {answered}, wrong 0, errors 0", got
assert 0 < answered < QUESTIONS, f"{answered} of {QUESTIONS}: they never met"
application.expect_alive()
application.end()
without_warnings(application)
row(f"{len(ids):,} ids of dead windows given to the desktop queries", "What is read of them is not there: each reader "
    "gives its \"no\" and leaves the texts alone. To activate or to hide one is asked for and has no effect; the call succeeds as "
    "for any window. No error reaches the process.")
row(f"active window ends while it is asked about, {QUESTIONS:,} questions", "An answer of one whole window or none, with the "
    "id 0; no error reaches the process.")
