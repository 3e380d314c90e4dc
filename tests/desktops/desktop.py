# SPDX-License-Identifier: MIT
"""The desktop as other programs see it, and the driver that has windows on it."""
import os
import re
import subprocess
import tempfile
import time

LIMIT = 8  # seconds that only a failure takes


class Failed(Exception):
    """A check that did not hold, with what was seen instead."""


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, timeout=LIMIT).stdout


def becomes(seen, wanted, what):
    """Waits until `seen()` satisfies `wanted`; tells what was seen last. Each look asks another process, and waits
    for its answer."""
    end = time.monotonic() + LIMIT
    while not wanted(value := seen()):
        if time.monotonic() > end:
            raise Failed(f"{what}: {value}")
    return value


class Driver:
    def __init__(self, program):
        self.program = program
        self.errors = tempfile.TemporaryFile("w+")
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self.errors,
                                        text=True)
        self.pid = self.process.pid
        self.heard = []

    def ask(self, *words):
        self.process.stdin.write(" ".join(map(str, words)) + "\n")
        self.process.stdin.flush()
        while line := self.process.stdout.readline():
            if line.startswith("= "):
                return line[2:].strip()
        raise Failed("the program ended")

    def xid(self, name):
        return becomes(lambda: self.ask("xid", name), lambda text: text != "-", f"no window {name}")

    def part(self, name, style_class):
        """Left, top, width and height on the screen."""
        text = becomes(lambda: self.ask("part", name, style_class), lambda text: text != "-", f"no {style_class}")
        return tuple(map(int, text.split()))

    def hears(self):
        """The words that callbacks told and nobody waited for yet."""
        self.heard += self.ask("told").split()
        return self.heard

    def forget(self):
        self.hears()
        self.heard = []

    def told(self, word):
        """Waits for a word, and forgets it and those before it."""
        becomes(self.hears, lambda heard: word in heard, f"not told: {word}")
        self.heard = self.heard[self.heard.index(word) + 1:]

    def complaints(self):
        """What the toolkit warned of so far."""
        self.errors.seek(0)
        return [line.strip() for line in self.errors if re.search(r"(WARNING|CRITICAL|ERROR) \*\*", line)]

    def end(self):
        self.process.stdin.close()
        try:
            code = self.process.wait(LIMIT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            raise Failed("does not end")
        if code != 0:
            raise Failed(f"the program ended with {code}")
        if said := self.complaints():
            raise Failed("it warned: " + "; ".join(said))


def states(xid):
    return set(re.findall(r"_NET_WM_STATE_(\w+)", run("xprop", "-id", xid, "_NET_WM_STATE")))


def geometry(xid):
    """Left, top, width and height of a window on the screen."""
    text = run("xwininfo", "-id", xid)
    fields = [re.search(name + r":\s+(-?\d+)", text) for name in
              ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
    return tuple(int(field[1]) for field in fields) if all(fields) else None


def is_viewable(xid):
    return "IsViewable" in run("xwininfo", "-id", xid)


def is_hidden(xid):
    """There, and not on the screen."""
    return re.search(r"Map State: IsUn\w+", run("xwininfo", "-id", xid)) is not None


def is_gone(xid):
    """The server knows no such window any more."""
    looked = subprocess.run(["xwininfo", "-id", xid], capture_output=True, text=True, timeout=LIMIT)
    return looked.returncode != 0 and "No such window" in looked.stderr


def active_window():
    found = re.search(r"(0x[0-9a-f]+)", run("xprop", "-root", "_NET_ACTIVE_WINDOW"))
    return str(int(found[1], 16)) if found else "0"


def top_of(xid):
    """The child of the root that the window is in, or is."""
    while True:
        found = re.search(r"Parent window id: (0x[0-9a-f]+)", run("xwininfo", "-id", xid, "-children"))
        root = re.search(r"Root window id: (0x[0-9a-f]+)", run("xwininfo", "-root", "-children"))
        if not found or found[1] == root[1]:
            return int(xid, 0)
        xid = found[1]


def height_of(xid):
    """How many windows of the screen are below."""
    listed = [int(word, 16) for word in re.findall(r"^ {5}(0x[0-9a-f]+)", run("xwininfo", "-root", "-children"), re.M)]
    top = top_of(xid)
    return len(listed) - listed.index(top) if top in listed else -1


def is_above(higher, lower, what):
    """Waits for it; a window that is not there is above nothing, and nothing is above it."""
    becomes(lambda: (height_of(higher), height_of(lower)), lambda h: 0 < h[1] < h[0], f"{what} above")


def raise_window(xid):
    """The server has done it, or given it to the window manager."""
    run("xdotool", "windowraise", xid)
    run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")


def pointer(*words):
    run("xdotool", *map(str, words))


def click(place):
    left, top, width, height = place
    pointer("mousemove", left + width // 2, top + height // 2, "click", 1)


def manager():
    return os.environ["ZO_SESSION_WM"]


def has_manager():
    return manager() != "none"


def work_area():
    """Left, top, width and height of what panels leave of the screen."""
    numbers = re.findall(r"\d+", run("xprop", "-root", "_NET_WORKAREA"))
    return tuple(map(int, numbers[:4]))
