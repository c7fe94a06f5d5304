#!/usr/bin/env python3
"""test_plans.py PROGRAM PICTURES: what a dry run says of a picture is what the run after it makes, for files of all kinds.

Every line agrees in all that a plan knows, and the file is what its line says. Only damage that decoding shows may be missing
from a plan: those pictures are listed, and fail with a sentence.
"""
import json
import os
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

import batch_world
from batch_world import BatchTest, png

PICTURES = Path(sys.argv.pop(2) if len(sys.argv) > 2 else "").resolve()
FOLDERS = [name for name in ("formats", "broken", "found", "orientation") if (PICTURES / name).is_dir()]
SAME = ("output", "type", "width", "height", "lossless", "losses", "reason")
# The words of exiftool for each type.
KINDS = {"jpeg": ("JPEG",), "png": ("PNG", "APNG"), "tiff": ("TIFF", "DNG", "BTF"), "bmp": ("BMP",), "gif": ("GIF",), "jp2": ("JP2",),
         "pdf": ("PDF",), "webp": ("WEBP", "Extended WEBP"), "avif": ("AVIF",), "jxl": ("JXL", "JXL Codestream")}
ALL_THAT_NAMES_HOLD = "{name}-{width}x{height}-{type}-{size}-{orientation}-{taken:yyyy}-{camera}-{counter:01}"


def each_type(words, **more):
    return [{"type": word, "folder": word, **more} for word in words.split()]


RECIPES = {
    "unchanged": ([], [{"name": ALL_THAT_NAMES_HOLD}, {"metadata": "none", "folder": "none"}, {"dpi": 200, "folder": "dpi"},
                       {"metadata": "copyright", "location": False, "folder": "lean"}, {"location": False, "folder": "placeless"}]),
    "turned": ([{"do": "turn", "degrees": 90}],
               [{"name": ALL_THAT_NAMES_HOLD}, {"folder": "bytes", "maxBytes": 1_000_000_000}, *each_type("jpeg pdf tiff gif")]),
    "types": ([], each_type("jpeg png tiff bmp gif jp2 pdf webp")),
    "small": ([{"do": "resize", "longest": 7}, {"do": "frame", "width": 1, "unit": "mm"}],
              each_type("original jpeg png tiff gif webp jp2 jxl avif", name="{width}-{height}-{name}")),
    "cut": ([{"do": "crop", "ratio": "5:4", "position": "attention"}, {"do": "turn", "degrees": 7},
             {"do": "resize", "width": 30, "unit": "mm", "dpi": 100}], each_type("original jpeg png")),
    "filled": ([{"do": "resize", "box": [60, 40], "fit": "fill", "enlarge": True}, {"do": "profile", "to": "gray"}],
               each_type("png jpeg gif", profile="Display P3")),
    "cut away": ([{"do": "crop", "width": 100, "height": 100, "position": "top left", "offset": [30, 20]}],
                 each_type("png jpeg", name="{width}x{height}-{name}")),
}


def tags_of(paths):
    """What exiftool reads of each file; nothing where it is not installed."""
    tags = {}
    for first in range(0, len(paths) if shutil.which("exiftool") else 0, 100):
        said = subprocess.run(["exiftool", "-j", "-n", "-FileType", "-ImageWidth", "-ImageHeight", "-Orientation", "-Rotation",
                               *paths[first:first + 100]], capture_output=True, check=False, timeout=600).stdout
        tags.update((each["SourceFile"], each) for each in json.loads(said))
    return tags


