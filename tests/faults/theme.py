# SPDX-License-Identifier: MIT
"""A theme that cannot be read, and a style sheet that is cut off after each of its bytes."""
import os
import pathlib
import sys
import tempfile

from fault import Application, row, without_warnings

source = pathlib.Path(os.environ["ZO_SOURCE_DIR"]) / "share/themes/brevant/style.css"
sheet = source.read_bytes()
with tempfile.TemporaryDirectory() as folder:
    theme = pathlib.Path(folder) / "cut"
    theme.mkdir()
    application = Application()
    (theme / "style.css").mkdir()
    got = application.ask(f"theme {folder}/ cut")
    assert got.startswith("refused"), got
    (theme / "style.css").rmdir()
    got = application.ask(f"theme {folder}/ cut")
    assert got.startswith("refused"), got
    application.expect_alive()
    row("theme directory without a readable sheet", "`zo_theme_use_theme` tells through its error; no theme is in use.")

    application.end()
    application = Application(arguments=["bare"])  # without widgets, that each sheet would style anew
    loaded = 0
    # "whole": each of its lengths. Otherwise those of the beginning, which has something of everything, and some more.
    step = 1 if sys.argv[2:] == ["whole"] else 13
    for length in [*range(4096), *range(4096, len(sheet), step), len(sheet)]:
        (theme / "style.css").write_bytes(sheet[:length])
        loaded += application.ask(f"theme {folder}/ cut") == "loaded"
    assert 0 < loaded <= len(sheet) + 1, loaded
    application.end()
    without_warnings(application, "Not using units is deprecated")  # "12px" that ends after its "12"
    row(f"style sheet of {len(sheet):,} bytes, cut off at every length" if step == 1 else "style sheet cut off",
        "Each is loaded as far as it goes, or refused through the error; the application goes on.")
