# SPDX-License-Identifier: MIT
"""The tray's host dies and comes back: the icon is in the new one, too."""
from fault import Application, Tray, row, until, without_warnings

TIMES = 3

tray = Tray()
application = Application()
assert not tray.items(), tray.items()
for _ in range(TIMES):
    host = tray.start_host()
    try:
        until(tray.owners, [application.process.pid].__eq__, "the icon is not in the tray")
        application.expect_alive()
    finally:
        host.kill()
        host.wait()
    until(tray.items, lambda text: not text, "the host is still there")
application.end()
without_warnings(application)
row(f"tray host killed and started again, {TIMES} times", "The icon is in each new host's tray; nothing is to be done for it.")
