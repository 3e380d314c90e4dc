#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""wnck.py XID: what libwnck reads of a window, as JSON; nothing when it does not know it."""
import json
import sys
import warnings

import gi
gi.require_version("Wnck", "3.0")
warnings.simplefilter("ignore")
from gi.repository import Wnck

screen = Wnck.Screen.get_default()
screen.force_update()
for window in screen.get_windows():
    if window.get_xid() == int(sys.argv[1]):
        print(json.dumps({"name": window.get_name(), "pid": window.get_pid(), "above": window.is_above(),
                          "skips_tasklist": window.is_skip_tasklist(), "skips_pager": window.is_skip_pager()}))
