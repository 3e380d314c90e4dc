# SPDX-License-Identifier: MIT
"""The tray's host dies and comes back, twice: the icon is in the new one, too."""
import subprocess

from fault import Application, row, until, without_warnings

HOST = "/usr/libexec/ayatana-indicator-application/ayatana-indicator-application-service"


def items():
    return subprocess.run(
        ["gdbus", "call", "--session", "-d", "org.kde.StatusNotifierWatcher", "-o", "/StatusNotifierWatcher", "-m",
         "org.freedesktop.DBus.Properties.Get", "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"],
        capture_output=True, text=True).stdout


def start_host():
    return subprocess.Popen([HOST], stderr=subprocess.DEVNULL)


application = Application()
assert not items(), items()
for _ in range(3):
    host = start_host()
    try:
        until(items, lambda text: "NotificationItem/fault" in text, "the icon is not in the tray")
        application.expect_alive()
    finally:
        host.kill()
        host.wait()
    until(items, lambda text: not text, "the host is still there")
application.end()
without_warnings(application)
row("tray host killed and started again", "The icon is in the new host's tray, as often as there is a new one; nothing is to "
    "be done for it.")
