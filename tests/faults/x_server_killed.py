# SPDX-License-Identifier: MIT
"""The X server dies under an application: the toolkit ends it at once, whatever it does."""
import os
import pathlib
import subprocess
import sys
import tempfile

from fault import ANSWER_SECONDS, Application, row, until

PRESS = ["/usr/bin/python3", os.environ["ZO_SOURCE_DIR"] + "/tests/support/accessibility.py", "zo-demo", "press"]
SAVE = "Save a picture of the window"
WHOLE = (b"\x89PNG\r\n\x1a\n", b"IEND\xaeB`\x82")
PHOTOS = 3
ENDED = 1  # the toolkit's code for a server that is gone


class Server:
    """Servers that start at once take the socket from each other; then another one is started."""

    def __enter__(self):
        self.process = None
        until(self.start, bool, "no X server that answers")
        return self

    def start(self):
        if self.process:
            self.kill()
        reading, writing = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-noreset", "-displayfd", str(writing), "-nolisten", "tcp", "-screen", "0", "1280x1024x24"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        self.display = ":" + os.read(reading, 16).decode().strip()
        os.close(reading)
        return subprocess.run(["xprop", "-root", "-display", self.display], capture_output=True).returncode == 0

    def kill(self):
        self.process.kill()
        self.process.wait()

    def __exit__(self, *_):
        self.kill()


def ends(application, allowed=()):
    """With code 1, and nothing said after what it was busy with: no exit handler ran."""
    code = application.process.wait(timeout=ANSWER_SECONDS)
    rest = application.rest()
    assert code == ENDED and set(rest) <= set(allowed), (code, rest, application.complaints)


with Server() as server:
    application = Application({"DISPLAY": server.display})
    application.expect_alive()
    server.kill()
    ends(application)
row("X server killed", f"The toolkit ends the process at once, without exit handlers: exit code {ENDED}.")

with Server() as server:
    application = Application({"DISPLAY": server.display})
    application.tell("busy")
    for _ in range(20):
        application.expect("busy")
    server.kill()
    ends(application, ["busy"])
row("X server killed while windows, panel, notifications and queries are at work", f"The same, with exit code {ENDED}.")


def photograph(folder):
    """The server is killed as soon as there is a file; what is in it then."""
    photo = pathlib.Path(folder) / "zo-demo-photo.png"
    with Server() as server:
        demo = subprocess.Popen([os.environ["ZO_BINARY_DIR"] + "/bin/zo-demo"], cwd=folder,
                                env=dict(os.environ, DISPLAY=server.display), stderr=subprocess.DEVNULL)
        until(lambda: subprocess.run([*PRESS, "Open, show and activate"], capture_output=True).returncode, (0).__eq__,
              "no window")
        until(lambda: SAVE in subprocess.run([*PRESS[:-1], "names"], capture_output=True, text=True).stdout, bool, SAVE)
        press = subprocess.Popen([*PRESS, SAVE], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            until(photo.exists, bool, "no photo")
            server.kill()
            assert demo.wait(ANSWER_SECONDS) == ENDED, demo.returncode
        finally:
            press.kill()  # it may wait long for an answer of what has ended
            press.wait()
    return photo.read_bytes()


for _ in range(PHOTOS):
    with tempfile.TemporaryDirectory() as folder:
        data = photograph(folder)
        assert data.startswith(WHOLE[0]) and data.endswith(WHOLE[1]), (len(data), data[-16:])
row(f"X server killed while the demo writes a photo, {PHOTOS} times", "The photo is written to its end, then the "
    f"demo ends: exit code {ENDED}.")
