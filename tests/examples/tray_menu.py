#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""tray_menu.py LABEL: presses the entry LABEL of the first tray icon that the desktop's host knows, as the
host itself does (StatusNotifierItem and dbusmenu on the session bus). Fails when there is none."""
import sys

import gi
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

bus = Gio.bus_get_sync(Gio.BusType.SESSION)


def call(name, path, interface, method, arguments):
    return bus.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE, 10_000).unpack()


def get(name, path, interface, what):
    return call(name, path, "org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (interface, what)))[0]


watcher = "org.kde.StatusNotifierWatcher"
items = get(watcher, "/StatusNotifierWatcher", watcher, "RegisteredStatusNotifierItems")
if not items:
    sys.exit(1)
name, _, path = items[0].partition("/")
menu = get(name, "/" + path, "org.kde.StatusNotifierItem", "Menu")
_, (_, _, entries) = call(name, menu, "com.canonical.dbusmenu", "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
numbers = [number for number, properties, _ in entries if properties.get("label") == sys.argv[1]]
if not numbers:
    sys.exit(1)
# Not waited for: the program may end before it answers.
press = Gio.DBusMessage.new_method_call(name, menu, "com.canonical.dbusmenu", "Event")
press.set_body(GLib.Variant("(isvu)", (numbers[0], "clicked", GLib.Variant("i", 0), 0)))
press.set_flags(Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
bus.send_message(press, Gio.DBusSendMessageFlags.NONE)
bus.flush_sync()
