#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Pictures of what a selector styles.

widgets.py PROGRAM FOLDER: runs widget_map on the present display; leaves screenshots and maps of it in FOLDER.
"""
import os
import re
import subprocess
import sys
import time
from pathlib import Path

# Classes of GTK itself, and what widget_map calls its own things.
OTHERS = {"background", "horizontal", "vertical", "text-button", "image-button", "toggle", "frame", "bottom", "left",
          "top", "right", "flat", "slider", "link", "my-class", "my-id", "my-popup", "messageboxmy-id",
          "messageboxmy-popup", "my-action-0", "my-action-1", "toolbar", "overlay-indicator", "hovering", "dragging"}
SHADE, MARK = "#10252b", "#e5484d"
LARGEST = (800, 330)  # of a picture that shows less than a whole window, in device pixels


class Widget:
    def __init__(self, words):
        self.number, self.parent = int(words[0]), int(words[1])
        self.node, self.name = words[2], words[3]
        classes = words[4] if words[4] != "-" else ""
        self.classes = {name for name in classes.split(",") if name}
        self.box = [2 * int(value) for value in words[-4:]]


def read(file):
    return {widget.number: widget for widget in (Widget(line.split()) for line in file.read_text().splitlines())}


class Map:
    def __init__(self, folder, target):
        self.folder, self.target, self.used = folder, target, set()
        self.states = [(file.with_suffix(".png"), read(file)) for file in sorted(folder.glob("*.map"))]

    def fits(self, widgets, widget, selector):
        *above, own = selector.split()
        node, *rest = re.split(r"(?=[.#])", own)
        if node and node != widget.node:
            return False
        for part in rest:
            if part[0] == "#" and part[1:] != widget.name or part[0] == "." and part[1:] not in widget.classes:
                return False
        while above and widget.parent >= 0:
            widget = widgets[widget.parent]
            if self.fits(widgets, widget, above[-1]):
                return self.fits(widgets, widget, " ".join(above))
        return not above

    def picture(self, selector):
        """The name of a file with the picture; None when the selector fits nothing."""
        self.used |= set(re.findall(r"[.#]([\w-]+)", selector))
        for shot, widgets in self.states:
            found = [widget for widget in widgets.values() if self.fits(widgets, widget, selector)]
            if not found:
                continue
            top = self.top(widgets, found[0])
            boxes = [widget.box for widget in found if self.top(widgets, widget) is top]
            name = "widget" + re.sub(r"\W+", "-", selector) + ".png"
            draw(shot, top.box, boxes, self.target / name)
            return name
        return None

    @staticmethod
    def top(widgets, widget):
        while widget.parent >= 0:
            widget = widgets[widget.parent]
        return widget

    def unused(self):
        """Classes and names on the screen that no guide has asked for."""
        every = {f".{name}" for _, widgets in self.states for widget in widgets.values() for name in widget.classes}
        every |= {f"#{widget.name}" for _, widgets in self.states for widget in widgets.values() if widget.name != "-"}
        return sorted(name for name in every if name[1:] not in OTHERS | self.used)


def draw(shot, top, boxes, target):
    """What lies in the boxes as it is, what is around them in the shade."""
    left, upper = min(box[0] for box in boxes), min(box[1] for box in boxes)
    right, lower = max(box[0] + box[2] for box in boxes), max(box[1] + box[3] for box in boxes)
    x, y, width, height = top
    margin = 16
    x, y, width, height = max(x - margin, 0), max(y - margin, 0), width + 2 * margin, height + 2 * margin
    if right - left < LARGEST[0] and width > LARGEST[0]:
        x = max(x, min((left + right - LARGEST[0]) // 2, x + width - LARGEST[0]))
        width = LARGEST[0]
    if lower - upper < LARGEST[1] and height > LARGEST[1]:
        y = max(y, min((upper + lower - LARGEST[1]) // 2, y + height - LARGEST[1]))
        height = LARGEST[1]
    command = ["convert", shot, "-fill", SHADE, "-colorize", "45%"]
    for box in boxes:
        crop = f"{box[2]}x{box[3]}+{box[0]}+{box[1]}"
        command += ["(", shot, "-crop", crop, "+repage", ")", "-geometry", f"+{box[0]}+{box[1]}", "-composite"]
    command += ["-fill", "none", "-stroke", MARK, "-strokewidth", "4"]
    for box in boxes:
        command += ["-draw", f"rectangle {box[0] - 2},{box[1] - 2} {box[0] + box[2] + 1},{box[1] + box[3] + 1}"]
    subprocess.run(command + ["-crop", f"{width}x{height}+{x}+{y}", "+repage", "-strip", target], check=True)


def still(file, unlike=None):
    """Takes screenshots until two in a row are the same, and other than one before."""
    before, end = None, time.monotonic() + 20
    while (now := capture(file)) != before or now == unlike:
        if time.monotonic() > end:
            sys.exit("widgets: the screen never comes to rest")
        before = now
    return now


def capture(file):
    subprocess.run(["import", "-window", "root", "-strip", file], check=True)
    return file.read_bytes()


def main(program, folder):
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    subprocess.run(["xsetroot", "-solid", "#8ea6a8"], check=True)
    process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                               env=dict(os.environ, G_DEBUG="fatal-warnings"))
    subprocess.run(["timeout", "20", "xdotool", "search", "--sync", "--onlyvisible", "--class", "widget_map"],
                   check=True, stdout=subprocess.DEVNULL)
    shown = None
    for state, command in (("1-locked", ""), ("2-menu", "menu\n"), ("3-unlocked", "unlock\n")):
        process.stdin.write(command)
        process.stdin.flush()
        shown = still(folder / f"{state}.png", unlike=shown)
        process.stdin.write("map\n")
        process.stdin.flush()
        lines = []
        while (line := process.stdout.readline().strip()):
            if re.match(r"\d+ -?\d+ ", line):
                lines.append(line)
        (folder / f"{state}.map").write_text("\n".join(lines) + "\n")
    process.stdin.close()
    process.wait(20)


if __name__ == "__main__":
    main(*sys.argv[1:])
