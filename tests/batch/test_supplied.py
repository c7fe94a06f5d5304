#!/usr/bin/env python3
"""test_supplied.py PROGRAM PICTURES: what a dry run of the supplied recipes says is what the run after it does.

Every line agrees in input, output, index, type, width, height, lossless and reason, but for pictures whose damage only decoding
shows and for outputs that no quality makes small enough: these are listed, and fail.
"""
import json
import os
import sys
import unittest
from pathlib import Path

import batch_world
from batch_world import BatchTest

PICTURES = Path(sys.argv.pop() if len(sys.argv) > 2 else "")
SAME = ("input", "output", "index", "type", "width", "height", "lossless", "reason")


class Supplied(BatchTest):
    def recipes(self):
        names = self.run_batch("--list-presets").decode().splitlines()
        return [name for name in names if name.startswith("Recipe/")]

    def reports(self, name):
        for report, flags in (("plan", ["--dry-run"]), ("made", [])):
            with self.start("--preset", name, "--to", "out", "--quiet", "--keep-tree", "--report", report, *flags, PICTURES) as run:
                run.communicate(timeout=900)
            lines = [json.loads(line) for line in self.path(report).read_text().splitlines()][:-1]
            yield sorted(lines, key=lambda line: (line["input"], line["index"]))  # they come as they end

    def test_there_are_six(self):
        self.assertEqual(len(self.recipes()), 6)

    def test_runs_do_what_dry_runs_say(self):
        for name in self.recipes():
            with self.subTest(recipe=name):
                planned, made = self.reports(name)
                self.assertEqual(len(planned), len(made))
                self.assertGreater(sum(line["status"] == "OK" for line in made), 0)
                for before, after in zip(planned, made):
                    if after["status"] == "Failed" and before["status"] == "Planned":
                        self.check_only_decoding_shows_it(name, after)
                        continue
                    self.assertEqual({key: before[key] for key in SAME}, {key: after[key] for key in SAME})
                    self.assertEqual(before["status"].replace("Planned", "OK"), after["status"])

    def check_only_decoding_shows_it(self, name, line):
        """A sentence about the picture or about its size, not about the program."""
        print(f"{name}: {os.path.relpath(line['input'], PICTURES)}[{line['index']}]: {line['reason']}")
        self.assertIsNone(line["output"])
        self.assertRegex(line["reason"], r"^(Cannot read |It does not fit into )")


if __name__ == "__main__":
    if not PICTURES.is_dir():
        print("there are no pictures")
        sys.exit(77)
    batch_world.main()
