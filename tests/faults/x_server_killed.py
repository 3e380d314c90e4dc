# SPDX-License-Identifier: MIT
"""The X server dies under the application: the toolkit ends it at once, with code 1."""
import os
import signal
import subprocess

from fault import ANSWER_SECONDS, Application, row

reading, writing = os.pipe()
server = subprocess.Popen(["Xvfb", "-noreset", "-displayfd", str(writing), "-nolisten", "tcp", "-screen", "0", "800x600x24"],
                          pass_fds=[writing], stderr=subprocess.DEVNULL)
try:
    number = os.read(reading, 16).decode().strip()
    application = Application({"DISPLAY": ":" + number})
    application.expect_alive()
    server.send_signal(signal.SIGKILL)
    server.wait()
    code = application.process.wait(timeout=ANSWER_SECONDS)
    assert code == 1, (code, application.complaints)
    row("X server killed", "The toolkit ends the process at once, without exit handlers: exit code 1.")
finally:
    server.kill()
