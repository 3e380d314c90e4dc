# SPDX-License-Identifier: MIT
"""What holds of the panel and of notifications beside windows that come later."""
from desktop import Driver, Failed, active_window, becomes, geometry, has_manager, is_above, is_viewable, pointer
from desktop import raise_window
from foreign import Foreign
from window_checks import placed, shown


def panel_of(driver, keep="retracted"):
    if driver.ask("xid", ".zo-manager") == "-":
        driver.ask("panel", keep)
    xid = driver.xid(".zo-manager")
    becomes(lambda: is_viewable(xid), bool, "panel on screen")
    return xid


def goes_up(owner, name, *place):
    """The window has moved there, is active, and above all that lets it."""
    xid = shown(owner, name)
    placed(owner, name, xid, *place)
    owner.ask("activate", name)
    if has_manager():
        becomes(active_window, xid.__eq__, f"active window, not {name}")
    raise_window(xid)
    return xid


def is_on_top(driver, panel):
    other = Driver(driver.program)
    for name, owner in (("a", driver), ("b", other), ("a", driver)):
        is_above(panel, goes_up(owner, name, 200, 0), f"panel, and window {name} below,")
    other.end()
    with Foreign() as foreign:
        foreign.goes_up()
        is_above(panel, foreign.xid, "panel, and a foreign window below,")


def stays_on_top(driver):
    is_on_top(driver, panel_of(driver))


def stays_on_top_extended(driver):
    panel = panel_of(driver, "extended")
    becomes(lambda: geometry(panel)[1], (0).__eq__, "extended")
    is_on_top(driver, panel)
    if geometry(panel)[1] != 0:
        raise Failed(f"no longer extended: {geometry(panel)}")


def edge_is_alive(driver):
    panel = panel_of(driver)
    height = geometry(panel)[3]
    pointer("mousemove", 400, 500)
    for _ in range(2):
        becomes(lambda: geometry(panel)[1], (1 - height).__eq__, "retracted")
        window = goes_up(driver, "a", 200, 0)
        left, top, width, _ = geometry(window)
        if not left <= 400 < left + width or top > 0:
            raise Failed(f"the window does not touch the edge: {geometry(window)}")
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
        seen.append(becomes(lambda: driver.xid(".zo-notification"), lambda x: x not in seen, "new popup"))
        becomes(lambda: is_viewable(seen[-1]), bool, "popup on screen")
        if len(seen) > 1:
            before = geometry(seen[-2])
            expected = (before[0], before[1] + before[3] + 2)
            becomes(lambda: geometry(seen[-1])[:2], expected.__eq__, f"place, not {expected}")
    window = goes_up(driver, "c", *geometry(seen[0])[:2])
    for popup in seen:
        is_above(popup, window, "notification")


CHECKS = [
    ("The panel stays above windows that come later, its own and other programs'", stays_on_top, False),
    ("and does so when it is extended", stays_on_top_extended, False),
    ("its edge is alive where a window touches it", edge_is_alive, False),
    ("Notifications stand below each other, above a later window", notifications_are_stacked, False),
]
