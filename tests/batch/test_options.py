#!/usr/bin/env python3
"""test_options.py PROGRAM: each option of quorlin-batch, and each exit status that no signal is needed for."""
import hashlib
import json
import os
import pty
import shutil
import sqlite3
import subprocess
import unittest
import zlib

import batch_world
from batch_world import BatchTest, png


class Asking(BatchTest):
    def test_help_fits_on_a_screen(self):
        text = self.run_batch("--help").decode()
        self.assertLessEqual(len(text.splitlines()), 24)
        self.assertLessEqual(max(map(len, text.splitlines())), 80)
        self.assertTrue(text.startswith("quorlin-batch "))

    def test_version(self):
        self.assertTrue(self.run_batch("--version").startswith(b"quorlin-batch "))

    def test_presets_are_those_that_preset_takes(self):
        names = self.run_batch("--list-presets").decode().splitlines()
        self.assertIn("Resize/Web 1600", names)
        self.assertIn("Recipe/Web gallery", names)
        self.assertEqual(len(names), len(set(names)))
        png(self.path("a.png"))
        for name in names:
            self.lines("--preset", name, "--dry-run", "a.png")

    def test_presets_do_something(self):
        png(self.path("a.png"), 600, 400)
        self.lines("--preset", "Background and Border/On paper", "a.png")
        self.assertEqual(self.files("Framed"), ["a.png"])
        line = self.lines("--preset", "Crop/Trim 5%", "a.png")[0]
        self.assertEqual((line["width"], line["height"]), (570, 380))

    def test_presets_of_the_user(self):
        png(self.path("a.png"), 600, 400)
        folder = self.path("data/BrelmarkCom")
        folder.mkdir(parents=True)
        row = ["Tight", "Crop", "pixels", "Quorlin 1", "public.png", "", "beside", "Tight", "", "number"] + [""] * 52
        row[15] = "150"
        rename = ["Dates", "Rename"] + [""] * 60
        with sqlite3.connect(folder / "QuorlinPS.sql") as database:
            columns = [f"f{i}" for i in range(62)]
            database.execute(f"CREATE TABLE Presets (number INTEGER PRIMARY KEY, {', '.join(columns)})")
            for each in (row, rename):
                database.execute(f"INSERT INTO Presets VALUES (NULL{', ?' * 62})", each)
        database.close()
        environment = {"XDG_DATA_HOME": str(self.path("data"))}
        names = self.run_batch("--list-presets", env=environment).decode().splitlines()
        self.assertIn("Crop/Tight", names)
        self.assertNotIn("Rename/Dates", names)
        line = self.lines("--preset", "Crop/Tight", "a.png", env=environment)[0]
        self.assertEqual((line["width"], line["height"], line["output"]), (450, 250, str(self.path("Tight/a.png"))))
        self.run_batch("--preset", "Rename/Dates", "a.png", status=2, env=environment)
        self.assertIn("makes no pictures", self.said)

    def test_closed_standard_output(self):
        for arguments in (["--help"], ["--version"], ["--list-presets"]):
            self.run_batch(*arguments, status=2, stdout=None, preexec_fn=lambda: os.close(1))
            self.assertIn("standard output is closed", self.said)
        full = open("/dev/full", "wb")
        self.addCleanup(full.close)
        self.run_batch("--help", status=1, stdout=full)
        self.assertIn("cannot be written", self.said)


