#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Acts on a program as assistive technology does (AT-SPI), from outside.

  accessibility.py APP names         the role and name of everything that can be pressed, one a line;
                                     nothing when the program has not joined the accessibility bus yet
  accessibility.py APP press NAME [WINDOW]
                                     presses the first of these with that name; with WINDOW, in the window of that name
  accessibility.py APP windows       the role, name and states ("active", "showing") of each window, one a line
  accessibility.py APP notifications the role, name and description of every notification, one a line
APP is the program's name.
"""
import sys
import warnings

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi
warnings.simplefilter("ignore")


def children(node):
    return filter(None, map(node.get_child_at_index, range(node.get_child_count())))


def walk(node):
    yield node
    for child in children(node):
        yield from walk(child)


def programs(application):
    return [program for program in children(Atspi.get_desktop(0)) if program.get_name() == application]


def states(node):
    had = node.get_state_set()
    wanted = (("active", Atspi.StateType.ACTIVE), ("showing", Atspi.StateType.SHOWING))
    return " ".join(name for name, state in wanted if had.contains(state))


def press(application, name, *window):
    for program in programs(application):
        for root in children(program):
            for node in walk(root) if not window or root.get_name() == window[0] else ():
                if node.get_action_iface() and node.get_name() == name:
                    sys.exit(not node.get_action_iface().do_action(0))
    sys.exit("no such button: " + name)


def main(application, action, *name):
    if action == "press":
        press(application, *name)
    everything = [node for program in programs(application) for node in walk(program)]
    nodes = [node for node in everything if node.get_action_iface()]
    if action == "names":
        for node in nodes:
            print(node.get_role_name() + ": " + node.get_name())
    elif action == "windows":
        for node in (window for program in programs(application) for window in children(program)):
            print(": ".join([node.get_role_name(), node.get_name(), states(node)]))
    elif action == "notifications":
        for node in everything:
            if node.get_role() == Atspi.Role.NOTIFICATION:
                print(": ".join([node.get_role_name(), node.get_name(), node.get_description()]))
    else:
        sys.exit("unknown: " + action)


if __name__ == "__main__":
    main(*sys.argv[1:])
