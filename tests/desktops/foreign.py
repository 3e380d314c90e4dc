# SPDX-License-Identifier: MIT
"""A window of a program that knows nothing of the library."""
import subprocess

from desktop import LIMIT, becomes, geometry, has_manager, is_viewable, raise_window, run

TITLE = "zo-foreign"


class Foreign:
    """A plain Xlib program. Its place is that of what is in the frame, if a window manager gives it one."""

    def __enter__(self):
        self.process = subprocess.Popen(["xmessage", "-title", TITLE, "-geometry", "500x300+300+400", "text"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        search = ("xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$")
        self.xid = becomes(lambda: run(*search).strip(), str.isdigit, "foreign window")
        becomes(lambda: is_viewable(self.xid), bool, "foreign window on screen")
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait(LIMIT)

    def goes_up(self):
        """To the edge of the screen, beside which there is at most a frame, and above all that lets it."""
        run("xdotool", "windowmove", self.xid, "200", "0")
        becomes(lambda: geometry(self.xid), lambda place: 200 <= place[0] < 240 and 0 <= place[1] < 60, "foreign place")
        if has_manager():
            run("xdotool", "windowactivate", self.xid)
            becomes(lambda: run("xdotool", "getactivewindow").strip(), self.xid.__eq__, "foreign window active")
        raise_window(self.xid)
