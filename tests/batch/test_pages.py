#!/usr/bin/env python3
"""test_pages.py PROGRAM ROOT: the man page, the completions and --help of quorlin-batch name the same options, and all can be read."""
import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

import batch_world
from batch_world import BatchTest

ROOT = Path(sys.argv.pop() if len(sys.argv) > 2 else "")
COMPLETION = ROOT / "packaging/completion"


class Pages(BatchTest):
    def options(self):
        text = self.run_batch("--help").decode()
        found = set(re.findall(r"(?<![\w-])--[a-z-]+|(?<= )-0(?= )", text))
        self.assertGreater(len(found), 15)
        return found

    def test_man_page(self):
        page = (ROOT / "docs/man/quorlin-batch.1").read_text().replace("\\-", "-")
        named = re.findall(r"^\.TP\n\.BI? (--?[a-z0-9-]+)", page, re.M)
        self.assertEqual(set(named), self.options())
        self.assertEqual(len(named), len(set(named)))

    def test_bash(self):
        words = re.search(r"compgen -W \$'(--preset[^']*)'", (COMPLETION / "quorlin-batch.bash").read_text()).group(1)
        self.assertEqual(set(words.split("\\n")), self.options())

    def test_zsh(self):
        named = re.findall(r"^    ['\"](--?[a-z0-9-]+)\[", (COMPLETION / "_quorlin-batch").read_text(), re.M)
        self.assertEqual(set(named), self.options())

    def test_fish(self):
        text = (COMPLETION / "quorlin-batch.fish").read_text()
        lines = "".join(re.findall(r"^complete -c quorlin-batch .*\n", text, re.M))
        named = {"--" + name for name in re.findall(r" -l ([a-z-]+)", lines)} | {"-" + name for name in re.findall(r" -s (\S)", lines)}
        self.assertEqual(named, self.options())

    def test_options_with_values_want_one(self):
        page = (ROOT / "docs/man/quorlin-batch.1").read_text().replace("\\-", "-")
        with_value = set(re.findall(r"^\.TP\n\.BI (--?[a-z0-9-]+)", page, re.M))
        for option in self.options() - {"--help", "--version", "--list-presets"}:
            self.run_batch("r", "in", option, status=2)
            self.assertEqual("needs a value" in self.said, option in with_value, option)

    def test_bash_completes(self):
        os.symlink(batch_world.PROGRAM, self.path("quorlin-batch"))
        self.path("some folder").mkdir()

        def completed(*words):
            script = (f"source '{COMPLETION}/quorlin-batch.bash'; compopt() {{ :; }}; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($#-1)); "
                      "_quorlin_batch; printf '%s\\n' \"${COMPREPLY[@]}\"")
            done = subprocess.run(["bash", "-c", script, "bash", *words], cwd=self.folder, capture_output=True, text=True, check=True,
                                  env={"PATH": f"{self.folder}:{os.environ['PATH']}"}, timeout=60)
            self.assertEqual(done.stderr, "")
            return done.stdout.splitlines()

        self.assertEqual(completed("quorlin-batch", "--pl"), ["--plan"])
        self.assertIn(r"Resize/Web\ 1600", completed("quorlin-batch", "--preset", "Resize/W"))
        self.assertEqual(completed("quorlin-batch", "--progress", "a"), ["auto", "always"])
        self.assertEqual(completed("quorlin-batch", "--to", "some"), ["some folder"])
        self.assertEqual(completed("quorlin-batch", "some"), ["some folder"])

    def test_shells_can_read_them(self):
        for shell, name in (("bash", "quorlin-batch.bash"), ("zsh", "_quorlin-batch"), ("fish", "quorlin-batch.fish")):
            if shutil.which(shell):
                done = subprocess.run([shell, "-n", COMPLETION / name], capture_output=True, text=True, check=False)
                self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_pages_can_be_read(self):
        if not shutil.which("groff"):
            self.skipTest("there is no groff")
        pages = sorted((ROOT / "docs/man").iterdir())
        self.assertEqual([page.name for page in pages],
                         ["quorlin-batch.1", "quorlin-recipe.5", "quorlin-script.1", "quorlin.1"])
        for page in pages:
            done = subprocess.run(["groff", "-man", "-Tutf8", "-ww", page], capture_output=True, check=False)
            self.assertEqual((done.returncode, done.stderr.decode()), (0, ""))
            self.assertIn(page.stem.encode(), done.stdout)

    def test_recipe_page_names_all_keys(self):
        page = (ROOT / "docs/man/quorlin-recipe.5").read_text().replace("\\-", "-")
        schema = (ROOT / "jobs/schema/recipe.schema.json").read_text()
        for word in set(re.findall(r'"([a-zA-Z0-9 ]+)": \{', schema)) - {"properties", "items", "definitions", "operation", "profiles"}:
            self.assertIn(word, page)


if __name__ == "__main__":
    batch_world.main()
