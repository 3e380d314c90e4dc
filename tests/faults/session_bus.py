# SPDX-License-Identifier: MIT
"""The session bus is absent, and is killed."""
import os
import signal
import subprocess

from fault import ANSWER_SECONDS, Application, row


def start_bus(address):
    reading, writing = os.pipe()
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--address=" + address, "--print-address=" + str(writing)],
                           pass_fds=[writing])
    os.read(reading, 256)
    return bus


address = "unix:path=" + os.path.join(os.environ["ZO_SESSION_DIR"], "fault-bus")
bus = start_bus(address)
try:
    application = Application({"DBUS_SESSION_BUS_ADDRESS": address})
    application.expect_alive(1)
    bus.kill()
    bus.wait()
    code = application.process.wait(timeout=ANSWER_SECONDS)
    assert code == -signal.SIGTERM, (code, application.complaints)
    row("session bus killed", "GIO ends a program with a tray icon by SIGTERM, as any that is on the session bus and did "
        "not ask its connection for something else (`g_dbus_connection_set_exit_on_close`).")
finally:
    bus.kill()

application = Application({"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"})
application.expect_alive(1)
application.end()
row("session bus absent", "Everything but the tray icon works.")
