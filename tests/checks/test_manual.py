#!/usr/bin/env python3
"""manual.py finds what it is there for in a small manual with faults."""
import shutil
import tempfile
import unittest
from pathlib import Path

import manual


class Manual(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        for name in ("crop/crop-action.js", "crop/crop-step.js", "log/log-action.js", "shared/on-pictures.js"):
            self.write(f"{manual.ACTIONS}/{name}", "")
        self.write("docs/manual/index.md", "# All\n\n[Crop](crop.md#how-it-goes), [Log](log.md), [web](https://example.org)\n")
        self.write("docs/manual/crop.md", "# Crop\n\n## How `it` goes\n\n![Window](../screenshots/crop-light.png)\n")
        self.write("docs/manual/log.md", "# Log\n\n[top](#log)\n")
        for name in ("crop-light.png", "crop-dark.png"):
            self.write("docs/screenshots/" + name, "")

    def tearDown(self):
        shutil.rmtree(self.root)

    def write(self, path, text):
        (self.root / path).parent.mkdir(parents=True, exist_ok=True)
        (self.root / path).write_text(text, encoding="utf-8")

    def problems(self):
        return manual.check(self.root)[0]

    def test_a_whole_manual_has_none(self):
        self.assertEqual(self.problems(), [])

    def test_finds_an_action_without_a_page(self):
        (self.root / "docs/manual/crop.md").unlink()
        self.assertIn("the action crop has no page", self.problems())

    def test_finds_links_that_lead_nowhere(self):
        self.write("docs/manual/log.md", "# Log\n\n[a](none.md) [b](crop.md#elsewhere) [c](#top)\n")
        self.assertEqual(len(self.problems()), 3)

    def test_finds_pictures_that_are_missing_also_in_the_dark(self):
        (self.root / "docs/screenshots/crop-dark.png").unlink()
        self.assertEqual(self.problems(), ["crop.md: shows ../screenshots/crop-light.png, but crop-dark.png is not there"])
        (self.root / "docs/screenshots/crop-light.png").unlink()
        self.assertEqual(len(self.problems()), 2)

    def test_finds_pages_that_nobody_reaches(self):
        self.write("docs/manual/alone.md", "# Alone\n")
        self.assertEqual(self.problems(), ["index.md: does not lead to alone.md"])


if __name__ == "__main__":
    unittest.main()
