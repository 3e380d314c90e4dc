# SPDX-License-Identifier: MIT
"""What holds of the panel and of notifications beside windows that come later."""
from desktop import Driver, becomes, geometry, height_of, is_viewable, pointer
from window_checks import shown


def panel_of(driver, keep="retracted"):
    if driver.ask("xid", ".zo-manager") == "-":
        driver.ask("panel", keep)
    xid = driver.xid(".zo-manager")
    becomes(lambda: is_viewable(xid), bool, "panel on screen")
    return xid


def is_above(higher, lower, what):
    becomes(lambda: (height_of(higher), height_of(lower)), lambda h: h[0] > h[1], what)


def stays_on_top(driver):
    panel = panel_of(driver)
    other = Driver(driver.program)
    for name, owner in (("a", driver), ("b", other), ("a", driver)):
        window = shown(owner, name)
        owner.ask("move", name, 200, 0)
        owner.ask("activate", name)
        is_above(panel, window, "panel above the window")
    other.end()


def edge_is_alive(driver):
    panel = panel_of(driver)
    shown(driver, "a")
    driver.ask("move", "a", 200, 0)
    height = geometry(panel)[3]
    pointer("mousemove", 400, 500)
    becomes(lambda: geometry(panel)[1], (1 - height).__eq__, "retracted")
    pointer("mousemove", 400, 0)
    becomes(lambda: geometry(panel)[1], (0).__eq__, "extended")
    pointer("mousemove", 400, 20)
    pointer("mousemove", 400, 500)
    becomes(lambda: geometry(panel)[1], (1 - height).__eq__, "retracted again")


def notifications_are_stacked(driver):
    panel_of(driver)
    seen = []
    for name in ("1", "2", "3"):
        driver.ask("notify", name)
        xid = driver.xid(".zo-notification")
        becomes(lambda: driver.xid(".zo-notification"), lambda x: x not in seen, "new popup")
        seen.append(driver.xid(".zo-notification"))
        becomes(lambda: is_viewable(seen[-1]), bool, "popup on screen")
        if len(seen) > 1:
            before = geometry(seen[-2])
            expected = (before[0], before[1] + before[3] + 2)
            becomes(lambda: geometry(seen[-1])[:2], expected.__eq__, f"place, not {expected}")
    window = shown(driver, "c")
    driver.ask("move", "c", *geometry(seen[0])[:2])
    driver.ask("activate", "c")
    for popup in seen:
        is_above(popup, window, "notification above the window")


CHECKS = [
    ("The panel stays above windows that come later, its own and other programs'", stays_on_top, False),
    ("its edge is alive where a window touches it", edge_is_alive, False),
    ("Notifications stand below each other, above a later window", notifications_are_stacked, False),
]
