# SPDX-License-Identifier: MIT
"""Catalogues that are no catalogues: cut off, empty, and full of noise."""
import os
import pathlib
import random
import shutil
import tempfile

from fault import Application, row

binary = pathlib.Path(os.environ["ZO_BINARY_DIR"])
catalogues = sorted(binary.rglob("de/LC_MESSAGES/*.mo"))
assert catalogues
KEY = "tooltip_close_window"


def translated(environment, directory):
    application = Application(environment, directory)
    text = application.ask("translate " + KEY)
    application.expect_alive(1)
    application.end()
    return text


language = {"LANGUAGE": "de", "LC_ALL": "C.UTF-8", "LANG": "C.UTF-8"}
for mo in catalogues:
    original = mo.read_bytes()
    noise = random.Random(1)
    broken = [original[:len(original) // 2], b"", bytes(noise.randrange(256) for _ in range(len(original))),
              original[:28] + b"\xff" * (len(original) - 28)]
    with tempfile.TemporaryDirectory() as keep:
        shutil.copy2(mo, keep)
        try:
            for content in broken:
                mo.unlink()
                mo.write_bytes(content)
                assert translated(language, None), content[:16]
        finally:
            mo.unlink()
            shutil.copy2(pathlib.Path(keep) / mo.name, mo)
row("corrupt catalogue", "The texts are shown in English; nothing ends.")
