# SPDX-License-Identifier: MIT
"""The tray icon in a panel of the desktop's."""
import re
from pathlib import Path

from desktop import Failed, becomes, click, pointer, run

WATCHER = "org.kde.StatusNotifierWatcher"
PROPERTY = "org.freedesktop.DBus.Properties.Get"


def call(name, path, method, *words):
    return run("gdbus", "call", "--session", "-d", name, "-o", path, "-m", method, *words)


def tray_item(driver):
    """Who has it, and where, as the host was told."""
    driver.ask("tray")
    listed = becomes(lambda: call(WATCHER, "/StatusNotifierWatcher", PROPERTY, WATCHER, "RegisteredStatusNotifierItems"),
                     lambda text: "zo_desktops" in text, "registered")
    return re.search(r"'(:[\d.]+|[\w.]+)(/[\w/]*zo_desktops)'", listed).groups()


def item_is_read(driver):
    name, path = tray_item(driver)
    for key, value in (("Id", "zo-desktops"), ("Title", "Desktops"), ("Status", "Active"),
                       ("IconName", "dialog-information")):
        text = call(name, path, PROPERTY, "org.kde.StatusNotifierItem", key)
        if f"'{value}'" not in text:
            raise Failed(f"{key}: {text}")


def entry_is_chosen(driver):
    name, path = tray_item(driver)
    menu = re.search(r"'(/[\w/]+)'", call(name, path, PROPERTY, "org.kde.StatusNotifierItem", "Menu"))[1]
    layout = becomes(lambda: call(name, menu, "com.canonical.dbusmenu.GetLayout", "0", "int32 -1", "@as []"),
                     lambda text: "'First entry'" in text, "menu")
    entry = re.search(r"\((\d+), \{[^{}]*'label': <'First entry'>", layout)[1]
    driver.forget()
    call(name, menu, "com.canonical.dbusmenu.Event", entry, "clicked", "<''>", "0")
    driver.told("chosen")


def host_is_xfce_panel():
    text = becomes(lambda: call("org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetConnectionUnixProcessID", WATCHER),
                   lambda text: "uint32" in text, "host")
    command = Path(f"/proc/{re.search(r'uint32 (.+?),', text)[1]}/cmdline").read_text()
    if "xfce4/panel" not in command and "xfce4-panel" not in command:
        raise Failed(command)


def icon_place():
    """That of the panel's plugin, which has a width when there is an icon in it."""
    found = re.findall(r'"wrapper-2\.0": .*? (\d+)x(\d+)\+\S+ +\+(\d+)\+(\d+)', run("xwininfo", "-root", "-tree"))
    places = [(left, top, width, height) for width, height, left, top in (map(int, numbers) for numbers in found)]
    return next((place for place in places if place[1] > 900 and place[2] > 16), None)


def panel_windows():
    return run("xdotool", "search", "--onlyvisible", "--class", "wrapper-2.0").split()


def icon_is_clicked(driver):
    host_is_xfce_panel()
    becomes(lambda: icon_place() is None, bool, "no icon before there is one")
    tray_item(driver)
    icon = becomes(icon_place, bool, "icon in the panel")
    driver.forget()
    before = panel_windows()
    click(icon)
    becomes(panel_windows, lambda now: len(now) > len(before), "menu on screen")
    pointer("key", "Down", "key", "Return")
    driver.told("chosen")


CHECKS = [
    ("The tray icon is registered and read over D-Bus", item_is_read, False),
    ("its entry is chosen over D-Bus", entry_is_chosen, False),
    ("xfce4-panel shows it; a click opens the menu, and keys choose the entry", icon_is_clicked, False),
]
