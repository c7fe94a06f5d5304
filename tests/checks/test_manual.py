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

    def translate(self):
        """The whole manual in German, with its pictures."""
        self.write("docs/manual/de/index.md", "# Alles\n\n[Log](log.md), [Zuschneiden](crop.md#wie-es-geht), [web](https://example.org)\n")
        self.write("docs/manual/de/crop.md", "# Zuschnitt\n\n## Wie es geht\n\n![Fenster](../../screenshots/de/crop-light.png)\n")
        self.write("docs/manual/de/log.md", "# Protokoll\n\n[oben](#protokoll)\n")
        for name in ("crop-light.png", "crop-dark.png"):
            self.write("docs/screenshots/de/" + name, "")

    def test_a_whole_translation_has_none(self):
        self.translate()
        self.assertEqual(manual.check(self.root), ([], "3 pages, 5 links and pictures, 2 actions; en de"))

    def test_a_translation_counts_once_it_has_its_first_page(self):
        self.write("docs/manual/de/log.md", "# Protokoll\n\n## Mehr\n")
        self.assertEqual(self.problems(), [])
        self.assertIn("de/crop.md is missing", manual.check(self.root, ["de"])[0])
        self.write("docs/manual/de/index.md", "# Alles\n\n[Log](log.md)\n")
        self.assertIn("de/crop.md is missing", self.problems())

    def test_finds_pages_that_only_a_translation_has(self):
        self.translate()
        self.write("docs/manual/de/more.md", "# Mehr\n")
        self.assertIn("de/more.md: English has no such page", self.problems())

    def test_finds_other_levels_of_headings(self):
        self.translate()
        self.write("docs/manual/de/log.md", "# Protokoll\n\n### Mehr\n\n[oben](#protokoll)\n")
        self.assertEqual(self.problems(), ["de/log.md: its headings have the levels [1, 3], those in English [1]"])

    def test_finds_links_to_other_places(self):
        self.translate()
        self.write("docs/manual/de/index.md", "# Alles\n\n[Log](log.md), [Zuschneiden](crop.md)\n")
        self.assertEqual(self.problems(), ["de/index.md: lacks a link to crop.md, heading 2",
                                           "de/index.md: has a link too many to crop.md, heading 0"])
        self.write("docs/manual/de/index.md", "# Alles\n\n[Log](log.md), [Zuschneiden](crop.md#how-it-goes)\n")
        self.assertIn("de/index.md: leads to crop.md#how-it-goes, where no heading is called so", self.problems())

    def test_finds_two_headings_of_one_name(self):
        self.translate()
        self.write("docs/manual/de/crop.md", "# Zuschnitt\n\n## Zuschnitt\n\n![Fenster](../../screenshots/de/crop-light.png)\n")
        self.assertIn("de/crop.md: two headings have the anchor zuschnitt", self.problems())

    def test_finds_figures_of_another_language(self):
        self.translate()
        self.write("docs/manual/de/crop.md", "# Zuschnitt\n\n## Wie es geht\n\n![Fenster](../../screenshots/crop-light.png)\n")
        self.assertEqual(self.problems(), ["de/crop.md: its figures are not ../../screenshots/de/crop-light.png"])

    def test_finds_pictures_that_a_language_lacks_once_it_has_some(self):
        self.translate()
        (self.root / "docs/screenshots/de/crop-dark.png").unlink()
        self.assertEqual(self.problems(),
                         ["de/crop.md: shows ../../screenshots/de/crop-light.png, but crop-dark.png is not there"])
        shutil.rmtree(self.root / "docs/screenshots/de")
        self.assertEqual(self.problems(), [])

    def test_finds_figures_without_words(self):
        self.write("docs/manual/crop.md", "# Crop\n\n## How `it` goes\n\n![](../screenshots/crop-light.png)\n")
        self.assertEqual(self.problems(), ["crop.md: does not say what ../screenshots/crop-light.png shows"])


if __name__ == "__main__":
    unittest.main()
