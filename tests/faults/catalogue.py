# SPDX-License-Identifier: MIT
"""Catalogues that are no catalogues: cut off, empty, full of noise, and pointing anywhere."""
import os
import pathlib
import random
import shutil
import tempfile

from fault import Application, row

ENGLISH = "Close the window"

binary = pathlib.Path(os.environ["ZO_BINARY_DIR"])
noise = random.Random(1)
with tempfile.TemporaryDirectory() as place:
    # The libraries look for their catalogues beside themselves: in a copy, since other tests use the tree.
    shutil.copytree(binary / "lib", place + "/lib", symlinks=True, ignore=shutil.ignore_patterns("*.a"))
    shutil.copytree(binary / "share/locale", place + "/share/locale")
    mo = pathlib.Path(place) / "share/locale/de/LC_MESSAGES/zo.mo"
    original = mo.read_bytes()

    def translated():
        application = Application({"LANGUAGE": "de", "LC_ALL": "C.UTF-8", "LD_LIBRARY_PATH": place + "/lib"})
        text = application.ask("translate tooltip_close_window")
        application.expect_alive()
        application.end()
        return text

    assert translated() != ENGLISH, "the copy is not in use"
    for broken in (original[:len(original) // 2], b"", bytes(noise.randrange(256) for _ in original),
                   original[:28] + b"\xff" * (len(original) - 28)):
        mo.write_bytes(broken)
        text = translated()
        assert text == ENGLISH, (text, broken[:32])
row("corrupt catalogue", "The texts are shown in English; nothing ends.")
