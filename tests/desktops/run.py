#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""run.py DRIVER WHAT [TEXT]: runs the checks of this session ("desktop", or "tray" with its host) whose name contains
TEXT, and writes one line for each: the check, a tab, and "yes", "-" where it is a window manager's to do, or what was
seen instead."""
import sys

import panel_checks
import replacing_checks
import tray_checks
import window_checks
import witness_checks
from desktop import Driver, has_manager

SUITES = {
    "desktop": [window_checks.CHECKS, panel_checks.CHECKS, witness_checks.CHECKS, replacing_checks.CHECKS],
    "tray": [tray_checks.CHECKS],
}


def outcome(program, check):
    """Each check has a program of its own: what one leaves behind troubles no other."""
    driver = Driver(program)
    try:
        check(driver)
        driver.end()
        return "yes"
    except Exception as failure:
        driver.process.kill()
        said = "; ".join(["", *driver.complaints()])
        return f"{type(failure).__name__}: {failure}{said}".replace("\n", " ").replace("\t", " ")


program, what, *text = sys.argv[1:]
try:
    for suite in SUITES[what]:
        for name, check, asks_manager in suite:
            if text and text[0] not in name:
                continue
            seen = "-" if asks_manager and not has_manager() else outcome(program, check)
            print(f"{name}\t{seen}", flush=True)
finally:
    replacing_checks.stop()
