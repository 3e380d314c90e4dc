# SPDX-License-Identifier: MIT
"""The disk is full when the demo saves its window's photo."""
import os
import pathlib
import subprocess
import sys
import tempfile

from fault import ANSWER_SECONDS, row, until

sys.path.insert(0, os.environ["ZO_SOURCE_DIR"] + "/tests/support")
import accessibility

PHOTO = "zo-demo-photo.png"


def nodes():
    return [node for program in accessibility.programs("zo-demo") for node in accessibility.walk(program)]


def press(name):
    def button():
        return next((n for n in nodes() if n.get_name() == name and n.get_action_iface()), None)
    until(button, bool, f"no button {name}")
    button().get_action_iface().do_action(0)


def says(text):
    until(lambda: [n.get_name() for n in nodes()], lambda names: any(text in name for name in names), f"{text!r} is not said")


with tempfile.TemporaryDirectory() as folder:
    # Each write to this device fails as on a full disk.
    os.symlink("/dev/full", os.path.join(folder, PHOTO))
    demo = subprocess.Popen([os.environ["ZO_BINARY_DIR"] + "/bin/zo-demo"], cwd=folder,
                            env=dict(os.environ, G_DEBUG="fatal-warnings"))
    try:
        press("Open, show and activate")
        press("Save a picture of the window")
        says("Fatal error in PNG image file")
        assert not os.path.lexists(os.path.join(folder, PHOTO)), "half a photo is left"
        press("Save a picture of the window")
        says("The picture was saved")
        assert (pathlib.Path(folder) / PHOTO).read_bytes().startswith(b"\x89PNG")
        assert demo.poll() is None
    finally:
        demo.terminate()
        demo.wait(ANSWER_SECONDS)
row("disk full when the demo saves a photo", "The demo says so and leaves no half of a file; with room again the next one is saved.")
