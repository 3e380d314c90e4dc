# SPDX-License-Identifier: MIT
"""What other programs read: wmctrl, libwnck, assistive technology and the tray's host."""
import json
import re
from pathlib import Path

from desktop import Failed, becomes, is_gone, is_viewable, run
from window_checks import shown

here = Path(__file__).resolve().parent
BUTTONS = {"Exit the application", "How to use this window", "Save a picture of the window", "Go back", "Menu",
           "Minimize the window", "Close the window", "Press me"}


def accessible(*words):
    return run("/usr/bin/python3", str(here.parent / "support/accessibility.py"), "zo-desktops-driver", *words)


def wmctrl_lists_it(driver):
    xid = shown(driver, "a")
    line = becomes(lambda: [line.split(None, 4) for line in run("wmctrl", "-l", "-p").splitlines()],
                   lambda lines: any(int(fields[0], 16) == int(xid) for fields in lines), "not listed")
    found = next(fields for fields in line if int(fields[0], 16) == int(xid))
    if int(found[2]) != driver.pid or found[4] != "Title of a":
        raise Failed(str(found))


def libwnck_agrees(driver):
    """xfwm4 tells libwnck of its windows only when there is an order among them."""
    shown(driver, "b")
    xid = shown(driver, "a")
    driver.ask("activate", "a")
    wanted = {"name": "Title of a", "pid": driver.pid, "above": True, "skips_tasklist": True, "skips_pager": True}
    becomes(lambda: json.loads(run("/usr/bin/python3", str(here / "wnck.py"), xid) or "{}"), wanted.__eq__,
            "libwnck reads")


def buttons_have_names(driver):
    shown(driver, "a")
    becomes(lambda: accessible("names").splitlines(),
            lambda lines: set(lines) == {f"push button: {name}" for name in BUTTONS}, "buttons")


def buttons_are_pressed(driver):
    xid = shown(driver, "a")
    becomes(lambda: accessible("names"), lambda text: "push button: Press me" in text, "buttons")
    driver.ask("told")
    accessible("press", "Press me")
    driver.told("pressed")
    accessible("press", "Minimize the window")
    becomes(lambda: driver.ask("state", "a"), "opened hidden".__eq__, "state after pressing hide")
    becomes(lambda: is_gone(xid), bool, "gone")
    driver.ask("show", "a")
    becomes(lambda: is_viewable(xid), bool, "viewable")


def tray_is_read(driver):
    driver.ask("tray")
    item = becomes(lambda: run("gdbus", "call", "--session", "-d", "org.kde.StatusNotifierWatcher", "-o",
                               "/StatusNotifierWatcher", "-m", "org.freedesktop.DBus.Properties.Get",
                               "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"),
                   lambda text: "zo_desktops" in text, "registered")
    name, path = re.search(r"'(:[\d.]+|[\w.]+)(/[\w/]*zo_desktops)'", item).groups()
    for key, value in (("Id", "zo-desktops"), ("Title", "Desktops"), ("Status", "Active")):
        text = run("gdbus", "call", "--session", "-d", name, "-o", path, "-m",
                   "org.freedesktop.DBus.Properties.Get", "org.kde.StatusNotifierItem", key)
        if f"'{value}'" not in text:
            raise Failed(f"{key}: {text}")


def xfce_panel_is_the_host(driver):
    driver.ask("tray")
    text = becomes(lambda: run("gdbus", "call", "--session", "-d", "org.freedesktop.DBus", "-o", "/", "-m",
                               "org.freedesktop.DBus.GetConnectionUnixProcessID", "org.kde.StatusNotifierWatcher"),
                   lambda text: "uint32" in text, "host")
    pid = re.search(r"uint32 (\d+)", text)[1]
    command = Path(f"/proc/{pid}/cmdline").read_text()
    if "xfce4/panel" not in command and "xfce4-panel" not in command:
        raise Failed(command)
    tray_is_read(driver)


CHECKS = [
    ("wmctrl lists the window, its title and its process", wmctrl_lists_it, True),
    ("libwnck reads the same title, process and hints", libwnck_agrees, True),
    ("AT-SPI finds every button by role and name", buttons_have_names, False),
    ("AT-SPI presses them, and what they do is done", buttons_are_pressed, False),
]
TRAY = [
    ("The tray icon is registered and read over D-Bus", tray_is_read, False),
    ("its host is xfce4-panel", xfce_panel_is_the_host, False),
]
