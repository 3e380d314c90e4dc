# SPDX-License-Identifier: MIT
"""What holds of a window, whatever looks after it."""
from desktop import Failed, active_window, becomes, click, geometry, is_above, is_gone, is_hidden
from desktop import is_viewable, pointer, run, states, work_area

MAXIMISED = {"MAXIMIZED_VERT", "MAXIMIZED_HORZ"}
HINTS = {"ABOVE", "SKIP_TASKBAR", "SKIP_PAGER"}


def shown(driver, name, *kind):
    if driver.ask("state", name) == "unknown":
        driver.ask("new", name, *kind)
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
    becomes(lambda: is_hidden(xid), bool, "hidden")
    shown(driver, "a")


def sets_hints(driver):
    xid = shown(driver, "a")
    becomes(lambda: states(xid), HINTS.issubset, "state")


def placed(driver, name, xid, *place):
    """Moves it, and waits until it is there: the window manager has then done what it was asked for before."""
    driver.ask("move", name, *place)
    becomes(lambda: geometry(xid)[:2], place.__eq__, f"place, not {place}")


def keeps_hints_of_a_pair(driver, times=10):
    other = shown(driver, "b")
    xid = shown(driver, "a")
    for step in range(times):
        driver.forget()
        driver.ask("pair", "a")
        driver.told("unmapped")
        driver.told("mapped")
        placed(driver, "b", other, 60 + step, 64)
        if not is_viewable(xid) or not HINTS <= states(xid):
            raise Failed(f"after pair {step + 1}: viewable {is_viewable(xid)}, {states(xid)}")


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
        placed(driver, "a", xid, *place)


def keeps_its_place(driver):
    xid = shown(driver, "a")
    placed(driver, "a", xid, 240, 180)
    driver.ask("hide", "a")
    becomes(lambda: is_hidden(xid), bool, "hidden")
    shown(driver, "a")
    becomes(lambda: geometry(xid)[:2], (240, 180).__eq__, "place after hiding")


def drags(driver):
    xid = shown(driver, "a")
    driver.ask("activate", "a")
    placed(driver, "a", xid, 300, 300)
    left, top, width, height = driver.part("a", "title-text")
    x, y = left + width // 2, top + height // 2
    pointer("mousemove", x, y, "mousedown", 1)
    for step in range(1, 6):
        pointer("mousemove", x + 30 * step, y + 20 * step)
        run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
    becomes(lambda: geometry(xid)[:2], lambda place: place != (300, 300), "not moved by the pointer")
    pointer("mousemove", x + 151, y + 101, "mouseup", 1)
    becomes(lambda: geometry(xid)[:2], (451, 401).__eq__, "place after the drag")


def maximise(driver, *kind):
    """The window, where it was. The window manager has done what it was asked for, and the program knows."""
    other = shown(driver, "b")
    xid = shown(driver, "a", *kind)
    driver.ask("activate", "a")
    becomes(active_window, xid.__eq__, "active window")
    placed(driver, "a", xid, 30, 40)
    before = geometry(xid)
    driver.forget()
    run("wmctrl", "-i", "-r", xid, "-b", "add,maximized_vert,maximized_horz")
    placed(driver, "b", other, 60, 64)
    if "maximised" not in driver.hears():
        raise Failed("never maximised")
    driver.told("maximised")
    return xid, before


def is_centred(xid):
    left, top, width, height = work_area()
    place = geometry(xid)
    return place[:2] == (left + (width - place[2]) // 2, top + (height - place[3]) // 2)


def refuses_to_stay_maximised(driver):
    xid, _ = maximise(driver)
    becomes(lambda: states(xid), MAXIMISED.isdisjoint, "still maximised")
    driver.told("unmaximised")
    becomes(lambda: (is_centred(xid), geometry(xid)), lambda seen: seen[0], "not in the middle")


def gets_its_size_back(driver):
    xid, before = maximise(driver)
    becomes(lambda: geometry(xid), lambda place: place[2:] == before[2:], f"size, not {before[2:]}")
    becomes(lambda: states(xid), MAXIMISED.isdisjoint, "still maximised")


def stays_maximised(driver):
    """One that is not kept above: the library takes nothing back."""
    xid, _ = maximise(driver, "below")
    becomes(lambda: states(xid), MAXIMISED.issubset, "not maximised")
    placed(driver, "b", driver.xid("b"), 90, 94)
    if "unmaximised" in driver.hears() or not MAXIMISED <= states(xid):
        raise Failed("did not stay maximised")


def vetoes_closing(driver):
    xid = shown(driver, "a")
    driver.forget()
    driver.ask("veto", "yes")
    run("wmctrl", "-i", "-c", xid)
    driver.told("asked")
    driver.hears()  # what was posted with the answer has run
    if driver.ask("state", "a") != "opened visible" or not is_viewable(xid):
        raise Failed(f"{driver.ask('state', 'a')}, viewable: {is_viewable(xid)}")
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
    xid = shown(driver, "a")
    driver.ask("activate", "a")
    placed(driver, "a", xid, 300, 200)
    left, top, width, height = driver.part("a", "title-menu")
    click((left, top, width, height))
    menu = driver.xid(".tool-menu")
    becomes(lambda: is_viewable(menu), bool, "menu on screen")
    becomes(lambda: geometry(menu)[:2], (left - 32, top + height).__eq__, "menu's place")
    is_above(menu, xid, "the menu")
    click(driver.part(".tool-menu", "tool-menu-button"))
    driver.told("entry")
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
    ("refuses to stay maximised, and goes to the middle", refuses_to_stay_maximised, True),
    ("then has its size back", gets_its_size_back, True),
    ("stays maximised when it is not kept above", stays_maximised, True),
    ("is asked and stays when closing is vetoed", vetoes_closing, True),
    ("closes when it is asked to", closes, True),
    ("leaves the focus to the one before", focus_goes_on, True),
    ("opens its tool menu below the button, above the window, and an entry is chosen", opens_its_tool_menu, False),
]
