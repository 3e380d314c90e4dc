#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""table.py FOLDER WM...: the table of what run.py wrote to FOLDER/WM, on standard output. Fails, and tells, when a check
did not hold that has no known difference, or when a known difference names no check."""
import sys
from pathlib import Path

from differences import DIFFERENCES

HEAD = """# The library under several window managers

Made by `script/desktops`; not written by hand. "yes": the check held. "-": it asks something of a window manager, and
there is none. A number names a difference and its cause, below. What is checked, and by which programs, stands in
`tests/desktops/`.
"""

folder, *managers = sys.argv[1:]
seen = {wm: dict(line.split("\t", 1) for line in Path(folder, wm).read_text().splitlines()) for wm in managers}
checks = list(seen[managers[0]])
causes = []
wrong = []


def numbered(cause):
    if cause not in causes:
        causes.append(cause)
    return f"({causes.index(cause) + 1})"


def cell(check, wm):
    outcome = seen[wm].get(check, "was not run")
    kind, cause = DIFFERENCES.get((check, wm), ("", ""))
    if outcome not in ("yes", "-") and kind != "differs":
        wrong.append(f"{wm}: {check}: {outcome}")
    if kind == "differs":
        return "differs " + numbered(cause)
    return f"{outcome} {numbered(cause)}" if kind else outcome


print(HEAD)
print("| | " + " | ".join(managers) + " |")
print("|---" * (len(managers) + 1) + "|")
for check in checks:
    print(f"| {check} | " + " | ".join(cell(check, wm) for wm in managers) + " |")
print()
for number, cause in enumerate(causes, 1):
    print(f"{number}. {cause}.")

wrong += [f"no such check: {check}" for check, wm in DIFFERENCES if check not in checks]
if wrong:
    sys.exit("\n".join(wrong))
