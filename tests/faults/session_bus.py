# SPDX-License-Identifier: MIT
"""The session bus is absent, is killed, and comes back."""
import os
import signal
import subprocess

from fault import ANSWER_SECONDS, Application, row


def start_bus(address):
    reading, writing = os.pipe()
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--address=" + address, "--print-address=" + str(writing)],
                           pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    os.read(reading, 256)
    os.close(reading)
    return bus


def kill(bus):
    bus.kill()
    bus.wait()
    if os.path.exists(path):
        os.unlink(path)


def names():
    """The connections that the bus has, without this question's own."""
    reply = subprocess.run(["dbus-send", "--bus=" + address, "--print-reply", "--dest=org.freedesktop.DBus", "/",
                            "org.freedesktop.DBus.ListNames"], capture_output=True, text=True, check=True).stdout
    return reply.count('string ":') - 1


path = os.path.join(os.environ["ZO_SESSION_DIR"], "fault-bus")
address = "unix:path=" + path
bus = start_bus(address)
try:
    application = Application({"DBUS_SESSION_BUS_ADDRESS": address})
    application.expect_alive()
    assert names() > 0
    kill(bus)
    code = application.process.wait(timeout=ANSWER_SECONDS)
    assert code == -signal.SIGTERM, (code, application.complaints)
    row("session bus killed", "GIO ends a program with a tray icon by SIGTERM, as any that is on the session bus and did "
        "not ask its connection for something else (`g_dbus_connection_set_exit_on_close`).")

    bus = start_bus(address)
    survivor = Application({"DBUS_SESSION_BUS_ADDRESS": address}, arguments=["outlive-bus"])
    survivor.expect_alive()
    kill(bus)
    survivor.expect_alive()
    bus = start_bus(address)
    survivor.expect_alive()
    newcomer = Application({"DBUS_SESSION_BUS_ADDRESS": address})
    newcomer.expect_alive()
    assert names() > 0
    newcomer.end()
    survivor.end()
    row("session bus killed and started again", "A program that asked its connection not to end it goes on with its windows "
        "and notifications; its tray icon is gone, since GIO joins no bus twice. A program started afterwards has all.")
finally:
    bus.kill()

application = Application({"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"})
application.expect_alive()
application.end()
row("session bus absent", "Everything but the tray icon works.")
