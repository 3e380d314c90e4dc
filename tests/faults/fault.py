# SPDX-License-Identifier: MIT
"""What every fault needs: the application, told what to do line by line, and a row for the table."""
import os
import re
import subprocess
import sys
import threading
import time
import queue

ANSWER_SECONDS = 30


def until(seen, wanted, what):
    """Asks again and again, each time another process, until `seen()` satisfies `wanted`."""
    end = time.monotonic() + ANSWER_SECONDS
    while not wanted(value := seen()):
        assert time.monotonic() < end, f"{what}: {value}"


class Application:
    def __init__(self, environment=None, directory=None, arguments=()):
        # The faults end processes and break what they share: leaks at such an end say nothing.
        env = dict(os.environ, **(environment or {}))
        env["ASAN_OPTIONS"] = ":".join(filter(None, (env.get("ASAN_OPTIONS"), "detect_leaks=0")))
        for name, value in list(env.items()):
            if value is None:
                del env[name]
        self.process = subprocess.Popen([sys.argv[1], *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, text=True, env=env, cwd=directory)
        self.lines = queue.Queue()
        self.complaints = []
        self.uses = 0
        self.reader = threading.Thread(target=self._read, daemon=True)
        self.reader.start()
        threading.Thread(target=self._read_complaints, daemon=True).start()
        self.expect("ready")

    def _read(self):
        for line in self.process.stdout:
            if line.startswith("> "):
                self.lines.put(line[2:].rstrip("\n"))

    def _read_complaints(self):
        for line in self.process.stderr:
            self.complaints.append(line.rstrip("\n"))

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()

    def answer(self):
        return self.lines.get(timeout=ANSWER_SECONDS)

    def ask(self, command):
        self.tell(command)
        return self.answer()

    def expect(self, text):
        got = self.answer()
        assert got == text, f"{got!r} instead of {text!r}; it said {self.complaints}"

    def rest(self):
        """The lines left of a process that has ended."""
        self.reader.join(ANSWER_SECONDS)
        assert not self.reader.is_alive(), "its output is still open"
        return [self.lines.get_nowait() for _ in range(self.lines.qsize())]

    def expect_alive(self):
        """Uses everything once and looks at the state afterwards."""
        self.tell("use")
        self.uses += 1
        got = self.ask("state")
        assert got == f"window on screen, notifications closed: {self.uses}", (got, self.complaints)

    def end(self):
        self.tell("quit")
        self.expect("ended")
        code = self.process.wait(timeout=ANSWER_SECONDS)
        assert code == 0, (code, self.complaints)
        assert self.rest() == ["exit handler"]


HOST = "/usr/libexec/ayatana-indicator-application/ayatana-indicator-application-service"


class Tray:
    """The tray of a session bus: who is its host, and what is in it."""

    def __init__(self, address=None):
        self.environment = dict(os.environ, **({"DBUS_SESSION_BUS_ADDRESS": address} if address else {}))

    def start_host(self):
        return subprocess.Popen([HOST], stderr=subprocess.DEVNULL, env=self.environment)

    def call(self, name, path, method, *words):
        return subprocess.run(["gdbus", "call", "--session", "-d", name, "-o", path, "-m", method, *words],
                              capture_output=True, text=True, env=self.environment).stdout

    def items(self):
        """Each with its connection before; nothing at all without a host."""
        return self.call("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get",
                         "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems")

    def owners(self):
        """The processes that have an item of the application's in it."""
        connections = re.findall(r"'(:[\d.]+)/[^']*NotificationItem/fault'", self.items())
        return [int(re.search(r"uint32 (\d+)", self.call("org.freedesktop.DBus", "/",
                "org.freedesktop.DBus.GetConnectionUnixProcessID", name))[1]) for name in connections]


def without_warnings(application, *allowed):
    bad = [line for line in application.complaints
           if ("WARNING" in line or "CRITICAL" in line or "ERROR" in line) and not any(a in line for a in allowed)]
    assert not bad, bad


def row(fault, outcome):
    print(f"| {fault} | {outcome} |", flush=True)
