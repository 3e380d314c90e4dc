#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""script/abi sees each kind of difference, and accepts it once the changelog names it.

The differences are made in a copy of the baseline: the present libraries then differ from it.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

source, binary = Path(os.environ["ZO_SOURCE_DIR"]), Path(os.environ["ZO_BINARY_DIR"])


class Abi(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.baseline = Path(self.folder.name) / "abi"
        self.changelog = Path(self.folder.name) / "CHANGELOG.md"
        self.baseline.mkdir()
        self.write_changelog("nothing")
        self.check("--update")  # the present libraries, whatever is named elsewhere

    def tearDown(self):
        self.folder.cleanup()

    def write_changelog(self, newest, older="everything"):
        self.changelog.write_text(f"# Changelog\n\n## New\n\n- {newest}\n\n## Old\n\n- {older}\n")

    def check(self, *options):
        done = subprocess.run([sys.executable, source / "script/abi", "--libraries", binary / "lib", "--baseline",
                               self.baseline, "--changelog", self.changelog, "--only", "core", *options],
                              capture_output=True, text=True)
        self.assertIn(done.returncode, (0, 1), done.stderr)
        self.assertEqual(done.stderr, "")
        return done.returncode == 0, done.stdout

    def edit(self, file, pattern, replacement):
        path = self.baseline / file
        text, count = re.subn(pattern, replacement, path.read_text(), flags=re.M)
        self.assertGreater(count, 0, "nothing to edit")
        path.write_text(text)

    def expect_named(self, name):
        """Fails without the name and says it; passes with it."""
        passed, output = self.check()
        self.assertFalse(passed)
        self.assertRegex(output, rf"not named .*\b{name}\b")
        self.write_changelog(f"`{name}` is different.")
        self.assertTrue(self.check()[0])

    def test_only_the_whole_name_in_the_newest_section_counts(self):
        self.edit("core.symbols", r"^zo_get_unique_id\(\)\n", "")
        self.write_changelog("nothing", older="`zo_get_unique_id`")
        self.assertFalse(self.check()[0])
        self.write_changelog("xzo_get_unique_id and zo_get_unique_idx")
        self.assertFalse(self.check()[0])

    def test_an_update_hides_nothing(self):
        self.edit("core.symbols", r"^zo_get_unique_id\(\)\n", "")
        self.assertFalse(self.check("--update")[0])
        self.assertFalse(self.check()[0])
        self.write_changelog("`zo_get_unique_id`")
        self.assertTrue(self.check("--update")[0])
        self.write_changelog("nothing")
        self.assertTrue(self.check()[0])

    def test_no_difference_passes(self):
        self.assertTrue(self.check()[0])

    def test_an_added_function(self):
        self.edit("core.symbols", r"^zo_get_unique_id\(\)\n", "")
        self.expect_named("zo_get_unique_id")

    def test_a_removed_function(self):
        self.edit("core.symbols", r"^zo_get_unique_id\(\)\n", "zo_get_unique_id()\nzo_gone(int)\n")
        self.expect_named("zo_gone")

    def test_another_argument(self):
        self.edit("core.symbols", r"^zo_system_service_timeout_clear\(unsigned long\)$",
                  "zo_system_service_timeout_clear(int)")
        self.expect_named("zo_system_service_timeout_clear")

    def test_another_result(self):
        """Not in the symbol's name, so only the types tell."""
        text = (self.baseline / "core.abi").read_text()
        kind = re.search(r"<type-decl name='bool' .* id='(\w+)'", text)[1]
        self.edit("core.abi", r"(mangled-name='_Z16zo_get_unique_idv'[^>]*>\s*<return type-id=')\w+", rf"\g<1>{kind}")
        self.expect_named("zo_get_unique_id")

    def test_another_place_in_the_table_of_virtual_operations(self):
        self.edit("core.abi", r"vtable-offset='4'", "vtable-offset='9'")
        self.expect_named("_zo_object::destroy")

    def test_another_layout(self):
        self.edit("core.abi", r"(<class-decl name='_zo_object' size-in-bits=')\d+", r"\g<1>64")
        passed, output = self.check()
        self.assertFalse(passed)
        self.assertIn("_zo_object", output)

    def test_a_named_difference_hides_no_other(self):
        self.edit("core.symbols", r"^zo_get_unique_id\(\)\n", "")
        self.edit("core.abi", r"(<class-decl name='_zo_object' size-in-bits=')\d+", r"\g<1>64")
        self.write_changelog("`zo_get_unique_id`")
        self.assertFalse(self.check()[0])

    def test_a_missing_baseline_fails(self):
        (self.baseline / "core.abi").unlink()
        self.assertFalse(self.check()[0])


unittest.main()
