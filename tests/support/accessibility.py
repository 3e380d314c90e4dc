#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Acts on a program as assistive technology does (AT-SPI), from outside.

  accessibility.py APP names         the role and name of everything that can be pressed, one a line
  accessibility.py APP press NAME    presses the first button with that name
APP is the program's name.
"""
import sys
import time
import warnings

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib
warnings.simplefilter("ignore")


def walk(node):
    yield node
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child:
            yield from walk(child)


def application(name, seconds=10):
    """Waits until the program is on the accessibility bus."""
    GLib.timeout_add(20, lambda: True)  # wakes the loop, since nothing tells of a program that joins
    until = time.monotonic() + seconds
    while time.monotonic() < until:
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_name() == name:
                return child
        GLib.MainContext.default().iteration(True)
    sys.exit(f"{name} is not on the accessibility bus")


nodes = [node for node in walk(application(sys.argv[1])) if node.get_action_iface()]
if sys.argv[2] == "names":
    for node in nodes:
        print(node.get_role_name() + ": " + node.get_name())
else:
    for node in nodes:
        if node.get_name() == sys.argv[3]:
            sys.exit(not node.get_action_iface().do_action(0))
    sys.exit("no such button: " + sys.argv[3])
