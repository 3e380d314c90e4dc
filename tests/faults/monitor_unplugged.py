# SPDX-License-Identifier: MIT
# session: -m
"""A monitor is switched off and on again, beside an open panel."""
import re
import subprocess

from fault import Application, row, until, without_warnings


def place_of(window):
    text = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True, check=True).stdout
    return tuple(int(re.search(rf"{what}:? +(-?\d+)", text)[1])
                 for what in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def outputs(*command):
    subprocess.run(["xrandr", "--output", "DUMMY1", *command], check=True)
    subprocess.run(["xrandr"], check=True, stdout=subprocess.DEVNULL)  # the driver looks at its outputs


application = Application()
panel = application.ask("panel")
width = application.ask("screen")
assert width == "1024", width
for round in range(3):
    for command in (["--off"], ["--mode", "1024x768", "--pos", "1024x0"]):
        application.tell("extend")
        until(lambda: place_of(panel), lambda p: p[:3] == (0, 0, 1024) and p[3] > 1, "the panel is not out")
        outputs(*command)
        assert application.ask("screen") == width
        application.tell("retract")
        until(lambda: place_of(panel), lambda p: p[:3] == (0, 1 - p[3], 1024), "the panel is not in")
application.expect_alive(1)
application.end()
without_warnings(application)
row("second monitor switched off and on beside an open panel", "The panel stays where it is and slides as before.")
