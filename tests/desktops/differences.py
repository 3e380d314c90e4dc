# SPDX-License-Identifier: MIT
"""Where a window manager differs from the others, and why: what the check must end with there, and the cause."""

YES = "yes"
MAXIMISED = "refuses to stay maximised, and goes to the middle"
SIZE = "then has its size back"
LARGEST = ("xfwm4 itself refuses to maximise a window with a largest size, so that the window never is; the library "
           "has nothing to take back")
EARLY = ("metacity and marco take the maximised size for the window's own when they are asked to un-maximise it before "
         "they are done with maximising, and keep it where they put it; whether they are is chance")
STEPS = ("fluxbox announces maximising in two steps, so that the state is seldom exactly that of a focused window "
         "kept above that was just maximised, which alone the library takes back; and it has forgotten the size by "
         "then, and keeps the window where it would have been in the middle with that")
ALONE = ("fluxbox cannot replace a window manager that runs: the old one is ended and a new one started, and everything "
         "must be well then")
REPLACED = "They are well after a window manager was replaced"

DIFFERENCES = {
    (MAXIMISED, "xfwm4"): ("Failed: never maximised", LARGEST),
    (SIZE, "xfwm4"): ("Failed: never maximised", LARGEST),
    ("stays maximised when it is not kept above", "xfwm4"): ("Failed: never maximised", LARGEST),
    (MAXIMISED, "metacity"): (r"yes|Failed: not in the middle: .*", EARLY),
    (MAXIMISED, "marco"): (r"yes|Failed: not in the middle: .*", EARLY),
    (SIZE, "metacity"): (r"yes|Failed: size, not .*", EARLY),
    (SIZE, "marco"): (r"yes|Failed: size, not .*", EARLY),
    (MAXIMISED, "fluxbox"): (r"yes|Failed: still maximised: .*|Failed: not in the middle: .*", STEPS),
    (SIZE, "fluxbox"): (r"yes|Failed: still maximised: .*|Failed: size, not .*", STEPS),
    (REPLACED, "fluxbox"): (YES, ALONE),
}
