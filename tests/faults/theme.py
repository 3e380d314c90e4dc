# SPDX-License-Identifier: MIT
"""A theme that cannot be read, and a style sheet that is cut off after each of its bytes."""
import os
import pathlib
import shutil
import sys
import tempfile

from fault import Application, row, until, without_warnings

SENTINEL = "rgb(1,2,3)"
DEPRECATED = "Not using units is deprecated"  # "12px" that ends after its "12"

source = pathlib.Path(os.environ["ZO_SOURCE_DIR"]) / "share/themes/brevant/style.css"
sheet = source.read_bytes()


def refuses_unreadable(folder):
    """Each bad one after a good one: its colour is gone with it."""
    good = folder / "good"
    good.mkdir()
    (good / "style.css").write_text(f"#fault {{ color: {SENTINEL}; }}")
    (folder / "empty").mkdir()
    (folder / "no-file/style.css").mkdir(parents=True)
    (folder / "loop").symlink_to("loop")  # what nobody can enter, whoever it is
    bad = ["empty", "no-file", "loop", "missing"]
    application = Application()
    for name in bad:
        assert application.ask(f"theme {folder}/ good") == "loaded"
        until(lambda: application.ask("colour"), SENTINEL.__eq__, "colour of the good theme")
        got = application.ask(f"theme {folder}/ {name}")
        assert got.startswith("refused: "), (name, got)
        until(lambda: application.ask("colour"), lambda colour: colour != SENTINEL, f"colour after {name}")
    application.expect_alive()
    application.end()
    without_warnings(application)
    row("theme without a readable sheet: no such directory, one that cannot be entered, one without a sheet, or with a "
        "directory for it", "`zo_theme_use_theme` tells through its error; no theme is in use, also not the one before.")


def loads_cut_off(folder, lengths, application):
    """The answers, by their beginnings."""
    shutil.copytree(source.parent, folder / "cut", dirs_exist_ok=True)  # with what the sheet imports
    seen = {"loaded": 0, "refused": 0}
    for length in lengths:
        (folder / "cut/style.css").write_bytes(sheet[:length])
        got = application.ask(f"theme {folder}/ cut")
        assert got == "loaded" or got.startswith("refused: "), (length, got)
        seen[got.partition(":")[0]] += 1
    assert got == "loaded", f"the whole sheet: {got}"
    assert all(seen.values()), seen


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    refuses_unreadable(folder)

    STRIDE = 500
    application = Application()
    loads_cut_off(folder, [*range(0, len(sheet), STRIDE), len(sheet)], application)
    application.expect_alive()
    application.end()
    without_warnings(application, DEPRECATED)

    # "whole": each of its lengths. Otherwise those of the beginning, which has something of everything, and some more.
    step = 1 if sys.argv[2:] == ["whole"] else 101
    application = Application(arguments=["bare"])  # without widgets, that each sheet would style anew
    loads_cut_off(folder, [*range(1024), *range(1024, len(sheet), step), len(sheet)], application)
    application.end()
    without_warnings(application, DEPRECATED)
lengths = "length" if step == 1 else f"{step}th length"
row(f"style sheet of {len(sheet):,} bytes, cut off at every {lengths}, and at every {STRIDE}th under an open window",
    "Each is loaded as far as it goes, or refused through the error; the application goes on.")
