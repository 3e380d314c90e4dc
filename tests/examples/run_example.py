#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""run_example.py NAME PROGRAM FOLDER

Runs the example NAME on the present display and does with it what its reader would: looks for its texts and
widgets (AT-SPI), presses its buttons, and takes screenshots of what the X server shows into FOLDER, as
NAME.png and NAME-SUFFIX.png. Whatever a step looked for must be on the screen and drawn there. The program
must end by itself, with status 0 and without a word of complaint.
"""
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/support"))
import accessibility
from accessibility import Atspi

GROUND = "#8ea6a8"
PATIENCE = 20

# What each example shows, and what is done with it, in order.
STEPS = {
    "first_window": [
        ("see", "label", "This window is drawn by the theme, its title bar too."), ("see", "push button", "Press me"),
        ("picture",), ("press", "Press me"), ("see", "label", "Pressed: 1"), ("press", "Close the window")],
    "tool_menu": [
        ("see", "label", "Notes"), ("see", "text", "Milk\nBread\nTwo stamps"), ("press", "Menu"),
        ("see", "push button", "Ideas"), ("picture",), ("press", "Travel"), ("see", "label", "Travel"),
        ("gone", "push button", "Ideas"), ("press", "Save a picture of the window"),
        ("see", "label", "Saved as notes.png"), ("file", "notes.png"), ("press", "Close the window")],
    "panel": [
        ("see", "push button", "Terminal"), ("clock",), ("picture",), ("press", "Quit")],
    "task_buttons": [
        ("see", "label", "Press \"Mail\" in the panel."), ("see", "label", "Press \"Music\" in the panel."),
        ("see", "push button", "Maps"), ("picture",), ("press", "Music"),
        ("gone", "label", "Press \"Music\" in the panel."), ("picture", "hidden"), ("press", "Music"),
        ("see", "label", "Press \"Music\" in the panel."), ("press", "Close the window"),
        ("press", "Close the window"), ("press", "Close the window")],
    "notifications": [
        ("see", "label", "Shall we meet at ten? Here is the plan."), ("see", "label", "Charged to 80 %."),
        ("see", "push button", "Not today"), ("picture",), ("press", "I come"), ("says", "answer: yes"),
        ("gone", "push button", "Not today")],
    "tray": [
        ("tray", "Show a note"), ("see", "label", "The icon's menu has called."), ("picture",), ("tray", "Quit")],
    "own_theme": [
        ("see", "label", "Dusk"), ("see", "push button", "Go back"), ("picture",), ("press", "Accept")],
    "worker_thread": [
        ("see", "label", "Done"), ("see", "progress bar", ""), ("picture",), ("press", "Close the window")],
    "close_veto": [
        ("see", "label", "Everything is saved."), ("type", "x"), ("see", "label", "There are changes."),
        ("press", "Close the window"), ("see", "label", "Save the text before you close."), ("picture",),
        ("press", "Save"), ("see", "label", "Everything is saved."), ("press", "Close the window")],
}


class Run:
    def __init__(self, name, program, folder):
        self.name, self.folder = name, folder
        # A folder of its own, with the theme that one of them reads beside itself.
        self.work = Path(tempfile.mkdtemp())
        (self.work / "examples").symlink_to(ROOT / "examples")
        self.output = self.work / "output"
        self.error = self.work / "error"
        environment = dict(os.environ, G_DEBUG="fatal-warnings", TZ="UTC")
        self.program = subprocess.Popen(
            [program], stdout=self.output.open("w"), stderr=self.error.open("w"), env=environment, cwd=self.work)
        self.seen = []

    def fail(self, what):
        sys.exit(f"{self.name}: {what}\n{self.error.read_text()}the screen has:\n" + "\n".join(
            f"  {node.get_role_name()}: {text_of(node)!r}" for node in self.nodes()))

    def nodes(self):
        found = []
        for program in accessibility.programs(self.name):
            program.clear_cache()
            found += [node for node in accessibility.walk(program)
                      if node.get_state_set().contains(Atspi.StateType.SHOWING)]
        return found

    def until(self, what, condition):
        end = time.monotonic() + PATIENCE
        while not (result := condition()):
            if self.program.poll() is not None:
                self.fail(f"has ended before {what}")
            if time.monotonic() > end:
                self.fail(f"never: {what}")
        return result

    def find(self, role, text):
        return next((n for n in self.nodes() if n.get_role_name() == role and text_of(n) == text), None)

    def see(self, role, text):
        self.until(f"{role} {text!r} is seen", lambda: self.find(role, text))
        self.seen.append((role, text))

    def gone(self, role, text):
        self.until(f"{role} {text!r} is gone", lambda: not self.find(role, text))
        self.seen.remove((role, text)) if (role, text) in self.seen else None

    def clock(self):
        def shows_time():
            texts = [text_of(node) for node in self.nodes() if node.get_role_name() == "label"]
            return any(text in (time.strftime("%H:%M:%S", time.gmtime(time.time() - ago)) for ago in (0, 1))
                       for text in texts)
        self.until("the time of day is seen", shows_time)

    def press(self, text):
        node = self.until(f"{text!r} can be pressed", lambda: self.find("push button", text))
        self.seen = [seen for seen in self.seen if seen[0] != "push button"]
        node.get_action_iface().do_action(0)

    def type(self, text):
        """Writes into the only entry, after a click on it."""
        def entry():
            return next((node for node in self.nodes() if node.get_role_name() == "text"), None)
        x, y, width, height = extents(self.until("there is an entry", entry))
        subprocess.run(["xdotool", "mousemove", str(x + width // 2), str(y + height // 2), "click", "1"], check=True)
        self.until("the entry has the focus",
                   lambda: entry().get_state_set().contains(Atspi.StateType.FOCUSED))
        subprocess.run(["xdotool", "type", text], check=True)

    def says(self, line):
        self.until(f"{line!r} is said", lambda: line in self.output.read_text().split("\n"))

    def file(self, name):
        self.until(f"{name} is written", (self.work / name).is_file)

    def tray(self, label):
        tool = [sys.executable, Path(__file__).resolve().parent / "tray_menu.py", label]
        self.until(f"the tray's menu has {label!r}", lambda: subprocess.run(tool).returncode == 0)

    def picture(self, suffix=""):
        file = self.folder / f"{self.name}{'-' + suffix if suffix else ''}.png"
        self.until("nothing moves", lambda: self.still(file))
        self.until(f"all of {self.seen} is drawn", lambda: self.still(file) and self.drawn(file))

    def still(self, file):
        """Takes the screenshot; whether the one before it was the same, so that no transition is caught."""
        before = file.read_bytes() if file.is_file() else None
        subprocess.run(["import", "-window", "root", "-strip", file], check=True)
        return file.read_bytes() == before

    def drawn(self, file):
        for role, text in self.seen:
            node = self.find(role, text)
            if not node:
                continue
            x, y, width, height = extents(node)
            colours = subprocess.run(["convert", file, "-crop", f"{width}x{height}+{x}+{y}", "-format", "%k", "info:"],
                                     check=True, capture_output=True, text=True).stdout
            if int(colours) < 2:
                return False
        return True

    def end(self):
        try:
            status = self.program.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self.fail("does not end")
        if status or self.error.read_text():
            sys.exit(f"{self.name}: status {status}\n{self.error.read_text()}")


def extents(node):
    """Place and size on the screen, in device pixels."""
    box = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
    scale = int(os.environ.get("GDK_SCALE", "1"))
    return [scale * value for value in (box.x, box.y, box.width, box.height)]


def text_of(node):
    text = node.get_text_iface() if node.get_role_name() == "text" else None
    return Atspi.Text.get_text(text, 0, -1) if text else node.get_name()


def main(name, program, folder):
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    subprocess.run(["xsetroot", "-solid", GROUND], check=True)
    run = Run(name, program, folder)
    try:
        for step, *arguments in STEPS[name]:
            getattr(run, step)(*arguments)
        run.end()
    finally:
        run.program.kill()
        shutil.rmtree(run.work)
    print(f"{name}: {len(STEPS[name])} steps")


if __name__ == "__main__":
    main(*sys.argv[1:])