class Plans(BatchTest):
    def test_files_are_what_plans_say(self):
        for name, (operations, outputs) in RECIPES.items():
            with self.subTest(recipe=name):
                self.recipe({"quorlin": 1, "operations": operations, "outputs": outputs})
                planned, made = self.report("plan", name, "--dry-run"), self.report("made", name)
                self.assertEqual(planned.keys(), made.keys())
                self.assertGreater(sum(line["status"] == "OK" for line in made.values()), 10)
                for key, line in made.items():
                    self.compare(planned[key], line)
                self.check_files([line for line in made.values() if line["status"] == "OK"])
                shutil.rmtree(self.path(name))

    @unittest.skipUnless((PICTURES / "orientation").is_dir(), "there are no turned pictures")
    def test_what_is_not_encoded_again_looks_the_same(self):
        """However little metadata is kept: pixels that stay on their side need to be shown upright."""
        self.recipe({"quorlin": 1, "outputs": [{"metadata": "none", "folder": "none"}, {"metadata": "copyright", "folder": "lean"},
                                               {"dpi": 99, "folder": "dpi"}, {"location": False, "folder": "placeless"}]})
        made = [line for line in self.lines("--to", "made", "r.quorlin", str(PICTURES / "orientation"), status=1) if line["lossless"]]
        self.assertGreater(len(made), 20)
        self.recipe({"quorlin": 1, "outputs": [{"type": "bmp", "name": "{folder}-{name}"}]})
        drawn = self.lines("--to", "drawn", "r.quorlin", *(line["output"] for line in made))
        before = self.lines("--to", "before", "r.quorlin", *{line["input"] for line in made})
        pixels = {line["input"]: Path(line["output"]).read_bytes() for line in drawn + before}
        for line in made:
            one, other = pixels[line["output"]], pixels[line["input"]]
            self.assertEqual(one[18:26], other[18:26], line["output"])  # width and height
            # A JPEG turned without loss is decoded along other rows, which rounds in another way.
            self.assertLessEqual(max(abs(a - b) for a, b in zip(one[54:], other[54:])), 4, line["output"])

    @unittest.skipUnless((PICTURES / "formats/jpeg-in-tiff.tif").exists(), "there is no JPEG in a TIFF")
    def test_a_plan_knows_that_nobody_decodes_the_pixels(self):
        """A lossless JPEG in a TIFF: its header tells, and a copy is made of it all the same."""
        data = (PICTURES / "formats/jpeg-in-tiff.tif").read_bytes()
        lossless = data.replace(b"\xff\xc0\x00\x11", b"\xff\xc3\x00\x11")
        self.assertNotEqual(lossless, data)
        self.path("lossless.tif").write_bytes(lossless)
        self.path("usual.tif").write_bytes(data)
        self.recipe({"quorlin": 1, "outputs": [{}, {"type": "png"}]})
        for flags in ["--dry-run"], []:
            lines = self.lines("--to", "out", *flags, "r.quorlin", "lossless.tif", "usual.tif", status=1)
            said = {(Path(line["input"]).stem, line["index"]): line for line in lines}
            made = "Planned" if flags else "OK"
            self.assertEqual({key: line["status"] for key, line in said.items()},
                             {("lossless", 0): made, ("lossless", 1): "Failed", ("usual", 0): made, ("usual", 1): made})
            self.assertEqual(said["lossless", 1]["reason"], "Its pixels are compressed in a way that is not supported")

    def test_a_plan_knows_how_long_a_side_can_be(self):
        """Of each type the longest picture is made and opens again, and the next one is refused before it is encoded."""
        longest = {"webp": 16383, "avif": 16384, "jpeg": 65500, "gif": 65535}
        self.recipe({"quorlin": 1, "outputs": [{"type": word} for word in longest]})
        sides = {each + more for each in longest.values() for more in (0, 1)}
        for side in sides:
            png(self.path(f"in/{side}.png"), *((side, 1) if side % 2 else (1, side)))
        for flags in ["--dry-run"], []:
            for line in self.lines("--to", "out", *flags, "r.quorlin", "in", status=1):
                side, most = int(Path(line["input"]).stem), longest[line["type"]]
                self.assertEqual(line["status"], "Failed" if side > most else "Planned" if flags else "OK", line)
                if side > most:
                    self.assertRegex(line["reason"], f" files can have at most {most} pixels on a side, not {side}$")
        self.recipe({"quorlin": 1, "outputs": [{"type": "png"}]})
        made = {max(line["width"], line["height"]) for line in self.lines("--to", "again", "r.quorlin", "out")}
        self.assertEqual(made, {side for side in sides if side <= max(longest.values())})

    def report(self, report, to, *flags):
        pictures = [self.with_bytes_between_segments(), *(str(PICTURES / folder) for folder in FOLDERS)]
        with self.start("--quiet", "--report", report, "--to", to, *flags, "r.quorlin", *pictures) as run:
            run.communicate(timeout=1500)
        lines = [json.loads(line) for line in self.path(report).read_text().splitlines()][:-1]
        return {(line["input"], line["index"]): line for line in lines}

    def with_bytes_between_segments(self):
        """A JPEG that can be read, but not turned without decoding it."""
        plain = (PICTURES / "formats/photo.jpg")
        plain = plain if plain.exists() else next((PICTURES / FOLDERS[0]).glob("*.jpg"))
        data = plain.read_bytes()
        end = 4 + int.from_bytes(data[4:6], "big")
        self.path("odd.jpg").write_bytes(data[:end] + b"\0\1\2" + data[end:])
        return "odd.jpg"

    def compare(self, plan, line):
        if (plan["status"], line["status"]) == ("Planned", "Failed"):
            print(f"{os.path.relpath(line['input'], PICTURES)}[{line['index']}]: {line['reason']}")
            self.assertRegex(line["reason"], "^Cannot read ")
            return
        self.assertEqual({key: plan[key] for key in SAME}, {key: line[key] for key in SAME}, line["input"])
        self.assertEqual(plan["status"].replace("Planned", "OK"), line["status"])

    def check_files(self, lines):
        for line in lines:
            self.assertEqual(os.path.getsize(line["output"]), line["bytes"])
        tags = tags_of([line["output"] for line in lines])
        for line in lines if tags else []:
            tag = tags[line["output"]]
            if "FileType" not in tag and line["lossless"]:
                continue  # a copy of a file that exiftool cannot read
            self.assertIn(tag["FileType"], KINDS[line["type"]], line["output"])
            if line["type"] == "pdf":
                continue
            # AVIF turns by a property of its own, in degrees, and does not heed the orientation beside it.
            is_on_its_side = tag.get("Rotation") in (90, 270) if line["type"] == "avif" else tag.get("Orientation", 1) in (5, 6, 7, 8)
            size = (line["width"], line["height"])
            self.assertEqual((tag["ImageWidth"], tag["ImageHeight"]), size[::-1] if is_on_its_side else size, line["output"])


if __name__ == "__main__":
    if not FOLDERS:
        print("there are no pictures")
        sys.exit(77)
    batch_world.main()
