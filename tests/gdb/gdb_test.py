#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""gdb_test.py PROGRAM: gdb finds the printers beside the library by itself, and prints readably."""
import os
import re
import subprocess
import sys
import unittest

program = sys.argv.pop()


def printed(*expressions):
    """What gdb prints of each expression in stop_here()."""
    commands = ["set print elements 0", "set width 0", "break stop_here", "run"]
    commands += [f"print {expression}" for expression in expressions]
    safe = f"add-auto-load-safe-path {os.environ['ZO_BINARY_DIR']}:/usr/share/gdb/auto-load:/usr/lib"
    done = subprocess.run(["gdb", "-batch", "-nx", "-iex", safe, *(w for c in commands for w in ("-ex", c)), program],
                          capture_output=True, text=True, env={**os.environ, "LC_ALL": "C.UTF-8"}, timeout=120)
    lines = re.findall(r"^\$\d+ = (.*)$", done.stdout, re.M)
    if len(lines) != len(expressions):
        raise AssertionError(done.stdout + done.stderr)
    return lines


class Printers(unittest.TestCase):
    def test_all(self):
        window, visible, object_, none, list_ = printed("window", "visible", "object", "none", "list")
        self.assertRegex(window, r'^_zo_window at 0x[0-9a-f]+, id "notes", title "My notes" = \{')
        self.assertIn('["window-opened"] = false', window)
        self.assertIn('["instanceId"] = 0', window)
        self.assertIn('["window-open"] = a std::function<void (boost::shared_ptr<_zo_window>)>', window)
        self.assertRegex(visible, r'^_zo_window at 0x[0-9a-f]+, id "v", title "", visible = \{')
        self.assertRegex(object_, r'^_zo_object at 0x[0-9a-f]+, id "mail", title "My mail" = \{.*\["icon"\] = "mail-read"')
        self.assertEqual(none, "empty handle of _zo_window")
        self.assertRegex(list_, r'\["callback"\] = a std::function<void \(\)>, \["nothing"\] = empty, \["number"\] = 7, '
                                r'\["text"\] = "some text"\}$')


unittest.main()
