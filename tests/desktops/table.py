#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""table.py FOLDER WM...: the table of what run.py wrote to FOLDER/WM, on standard output. Fails, and tells, when a check
does not end as it must, or when a known difference names no check."""
import re
import sys
from pathlib import Path

from differences import DIFFERENCES

HEAD = """# The library under several window managers

Made by `script/desktops`; not written by hand. "yes": the check held. "no": it did not, for the cause that the
number names, and ended as that cause lets it. "-": it asks something of a window manager, and there is none. The number
of a cause stands also where the check held all the same. What is checked, and by which programs, stands in
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
    usual = "yes|-" if wm == "none" else "yes"
    pattern, cause = DIFFERENCES.get((check, wm), (usual, ""))
    if not re.fullmatch(pattern, outcome):
        wrong.append(f"{wm}: {check}: {outcome}")
    said = outcome if outcome in ("yes", "-") else "no"
    return f"{said} {numbered(cause)}" if cause else said


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
