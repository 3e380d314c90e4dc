#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Acts on a program as assistive technology does (AT-SPI), from outside.

  accessibility.py APP names         the role and name of everything that can be pressed, one a line;
                                     nothing when the program has not joined the accessibility bus yet
  accessibility.py APP press NAME    presses the first of these with that name
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


def main(application, action, *name):
    everything = [node for program in programs(application) for node in walk(program)]
    nodes = [node for node in everything if node.get_action_iface()]
    if action == "names":
        for node in nodes:
            print(node.get_role_name() + ": " + node.get_name())
    elif action == "notifications":
        for node in everything:
            if node.get_role() == Atspi.Role.NOTIFICATION:
                print(": ".join([node.get_role_name(), node.get_name(), node.get_description()]))
    else:
        for node in nodes:
            if node.get_name() == name[0]:
                sys.exit(not node.get_action_iface().do_action(0))
        sys.exit("no such button: " + name[0])


if __name__ == "__main__":
    main(*sys.argv[1:])
