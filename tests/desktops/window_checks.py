# SPDX-License-Identifier: MIT
"""What holds of a window, whatever looks after it."""
from desktop import Failed, active_window, becomes, click, geometry, has_manager, is_gone, is_viewable, pointer, run
from desktop import states

HINTS = {"ABOVE", "SKIP_TASKBAR", "SKIP_PAGER"}


def shown(driver, name):
    if driver.ask("state", name) == "unknown":
        driver.ask("new", name)
    driver.ask("show", name)
    xid = driver.xid(name)
    becomes(lambda: is_viewable(xid), bool, "viewable")
    return xid


def opens_and_shows(driver):
    driver.ask("new", "a")
    if driver.ask("state", "a") != "opened hidden" or driver.ask("xid", "a") != "-":
        raise Failed("on screen before it is shown")
    shown(driver, "a")
    if driver.ask("state", "a") != "opened visible":
        raise Failed(driver.ask("state", "a"))


def hides(driver):
    xid = shown(driver, "a")
    driver.ask("hide", "a")
    becomes(lambda: is_gone(xid), bool, "gone")
    shown(driver, "a")


def sets_hints(driver):
    xid = shown(driver, "a")
    becomes(lambda: states(xid), HINTS.issubset, "state")


def keeps_hints_of_a_pair(driver):
    xid = shown(driver, "a")
    for _ in range(10):
        driver.ask("pair", "a")
        becomes(lambda: is_viewable(xid), bool, "viewable")
        becomes(lambda: states(xid), HINTS.issubset, "state")


def activates(driver):
    first = shown(driver, "a")
    second = shown(driver, "b")
    for name, xid in (("a", first), ("b", second), ("a", first)):
        driver.ask("activate", name)
        becomes(active_window, xid.__eq__, f"active window, not {name}")
    driver.ask("close", "b")


def moves(driver):
    xid = shown(driver, "a")
    for place in ((120, 140), (331, 257)):
        driver.ask("move", "a", *place)
        becomes(lambda: geometry(xid)[:2], place.__eq__, "place")


def keeps_its_place(driver):
    xid = shown(driver, "a")
    driver.ask("move", "a", 240, 180)
    becomes(lambda: geometry(xid)[:2], (240, 180).__eq__, "place")
    driver.ask("hide", "a")
    becomes(lambda: is_gone(xid), bool, "gone")
    shown(driver, "a")
    becomes(lambda: geometry(xid)[:2], (240, 180).__eq__, "place after hiding")


def drags(driver):
    xid = shown(driver, "a")
    driver.ask("activate", "a")
    driver.ask("move", "a", 300, 300)
    becomes(lambda: geometry(xid)[:2], (300, 300).__eq__, "place")
    left, top, width, height = driver.part("a", "title-text")
    x, y = left + width // 2, top + height // 2
    pointer("mousemove", x, y, "mousedown", 1)
    for step in range(1, 6):
        pointer("mousemove", x + 30 * step, y + 20 * step)
        run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
    becomes(lambda: geometry(xid)[:2], lambda place: place != (300, 300), "not moved by the pointer")
    pointer("mousemove", x + 151, y + 101, "mouseup", 1)
    becomes(lambda: geometry(xid)[:2], (451, 401).__eq__, "place after the drag")


def maximise(driver):
    """The window as it was; the window manager has done what it was asked for, since it does so in order."""
    other = shown(driver, "b")
    xid = shown(driver, "a")
    driver.ask("activate", "a")
    becomes(active_window, xid.__eq__, "active window")
    before = geometry(xid)
    run("wmctrl", "-i", "-r", xid, "-b", "add,maximized_vert,maximized_horz")
    driver.ask("move", "b", 60, 64)
    becomes(lambda: geometry(other)[:2], (60, 64).__eq__, "place of the other")
    return xid, before


def refuses_to_stay_maximised(driver):
    xid, _ = maximise(driver)
    becomes(lambda: states(xid), lambda s: not s & {"MAXIMIZED_VERT", "MAXIMIZED_HORZ"}, "still maximised")


def gets_its_size_back(driver):
    xid, before = maximise(driver)
    becomes(lambda: geometry(xid), lambda place: place[2:] == before[2:], f"size, not {before[2:]}")
    becomes(lambda: states(xid), lambda s: not s & {"MAXIMIZED_VERT", "MAXIMIZED_HORZ"}, "still maximised")


def vetoes_closing(driver):
    xid = shown(driver, "a")
    driver.ask("told")
    driver.ask("veto", "yes")
    run("wmctrl", "-i", "-c", xid)
    driver.told("asked")
    if driver.ask("state", "a") != "opened visible":
        raise Failed(driver.ask("state", "a"))
    driver.ask("veto", "no")


def closes(driver):
    xid = shown(driver, "a")
    run("wmctrl", "-i", "-c", xid)
    driver.told("closed")
    becomes(lambda: is_gone(xid), bool, "gone")
    driver.ask("open", "a")
    shown(driver, "a")


def focus_goes_on(driver):
    first = shown(driver, "a")
    driver.ask("activate", "a")
    becomes(active_window, first.__eq__, "active window")
    shown(driver, "b")
    driver.ask("activate", "b")
    becomes(active_window, driver.xid("b").__eq__, "active window")
    driver.ask("close", "b")
    becomes(active_window, first.__eq__, "active window after closing")


def opens_its_tool_menu(driver):
    shown(driver, "a")
    driver.ask("activate", "a")
    driver.ask("move", "a", 300, 200)
    becomes(lambda: geometry(driver.xid("a"))[:2], (300, 200).__eq__, "place")
    left, top, width, height = driver.part("a", "title-menu")
    click((left, top, width, height))
    menu = driver.xid(".tool-menu")
    becomes(lambda: is_viewable(menu), bool, "menu on screen")
    becomes(lambda: geometry(menu)[:2], (left - 32, top + height).__eq__, "menu's place")
    click(driver.part(".tool-menu", "tool-menu-button"))
    becomes(lambda: driver.ask("xid", ".tool-menu"), "-".__eq__, "menu still there")


CHECKS = [
    ("A window opens, and is on screen when it is shown", opens_and_shows, False),
    ("hides and comes back", hides, False),
    ("has keep-above, skip-taskbar and skip-pager set", sets_hints, False),
    ("keeps them over a hide and a show in one turn, ten times", keeps_hints_of_a_pair, False),
    ("is activated", activates, True),
    ("moves exactly", moves, False),
    ("comes back in its place", keeps_its_place, False),
    ("is dragged by its title bar", drags, False),
    ("refuses to stay maximised", refuses_to_stay_maximised, True),
    ("then has its size back", gets_its_size_back, True),
    ("is asked and stays when closing is vetoed", vetoes_closing, True),
    ("closes when it is asked to", closes, True),
    ("leaves the focus to the one before", focus_goes_on, True),
    ("opens its tool menu below the button", opens_its_tool_menu, False),
]
