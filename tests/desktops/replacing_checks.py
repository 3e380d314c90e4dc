# SPDX-License-Identifier: MIT
"""The window manager goes, and another comes, while windows are open."""
import os
import signal
import subprocess
import time
from pathlib import Path

from desktop import becomes, geometry, is_above, is_viewable, manager, run, states
from panel_checks import edge_is_alive, goes_up, panel_of
from window_checks import HINTS, keeps_hints_of_a_pair, moves, placed, shown, vetoes_closing

COMMANDS = {"openbox": ["openbox", "--sm-disable"], "metacity": ["metacity", "--sm-disable"]}
CANNOT_REPLACE = {"fluxbox"}
PATIENCE = 2  # seconds until a window manager that hangs at its end is killed
wm = manager()
started = []


def manager_pid():
    """That of the session, a sibling of this program, or the one that was started here last."""
    if started:
        return started[-1].pid
    return becomes(session_manager, bool, wm)


def session_manager():
    """0 while it is not in the kernel's list, which misses some while others end."""
    session = os.getppid()
    for child in Path(f"/proc/{session}/task/{session}/children").read_text().split():
        try:
            if Path(f"/proc/{child}/comm").read_text().strip() == wm:
                return int(child)
        except OSError:  # it has ended since
            continue
    return 0


def has_ended(pid):
    try:
        return Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[0] == "Z"
    except (FileNotFoundError, ProcessLookupError):  # the latter when it goes while its file is open
        return True


def check_window():
    words = run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK").split()
    answer = run("xprop", "-id", words[-1], "_NET_SUPPORTING_WM_CHECK") if words[-1].startswith("0x") else ""
    return words[-1] if words[-1] in answer else ""


def start(*options):
    log = open(Path(os.environ["ZO_SESSION_DIR"]) / "logs" / "wm2.log", "a")
    started.append(subprocess.Popen([*COMMANDS.get(wm, [wm]), *options], stdout=log, stderr=log))


def everything(driver):
    """A panel, two windows and a notification: the ids by name."""
    panel = panel_of(driver)
    driver.ask("notify", "1")
    popup = driver.xid(".zo-notification")
    becomes(lambda: is_viewable(popup), bool, "popup on screen")
    return {"panel": panel, "popup": popup, "b": shown(driver, "b"), "a": shown(driver, "a")}


def windows_are_well(driver, xids):
    for name in ("a", "b"):
        becomes(lambda: run("xprop", "-root", "_NET_CLIENT_LIST"), lambda text: hex(int(xids[name])) in text,
                f"{name} not taken over")
        becomes(lambda: is_viewable(xids[name]), bool, f"{name} viewable under the new window manager")
        becomes(lambda: states(xids[name]), HINTS.issubset, f"state of {name} under the new window manager")
    moves(driver)
    keeps_hints_of_a_pair(driver, 3)
    vetoes_closing(driver)
    goes_up(driver, "b", *geometry(xids["popup"])[:2])
    is_above(xids["popup"], xids["b"], "notification")
    edge_is_alive(driver)
    is_above(xids["panel"], xids["a"], "panel")


def killed(driver):
    xids = everything(driver)
    old = manager_pid()
    os.kill(old, signal.SIGKILL)
    becomes(lambda: has_ended(old), bool, "window manager gone")
    becomes(check_window, "".__eq__, "its window gone")
    placed(driver, "a", xids["a"], 90, 95)
    driver.forget()
    driver.ask("pair", "a")
    for word in ("unmapped", "mapped"):
        driver.told(word)
    for name, xid in xids.items():
        becomes(lambda: is_viewable(xid), bool, f"{name} viewable without a window manager")
    start()
    becomes(check_window, bool, "new window manager")
    windows_are_well(driver, xids)


def ends(pid):
    """As it is asked to, or as one that does not hear of it."""
    os.kill(pid, signal.SIGTERM)
    end = time.monotonic() + PATIENCE
    while not has_ended(pid) and time.monotonic() < end:
        check_window()
    if not has_ended(pid):
        os.kill(pid, signal.SIGKILL)


def replaced(driver):
    xids = everything(driver)
    old, before = manager_pid(), check_window()
    sizes = {name: geometry(xid)[2:] for name, xid in xids.items()}
    if wm in CANNOT_REPLACE:
        ends(old)
    else:
        start("--replace")
    becomes(lambda: has_ended(old), bool, "old window manager gone")
    if wm in CANNOT_REPLACE:
        becomes(check_window, "".__eq__, "its window gone")
        before = ""  # the server gives ids out again
        start()
    becomes(check_window, lambda window: window and window != before, "new window manager")
    for name, xid in xids.items():
        becomes(lambda: geometry(xid)[2:], sizes[name].__eq__, f"size of {name}")
    windows_are_well(driver, xids)


CHECKS = [
    ("Windows, panel and notification outlive a window manager that is killed, and serve the next", killed, True),
    ("They are well after a window manager was replaced", replaced, True),
]


def stop():
    for process in started:
        process.kill()
        process.wait()
