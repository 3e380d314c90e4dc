# SPDX-License-Identifier: MIT
"""The window manager goes, and another comes, while windows are open."""
import os
import signal
import subprocess
from pathlib import Path

from desktop import becomes, geometry, is_viewable, run, states
from window_checks import HINTS, keeps_hints_of_a_pair, moves, shown, vetoes_closing

COMMANDS = {"openbox": ["openbox", "--sm-disable"], "metacity": ["metacity", "--sm-disable"]}
REPLACE = {"fluxbox": "-replace"}
wm = os.environ["ZO_SESSION_WM"]
started = []


def manager_pid():
    """That of the session, a sibling of this program, or the one that was started here last."""
    if started:
        return started[-1].pid
    session = os.getppid()
    for child in Path(f"/proc/{session}/task/{session}/children").read_text().split():
        if Path(f"/proc/{child}/comm").read_text().strip() == wm:
            return int(child)
    raise LookupError(wm)


def has_ended(pid):
    try:
        return Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[0] == "Z"
    except FileNotFoundError:
        return True


def check_window():
    words = run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK").split()
    answer = run("xprop", "-id", words[-1], "_NET_SUPPORTING_WM_CHECK") if words[-1].startswith("0x") else ""
    return words[-1] if words[-1] in answer else ""


def start(*options):
    log = open(Path(os.environ["ZO_SESSION_DIR"]) / "logs" / "wm2.log", "a")
    started.append(subprocess.Popen([*COMMANDS.get(wm, [wm]), *options], stdout=log, stderr=log))


def window_is_well(driver, xid):
    becomes(lambda: run("xprop", "-root", "_NET_CLIENT_LIST"), lambda text: hex(int(xid)) in text, "not taken over")
    becomes(lambda: is_viewable(xid), bool, "viewable under the new window manager")
    becomes(lambda: states(xid), HINTS.issubset, "state under the new window manager")
    moves(driver)
    keeps_hints_of_a_pair(driver)
    vetoes_closing(driver)


def killed(driver):
    xid = shown(driver, "a")
    old = manager_pid()
    os.kill(old, signal.SIGKILL)
    becomes(lambda: has_ended(old), bool, "window manager gone")
    becomes(check_window, "".__eq__, "its window gone")
    driver.ask("move", "a", 90, 95)
    driver.ask("pair", "a")
    becomes(lambda: is_viewable(xid), bool, "viewable without a window manager")
    start()
    becomes(check_window, bool, "new window manager")
    window_is_well(driver, xid)


def replaced(driver):
    xid = shown(driver, "a")
    old, before = manager_pid(), check_window()
    place = geometry(xid)
    start(REPLACE.get(wm, "--replace"))
    becomes(lambda: has_ended(old), bool, "old window manager gone")
    becomes(check_window, lambda window: window and window != before, "new window manager")
    becomes(lambda: geometry(xid)[2:], place[2:].__eq__, "size")
    window_is_well(driver, xid)


CHECKS = [
    ("Windows outlive a window manager that is killed, and serve the next", killed, True),
    ("Windows are well after a window manager was replaced", replaced, True),
]


def stop():
    for process in started:
        process.kill()
        process.wait()
