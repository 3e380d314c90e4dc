# SPDX-License-Identifier: MIT
"""The session bus is absent, is killed, and comes back."""
import os
import subprocess

from fault import Application, row, without_warnings


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
    application.expect_alive(2)
    row("session bus killed", "Windows, panel and notifications go on; the tray icon is gone with its bus.")
    os.unlink(address.removeprefix("unix:path="))
    bus = start_bus(address)
    application.expect_alive(3)
    application.end()
    row("session bus started again", "The application goes on and ends in order.")
finally:
    bus.kill()

application = Application({"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"})
application.expect_alive(1)
application.end()
row("session bus absent", "Everything but the tray icon works.")
