# SPDX-License-Identifier: MIT
# session: -m
"""Monitors are switched off and on again, and change their mode, under an open panel."""
import re
import subprocess

from fault import Application, row, until, without_warnings

FIRST, SECOND = "1024x768+0+0", "1024x768+1024+0"
SMALL = "800x600+0+0"
BOTH = ["--output", "DUMMY0", "--mode", "1024x768", "--pos", "0x0", "--primary",
        "--output", "DUMMY1", "--mode", "1024x768", "--pos", "1024x0"]
ROUNDS = 3


def place_of(window):
    text = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True, check=True).stdout
    return tuple(int(re.search(rf"{what}:? +(-?\d+)", text)[1])
                 for what in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def switch(outputs, *expected):
    """Done when the application has heard of it."""
    subprocess.run(["xrandr", *outputs], check=True)
    subprocess.run(["xrandr"], check=True, stdout=subprocess.DEVNULL)  # the driver looks at its outputs
    until(lambda: set(application.ask("monitors").split()), set(expected).__eq__, "the application's monitors")


def slides():
    application.tell("retract")
    until(lambda: place_of(panel), lambda p: p[:3] == (0, 1 - p[3], width), "the panel is not in")
    application.tell("extend")
    until(lambda: place_of(panel), lambda p: p[:3] == (0, 0, width) and p[3] > 1, "the panel is not out")


application = Application()
panel = application.ask("panel")
width = int(application.ask("screen"))
assert width == 1024, width
assert application.ask("monitors").split() == [FIRST, SECOND], application.ask("monitors")
slides()
for _ in range(ROUNDS):
    switch(["--output", "DUMMY1", "--off"], FIRST)
    slides()
    switch(BOTH, FIRST, SECOND)
    slides()
row("second monitor switched off and on beside an open panel", "The panel stays where it is and slides as before.")

for _ in range(ROUNDS):
    switch(["--output", "DUMMY0", "--off"], FIRST)  # the other one takes its place
    slides()
    application.expect_alive()
    switch(BOTH, FIRST, SECOND)
    slides()
row("the panel's own monitor switched off and on", "The panel stays at its place, where the "
    "other monitor is then, and slides as before; so it does with both.")

switch(["--output", "DUMMY0", "--mode", "800x600"], SMALL, SECOND)
slides()
switch(BOTH, FIRST, SECOND)
slides()
row("the panel's own monitor gets a smaller mode", f"An open panel keeps the width that it was opened with, {width} pixels, "
    "and slides as before.")
application.expect_alive()
application.end()
without_warnings(application)
