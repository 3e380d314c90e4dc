# SPDX-License-Identifier: MIT
"""What other programs read: wmctrl, xdotool, libwnck and assistive technology."""
import json
from pathlib import Path

from desktop import Failed, active_window, becomes, geometry, is_gone, is_hidden, is_viewable, pointer, run
from panel_checks import panel_of
from window_checks import shown

here = Path(__file__).resolve().parent
TOLD = {"Press me": "pressed", "Exit the application": "exit", "How to use this window": "help",
        "Save a picture of the window": "photo", "Go back": "back"}
BUTTONS = {*TOLD, "Menu", "Minimize the window", "Close the window"}
LOCK = "The panel stays open. Click to let it slide away."
PANEL_BUTTONS = {LOCK, "Title of a", "Act on 1", "Close the notification"}


def accessible(*words):
    return run("/usr/bin/python3", str(here.parent / "support/accessibility.py"), "zo-desktops-driver", *words)


def wmctrl_lists_it(driver):
    xid = shown(driver, "a")
    line = becomes(lambda: [line.split(None, 4) for line in run("wmctrl", "-l", "-p").splitlines()],
                   lambda lines: any(int(fields[0], 16) == int(xid) for fields in lines), "not listed")
    found = next(fields for fields in line if int(fields[0], 16) == int(xid))
    if int(found[2]) != driver.pid or found[4] != "Title of a":
        raise Failed(str(found))


def xdotool_agrees(driver):
    shown(driver, "b")
    xid = shown(driver, "a")
    driver.ask("activate", "a")
    becomes(active_window, xid.__eq__, "active window")
    for wanted, *words in ((xid, "search", "--all", "--pid", driver.pid, "--name", "^Title of a$"),
                           (xid, "getactivewindow"), ("Title of a", "getwindowname", xid),
                           (str(driver.pid), "getwindowpid", xid)):
        becomes(lambda: run("xdotool", *map(str, words)).strip(), wanted.__eq__, f"xdotool {words[0]}")


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


def press(driver, button, word, *window):
    accessible("press", button, *window)
    driver.told(word)


def buttons_are_pressed(driver):
    xid = shown(driver, "a")
    becomes(lambda: accessible("names"), lambda text: "push button: Press me" in text, "buttons")
    driver.forget()
    for button, word in TOLD.items():
        press(driver, button, word)
    accessible("press", "Menu")
    becomes(lambda: accessible("names"), lambda text: "push button: Entry" in text, "the menu's entry")
    press(driver, "Entry", "entry")
    press(driver, "Minimize the window", "hidden")
    becomes(lambda: driver.ask("state", "a"), "opened hidden".__eq__, "state after pressing hide")
    becomes(lambda: is_hidden(xid), bool, "hidden")
    shown(driver, "a")
    press(driver, "Close the window", "closed")
    becomes(lambda: is_gone(xid), bool, "gone")


def panel_and_popup_are_pressed(driver):
    panel = panel_of(driver, "extended")
    xid = shown(driver, "a")
    driver.ask("notify", "1")
    becomes(lambda: accessible("names"), lambda text: all(f": {name}\n" in text for name in PANEL_BUTTONS), "buttons")
    driver.forget()
    press(driver, "Act on 1", "acted")
    driver.told("dismissed")
    driver.ask("notify", "2")
    becomes(lambda: accessible("names"), lambda text: "Act on 2" in text, "the next one's buttons")
    press(driver, "Close the notification", "dismissed")
    driver.ask("hide", "a")
    becomes(lambda: is_hidden(xid), bool, "hidden")
    accessible("press", "Title of a", "")
    becomes(lambda: is_viewable(xid), bool, "viewable after its task button was pressed")
    accessible("press", LOCK)
    pointer("mousemove", 600, 10)
    pointer("mousemove", 600, 600)
    becomes(lambda: geometry(panel)[1], (1 - geometry(panel)[3]).__eq__, "panel retracted")
    press(driver, "Close the window", "closed", "")
    becomes(lambda: is_gone(xid), bool, "gone")


def frames_are_active(driver):
    """Those that are shown, and that which was activated."""
    for name in ("a", "b"):
        shown(driver, name)
    for active, other in (("a", "b"), ("b", "a")):
        driver.ask("activate", active)
        wanted = {f"frame: Title of {active}: active showing", f"frame: Title of {other}: showing"}
        becomes(lambda: accessible("windows").splitlines(), lambda lines: set(lines) == wanted, f"windows, not {wanted}")
    driver.ask("hide", "b")
    wanted = {"frame: Title of a: active showing"}
    becomes(lambda: accessible("windows").splitlines(), lambda lines: set(lines) == wanted, f"windows, not {wanted}")


CHECKS = [
    ("wmctrl lists the window, its title and its process", wmctrl_lists_it, True),
    ("xdotool finds it by process and title, and as the active one", xdotool_agrees, True),
    ("libwnck reads the same title, process and hints", libwnck_agrees, True),
    ("AT-SPI finds every button by role and name", buttons_have_names, False),
    ("AT-SPI presses each, and what it does is done", buttons_are_pressed, False),
    ("AT-SPI presses those of the panel and of a notification", panel_and_popup_are_pressed, False),
    ("AT-SPI sees which windows are shown and which is active", frames_are_active, True),
]