class BadRequests(BatchTest):
    def refuse(self, *arguments):
        before = self.files(".")
        self.run_batch(*arguments, status=2)
        self.assertEqual(self.files("."), before)
        self.assertEqual(len(self.said.splitlines()), 1, self.said)
        return self.said

    def test_command_lines_that_make_no_sense(self):
        png(self.path("a.png"))
        self.plain()
        for arguments in (
                [], ["r.quorlin"], ["--wrong", "r.quorlin", "a.png"], ["--to"], ["--to=", "r.quorlin", "a.png"],
                ["--jobs", "0", "r.quorlin", "a.png"], ["--jobs", "257", "r.quorlin", "a.png"],
                ["--jobs", "x", "r.quorlin", "a.png"], ["--shard", "0/2", "r.quorlin", "a.png"],
                ["--shard", "3/2", "r.quorlin", "a.png"], ["--shard", "1", "r.quorlin", "a.png"],
                ["--timeout", "0", "r.quorlin", "a.png"], ["--memory", "-1", "r.quorlin", "a.png"],
                ["--progress", "often", "r.quorlin", "a.png"], ["--keep-tree", "r.quorlin", "a.png"],
                ["-0", "r.quorlin", "a.png"], ["--quiet=yes", "r.quorlin", "a.png"], ["none.quorlin", "a.png"],
                ["--preset", "Resize/None", "a.png"], ["--preset", "Rename/Date", "a.png"],
                ["--from", "none", "r.quorlin"], ["--from", ".", "r.quorlin"], ["--plan", "none", "r.quorlin", "a.png"],
                ["--resume", "none", "r.quorlin", "a.png"], ["--report", "none/report", "r.quorlin", "a.png"],
                ["--report", "r.quorlin", "r.quorlin", "a.png"], ["--report", "a.png", "r.quorlin", "a.png"]):
            self.assertTrue(self.refuse(*arguments).startswith("quorlin-batch: "), arguments)

    def test_a_file_is_no_folder(self):
        """Neither the base folder nor one of the recipe's: the sentence says which item is in the way."""
        png(self.path("a.png"))
        self.plain(folder="b/c")
        self.path("file").write_text("here before")
        self.assertEqual(self.refuse("--to", "file", "r.quorlin", "a.png"), "quorlin-batch: file is not a folder\n")
        self.assertEqual(self.refuse("--dry-run", "--to", "file", "r.quorlin", "a.png"), "quorlin-batch: file is not a folder\n")
        self.path("to").mkdir()
        self.path("to/b").write_text("here before")
        line = self.lines("--to", "to", "r.quorlin", "a.png", status=1)[0]
        self.assertEqual(line["reason"], f"{self.path('to/b')} is not a folder")
        self.assertEqual(self.lines("--to", "file/x", "r.quorlin", "a.png", status=1)[0]["reason"], f"{self.path('file')} is not a folder")
        self.assertEqual(self.files("to"), ["b"])

    def fonts(self, name):
        """An environment with the fonts of the system and a cache of its own for them."""
        self.path(name).write_text(f"<fontconfig><dir>/usr/share/fonts</dir><cachedir>{self.path(name + '-cache')}</cachedir></fontconfig>")
        return {"FONTCONFIG_FILE": str(self.path(name))}

    def test_text_without_any_font(self):
        """The boxes that are drawn for missing letters are no substitute: nothing is planned, made or written."""
        png(self.path("a.png"))
        self.path("none").write_text(f"<fontconfig><dir>{self.folder}/nothing</dir><cachedir>{self.folder}/none-cache</cachedir></fontconfig>")
        self.plain()
        self.run_batch("--dry-run", "--report", "plan", "r.quorlin", "a.png")
        for name, mark in (("r.quorlin", {}), ("sans.quorlin", {"font": "Sans"}), ("named.quorlin", {"font": "DejaVu Sans"})):
            self.recipe({"quorlin": 1, "operations": [{"do": "watermark", "text": "x", **mark}], "outputs": [{"type": "png"}]}, name)
            before = self.files(".")
            for options in ((), ("--dry-run",), ("--plan", "plan"), ("--jobs", "2"), ("--dry-run", "--jobs", "2")):
                self.run_batch(*options, "--to", "out", name, "a.png", status=2, env={"FONTCONFIG_FILE": str(self.path("none"))})
                self.assertEqual(self.said, f"quorlin-batch: {name}: operations[0].text: no font is installed, so no text can be drawn\n")
                self.assertEqual([each for each in self.files(".") if not each.startswith("none-cache")], before)

    def test_too_little_memory_is_named(self):
        """Whether the worker ends before it has read the recipe, or over the picture, depends on the moment."""
        png(self.path("a.png"))
        self.plain()
        fonts = self.fonts("fonts")
        for memory in (1, 5, 20, 30, 60):
            with self.start("--to", "out", "--memory", str(memory), "r.quorlin", "a.png", env=fonts) as process:
                said = process.communicate(timeout=120)[1].decode()
            self.assertIn(process.returncode, (1, 2))
            needs = rf"needs more than {memory} MB of memory|needs about [0-9.]+ MB of memory"
            self.assertRegex(said, needs)
            self.assertNotRegex(said, "crashed|ended while")

    @unittest.skipUnless(shutil.which("fc-list"), "nothing lists fonts")
    def test_too_little_memory_loses_no_fonts(self):
        """What a worker finds of fonts is kept for all programs, so it looks for them while it has memory."""
        png(self.path("a.png"))
        self.plain()
        fonts, others = self.fonts("fonts"), self.fonts("others")
        for memory in (1, 5, 10, 20, 30, 60):
            with self.start("--to", "out", "--memory", str(memory), "r.quorlin", "a.png", env=fonts) as process:
                process.communicate(timeout=120)
        listed = [sorted(subprocess.run(["fc-list"], env={**os.environ, **each}, stdout=subprocess.PIPE, check=True).stdout.splitlines())
                  for each in (fonts, others)]
        self.assertEqual(*listed)

    def test_a_list_is_no_report(self):
        png(self.path("a.png"))
        self.plain()
        self.path("list").write_text("a.png\n")
        self.refuse("--from", "list", "--report", "list", "r.quorlin")

    def test_what_a_recipe_names_is_no_report(self):
        png(self.path("a.png"))
        png(self.path("mark.png"))
        self.plain(profile="Display P3")
        self.run_batch("--to", "wide", "r.quorlin", "a.png")
        wide = self.path("wide/a.png").read_bytes()
        chunk = wide.index(b"iCCP")
        packed = wide[chunk + 4:chunk + 4 + int.from_bytes(wide[chunk - 4:chunk], "big")]
        self.path("own.icc").write_bytes(zlib.decompress(packed[packed.index(b"\0") + 2:]))
        self.recipe({"quorlin": 1, "operations": [{"do": "watermark", "picture": "mark.png"}, {"do": "profile", "to": "own.icc"}],
                     "outputs": [{"type": "png"}]})
        for name in ("mark.png", "own.icc"):
            before = self.path(name).read_bytes()
            self.refuse("--report", name, "r.quorlin", "a.png")
            self.assertEqual(self.path(name).read_bytes(), before)

    def test_a_report_on_a_closed_standard_output(self):
        png(self.path("in/a.png"))
        self.plain()
        self.run_batch("--report", "-", "r.quorlin", "in", status=2, stdout=None, preexec_fn=lambda: os.close(1))
        self.assertEqual(self.files("in"), ["a.png"])

    def test_names_on_a_closed_standard_input(self):
        self.plain()
        self.run_batch("--from", "-", "r.quorlin", status=2, stdin=None, preexec_fn=lambda: os.close(0))
        self.assertIn("standard input is closed", self.said)

    def test_plan_of_another_recipe(self):
        png(self.path("a.png"))
        self.plain()
        self.run_batch("--dry-run", "--report", "plan", "r.quorlin", "a.png")
        self.plain(name="other")
        self.assertIn("another recipe", self.refuse("--plan", "plan", "r.quorlin", "a.png"))


