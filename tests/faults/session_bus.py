# SPDX-License-Identifier: MIT
"""The session bus is absent, is killed, and comes back."""
import os
import signal
import subprocess

from fault import ANSWER_SECONDS, Application, Tray, row, until


def start_bus():
    """A bus, and the tray's host on it."""
    reading, writing = os.pipe()
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--address=" + address,
                            "--print-address=" + str(writing)],
                           pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    os.read(reading, 256)
    os.close(reading)
    host = tray.start_host()
    until(tray.items, bool, "no host")
    return bus, host


def kill(*processes):
    for process in processes:
        process.kill()
        process.wait()
    if os.path.exists(path):
        os.unlink(path)


def has_icons(*applications):
    wanted = [application.process.pid for application in applications]
    until(tray.owners, wanted.__eq__, f"icons, not those of {wanted}")


path = os.path.join(os.environ["ZO_SESSION_DIR"], "fault-bus")
address = "unix:path=" + path
tray = Tray(address)
running = start_bus()
try:
    application = Application({"DBUS_SESSION_BUS_ADDRESS": address})
    application.expect_alive()
    has_icons(application)
    kill(*running)
    code = application.process.wait(timeout=ANSWER_SECONDS)
    assert code == -signal.SIGTERM, (code, application.complaints)
    row("session bus killed", "GIO ends a program with a tray icon by SIGTERM, as any that is on the session bus and did "
        "not ask its connection for something else (`g_dbus_connection_set_exit_on_close`).")

    running = start_bus()
    survivor = Application({"DBUS_SESSION_BUS_ADDRESS": address}, arguments=["outlive-bus"])
    survivor.expect_alive()
    has_icons(survivor)
    kill(*running)
    survivor.expect_alive()
    running = start_bus()
    survivor.expect_alive()
    newcomer = Application({"DBUS_SESSION_BUS_ADDRESS": address})
    newcomer.expect_alive()
    has_icons(newcomer)
    survivor.expect_alive()
    has_icons(newcomer)
    newcomer.end()
    survivor.end()
    row("session bus killed and started again", "A program that asked its connection not to end it goes on with its windows "
        "and notifications; its tray icon is gone, since GIO joins no bus twice. That of a program started afterwards is "
        "in the tray.")
finally:
    kill(*running)

application = Application({"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"})
application.expect_alive()
application.end()
row("session bus absent", "Everything but the tray icon works.")
