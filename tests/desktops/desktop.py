# SPDX-License-Identifier: MIT
"""The desktop as other programs see it, and the driver that has windows on it."""
import os
import re
import subprocess
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
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.pid = self.process.pid

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

    def told(self, word):
        said = []
        becomes(lambda: said.append(self.ask("told")) or said, lambda all: any(word in one for one in all),
                f"not told: {word}")

    def end(self):
        self.process.stdin.close()
        try:
            return self.process.wait(LIMIT)
        except subprocess.TimeoutExpired:
            self.process.kill()
            raise Failed("does not end")


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


def is_gone(xid):
    return "IsViewable" not in run("xwininfo", "-id", xid)


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


def pointer(*words):
    run("xdotool", *map(str, words))


def click(place):
    left, top, width, height = place
    pointer("mousemove", left + width // 2, top + height // 2, "click", 1)


def has_manager():
    return os.environ["ZO_SESSION_WM"] != "none"