class Doing(BatchTest):
    def test_statuses(self):
        png(self.path("in/a.png"))
        self.path("in/b.png").write_text("no picture")
        self.plain()
        lines = self.lines("--to", "out", "r.quorlin", "in", "none.png", "r.quorlin", status=1)
        self.assertEqual({line["input"]: line["status"] for line in lines},
                         {str(self.path("in/a.png")): "OK", str(self.path("in/b.png")): "Failed",
                          str(self.path("none.png")): "Failed", str(self.path("r.quorlin")): "Failed"})
        self.assertEqual(len(lines), 4)
        self.assertEqual(self.files("out"), ["a.png"])
        self.lines("--to", "out", "r.quorlin", "in/a.png")

    def test_recipe_is_named_by_its_bytes(self):
        png(self.path("a.png"))
        recipe = self.plain()
        line = self.lines("r.quorlin", "a.png")[0]
        self.assertEqual(line["recipe"], hashlib.sha256(recipe.read_bytes()).hexdigest()[:12])

    def test_keep_tree(self):
        png(self.path("in/a.png"))
        png(self.path("in/x/y/b.png"))
        png(self.path("other/c.png"))
        self.plain(folder="Web")
        self.lines("--to", "out", "--keep-tree", "r.quorlin", "in", "other/c.png")
        self.assertEqual(self.files("out"), ["Web/a.png", "Web/c.png", "x/y/Web/b.png"])
        self.lines("r.quorlin", "in")
        self.assertEqual(self.files("in"), ["Web/a.png", "a.png", "x/y/Web/b.png", "x/y/b.png"])

    def test_from(self):
        for name in ("a.png", "b\n.png", "c.png"):
            png(self.path(name))
        self.plain()
        self.path("list").write_bytes(b"a.png\r\n\nc.png")
        self.assertEqual(len(self.lines("--to", "1", "--from", "list", "r.quorlin")), 2)
        lines = self.lines("--to", "2", "-0", "--from", "-", "r.quorlin", "c.png", given=b"b\n.png\0c.png\0a.png")
        self.assertEqual(sorted(os.path.basename(line["output"]) for line in lines), ["a.png", "b-.png", "c.png"])

    def test_bytes_that_are_no_text(self):
        plain = png(self.path("a.png"))
        os.mkdir(os.fsencode(self.path("in")) + b"\xe9")
        os.rename(plain, os.fsencode(self.path("in")) + b"\xe9/caf\xe9.png")
        self.plain(name="{name}-{folder}", dates="keep")
        self.run_batch("--report", b"rep\xff", "--to", b"out\xe8", "--from", "-", "r.quorlin", given=b"in\xe9\n")
        with open(os.fsencode(self.path("rep")) + b"\xff", "rb") as file:
            report = file.read()
        self.assertIn(b"/out\\udce8/caf\\udce9-in\\udce9.png", report)
        lines = [json.loads(line) for line in report.decode().splitlines()]
        self.assertEqual(os.fsencode(lines[0]["output"]), os.fsencode(self.folder) + b"/out\xe8/caf\xe9-in\xe9.png")
        self.assertTrue(os.path.exists(lines[0]["output"]))
        self.assertEqual(lines[0]["status"], "OK")
        self.assertEqual(self.lines("--resume", b"rep\xff", "--to", b"out\xe8", "r.quorlin", b"in\xe9"), [])
        self.run_batch("r.quorlin", b"none\xff.png", status=1)
        self.assertIn("none\udcff.png", self.said)

    def test_dry_run_writes_nothing(self):
        png(self.path("a.png"), 30, 20)
        self.recipe({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}],
                     "outputs": [{"type": "jpeg", "folder": "new"}]})
        before = self.files(".")
        line = self.lines("--dry-run", "r.quorlin", "a.png")[0]
        self.assertEqual(self.files("."), before)
        self.assertFalse(self.path("new").exists())
        self.assertEqual((line["status"], line["type"], line["width"], line["height"]), ("Planned", "jpeg", 6, 4))
        self.assertEqual(line["output"], str(self.path("new/a.jpg")))

    def test_plan(self):
        png(self.path("in/a.png"))
        png(self.path("in/b.png"))
        self.path("in/c.png").write_text("no picture")
        self.plain(name="{counter:01}")
        self.run_batch("--dry-run", "--report", "plan", "--to", "out", "r.quorlin", "in", status=1)
        png(self.path("d.png"))
        png(self.path("out/02.png"))
        lines = self.by_input(self.lines("--plan", "plan", "--to", "elsewhere", "r.quorlin", "in/b.png", "in/c.png", "d.png",
                                         status=1))
        self.assertEqual({name: line["status"] for name, line in lines.items()},
                         {"b.png": "OK", "c.png": "Failed", "d.png": "Failed"})
        self.assertEqual(lines["b.png"]["output"], str(self.path("out/02 (2).png")))
        self.assertFalse(self.path("elsewhere").exists())

    def test_resume_adds_to_its_own_report(self):
        for name in "abc":
            png(self.path(f"in/{name}.png"))
        self.plain(name="{counter:1}")
        self.run_batch("--report", "report", "--to", "out", "r.quorlin", "in")
        whole = sorted(self.path("report").read_text().splitlines(True)[:3], key=lambda line: json.loads(line)["input"])
        # Cut off in the middle of its second line, joined with another one, and a result that somebody has lost.
        self.path("report").write_text(whole[0] + whole[2] + whole[1][:40])
        os.remove(self.path("out/2.png"))
        os.remove(self.path("out/3.png"))
        again = self.checked(self.run_batch("--report", "-", "--resume", "report", "--to", "out", "--dry-run",
                                            "r.quorlin", "in"))
        self.assertEqual([os.path.basename(line["output"]) for line in again], ["2.png", "3.png"])
        self.run_batch("--report", "report", "--resume", "./report", "--to", "out", "r.quorlin", "in")
        lines = self.path("report").read_text().splitlines(True)
        self.assertEqual(lines[:2], [whole[0], whole[2]])
        self.assertEqual(sorted(json.loads(line)["output"] for line in lines[3:5]),
                         [str(self.path("out/2.png")), str(self.path("out/3.png"))])
        self.assertEqual(len(lines), 6)
        self.assertEqual(self.files("out"), ["1.png", "2.png", "3.png"])
        self.run_batch("--report", "report", "--to", "out2", "r.quorlin", "in/a.png")
        self.assertEqual(len(self.path("report").read_text().splitlines()), 2)

    def test_resume_knows_the_recipe_and_the_size(self):
        png(self.path("a.png"))
        self.plain(name="1")
        self.run_batch("--report", "report", "r.quorlin", "a.png")
        with open(self.path("1.png"), "ab") as file:
            file.write(b"x")
        self.assertEqual(self.lines("--resume", "report", "r.quorlin", "a.png")[0]["output"], str(self.path("1 (2).png")))
        self.plain(name="2")
        self.assertEqual(len(self.lines("--resume", "report", "r.quorlin", "a.png")), 1)

    def test_shards(self):
        for i in range(30):
            png(self.path(f"in/{i % 5}/p{i % 7}.png"), shade=i)
        self.plain(name="{counter:1}-{name}")
        self.lines("--to", "whole", "r.quorlin", "in")
        done = []
        for shard in (1, 2, 3):
            done += [line["input"] for line in self.lines("--to", "parts", "--shard", f"{shard}/3", "r.quorlin", "in")]
        self.assertEqual(len(done), len(set(done)))
        self.assertEqual(self.files("parts"), self.files("whole"))
        for name in self.files("whole"):
            self.assertEqual((self.path("parts") / name).read_bytes(), (self.path("whole") / name).read_bytes())

    def test_shard_is_that_of_the_path_below_its_input(self):
        def part(path):
            number = 14695981039346656037
            for byte in path.encode():
                number = (number ^ byte) * 1099511628211 % 2**64
            return number % 4 + 1

        for i in range(8):
            png(self.path(f"in/x{i}/ä.png"))
        self.plain()
        for i in range(8):
            lines = self.lines("--dry-run", "--shard", f"{part(f'x{i}/ä.png')}/4", "r.quorlin", "in")
            self.assertIn(str(self.path(f"in/x{i}/ä.png")), [line["input"] for line in lines])
            self.assertEqual(len(self.lines("--dry-run", "--shard", f"{part('ä.png')}/4", "r.quorlin", f"in/x{i}/ä.png")), 1)

    def test_says_what_takes_long(self):
        png(self.path("in/a.png"))
        self.recipe({"quorlin": 1, "outputs": [{"name": "{camera}", "ifTaken": "replace"}]})
        self.run_batch("--shard", "1/2", "--from", "-", "--dry-run", "r.quorlin", given=b"in\n")
        self.assertIn("--plan saves that", self.said)
        self.assertIn("all inputs are read", self.said)

    def test_quiet(self):
        png(self.path("a.png"))
        self.plain()
        self.run_batch("--quiet", "r.quorlin", "a.png")
        self.assertEqual(self.said, "")
        self.run_batch("--quiet", "r.quorlin", "none.png", status=1)
        self.assertEqual(len(self.said.splitlines()), 1)

    def test_progress(self):
        png(self.path("a.png"))
        self.plain()
        self.run_batch("--progress", "auto", "r.quorlin", "a.png")
        self.assertNotIn("1 of 1", self.said)
        self.run_batch("--progress", "always", "r.quorlin", "a.png")
        self.assertIn("1 of 1, 0 s left, 0 failed", self.said)
        ours, theirs = pty.openpty()
        self.run_batch("r.quorlin", "a.png", stderr=theirs)
        self.assertIn(b"1 of 1", os.read(ours, 1000))
        self.run_batch("--progress", "never", "r.quorlin", "a.png", stderr=theirs)
        self.assertNotIn(b"1 of 1", os.read(ours, 1000))
        os.close(ours)
        os.close(theirs)

    def test_needs_no_home(self):
        png(self.path("a.png"))
        self.run_batch("--preset", "Resize/Web 1600", "a.png", env={"HOME": "/nonexistent"})
        self.assertEqual(self.files("Web"), ["a.jpg"])

    def test_current_knows_the_pictures_of_a_recipe(self):
        png(self.path("a.png"), 60, 40)
        png(self.path("logo.png"), 10, 10)
        self.recipe({"quorlin": 1, "operations": [{"do": "watermark", "picture": "logo.png"}],
                     "outputs": [{"folder": "out", "ifTaken": "current"}]})
        home = {"XDG_DATA_HOME": str(self.path("data"))}
        made = lambda: self.lines("r.quorlin", "a.png", env=home)[0]
        self.assertEqual([made()["status"], made()["status"]], ["OK", "Skipped"])
        png(self.path("logo.png"), 10, 10, shade=3)
        self.assertEqual(made()["output"], str(self.path("out/a (2).png")))
        self.assertEqual((made()["status"], made()["output"]), ("Skipped", str(self.path("out/a (2).png"))))

    def test_nothing_is_current_without_a_data_folder(self):
        png(self.path("a.png"), 60, 40)
        self.recipe({"quorlin": 1, "operations": [{"do": "turn", "degrees": 90}],
                     "outputs": [{"folder": "out", "ifTaken": "current"}]})
        self.assertEqual([self.lines("r.quorlin", "a.png")[0]["status"] for _time in range(2)], ["OK", "OK"])
        self.assertEqual(self.files("out"), ["a (2).png", "a.png"])

    def test_long_names(self):
        png(self.path("in") / ("é" * 125 + ".png"))
        self.plain(name="{name}-{name}", folder="{name}{name}")
        planned = self.lines("--dry-run", "r.quorlin", "in")[0]
        made = self.lines("r.quorlin", "in")[0]
        self.assertEqual((made["status"], made["output"]), ("OK", planned["output"]))
        self.assertEqual(os.path.basename(made["output"]), "é" * 125 + "-.png")  # 255 bytes

    def test_never_a_picture_that_is_named_later(self):
        a = png(self.path("a.png"), 30, 20)
        b = png(self.path("b.png"), 30, 20)
        self.recipe({"quorlin": 1, "operations": [{"do": "turn", "degrees": 180}],
                     "outputs": [{"name": "b", "ifTaken": "replace"}]})
        before = b.read_bytes()
        lines = self.by_input(self.lines("--from", "-", "r.quorlin", given=b"a.png\nb.png\n"))
        self.assertEqual(lines["a.png"]["output"], str(self.path("b (2).png")))
        self.assertEqual(lines["b.png"]["output"], str(b))
        self.assertNotEqual(b.read_bytes(), before)
        self.assertTrue(a.exists())


if __name__ == "__main__":
    batch_world.main()
