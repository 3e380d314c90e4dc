# SPDX-License-Identifier: MIT
"""Where a window manager differs from the others, and why. Kinds: "note", the check must hold all the same; "differs",
the window manager leaves it to chance or cannot do it, and either outcome is right."""

SIZE = ("metacity and marco take the maximised size for the window's own when they are asked to un-maximise it before "
        "they are done with maximising; whether they are is chance")
STEPS = ("fluxbox announces maximising in two steps, so that the state is seldom exactly that of a focused window kept "
         "above that was just maximised, which alone the library takes back; and it has forgotten the size by then")

DIFFERENCES = {
    ("refuses to stay maximised", "xfwm4"): (
        "note", "xfwm4 itself refuses to maximise a window with a largest size; the library has nothing to take back"),
    ("then has its size back", "xfwm4"): (
        "note", "xfwm4 itself refuses to maximise a window with a largest size; the library has nothing to take back"),
    ("then has its size back", "metacity"): ("differs", SIZE),
    ("then has its size back", "marco"): ("differs", SIZE),
    ("refuses to stay maximised", "fluxbox"): ("differs", STEPS),
    ("then has its size back", "fluxbox"): ("differs", STEPS),
    ("Windows are well after a window manager was replaced", "fluxbox"): (
        "differs", "fluxbox cannot replace a window manager that runs; it starts after the old one was ended"),
}
