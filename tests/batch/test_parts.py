#!/usr/bin/env python3
"""test_parts.py PROGRAM PICTURE: parts beside a picture stay while the file does; otherwise they are dropped together
with what announces them, and the report names them. A picture's own statements cannot lead a result out of its folder.

PICTURE is a JPEG.
"""
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

import batch_world
from batch_world import BatchTest

PICTURE = Path(sys.argv.pop(2)).resolve()
XMP = (b'http://ns.adobe.com/xap/1.0/\0<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">'
       b'<rdf:Description rdf:about="" xmlns:hdrgm="http://ns.adobe.com/hdr-gain-map/1.0/" '
       b'xmlns:GCamera="http://ns.google.com/photos/1.0/camera/" xmlns:xmp="http://ns.adobe.com/xap/1.0/" hdrgm:Version="1.0" '
       b'GCamera:MotionPhoto="1" xmp:Rating="4"/></rdf:RDF></x:xmpmeta>')
ANNOUNCED = (b"hdrgm:Version", b"MotionPhoto", b"MPF\0", b"JP\0\1", b"behind it")
NAMED = ("Only the first picture", "gain map", "motion picture", "Signed content credentials")


def segment(marker, payload):
    return bytes((0xff, marker)) + (len(payload) + 2).to_bytes(2, "big") + payload


class Parts(BatchTest):
    def setUp(self):
        super().setUp()
        plain = PICTURE.read_bytes()
        beside = segment(0xe1, XMP) + segment(0xe2, b"MPF\0II*\0\x08\0\0\0\0\0") + segment(0xeb, b"JP\0\1\0\0\0\1")
        self.path("in").mkdir()
        self.path("in/a.jpg").write_bytes(plain[:2] + beside + plain[2:] + plain + b"behind it")

    def outputs(self, *outputs, **options):
        self.recipe({"quorlin": 1, "outputs": list(outputs)})
        return self.lines("r.quorlin", "in/a.jpg", **options)

    def test_stay_with_the_file(self):
        line, = self.outputs({"folder": "same"})
        self.assertEqual(line["losses"], [])
        self.assertEqual(Path(line["output"]).read_bytes(), self.path("in/a.jpg").read_bytes())

    def test_go_together_and_are_named(self):
        smaller = [{"do": "resize", "longest": 20}]
        lines = self.outputs({"folder": "lean", "metadata": "copyright"}, {"folder": "again", "type": "jpeg", "quality": 80},
                             {"folder": "p", "type": "png", "operations": smaller}, {"folder": "t", "type": "tiff"},
                             {"folder": "w", "type": "webp"}, {"folder": "a", "type": "avif"}, {"folder": "x", "type": "jxl"})
        for line in lines:
            with self.subTest(output=line["output"]):
                self.assertEqual(line["status"], "OK")
                for words in NAMED:
                    self.assertIn(words, " ".join(line["losses"]))
                result = Path(line["output"]).read_bytes()
                for bytes_ in ANNOUNCED:
                    self.assertFalse(bytes_ in result, bytes_)
                if line["type"] in ("jpeg", "png", "tiff", "webp", "avif") and line["index"] > 0:
                    self.assertTrue(b"Rating" in result)

    def test_are_named_in_the_plan(self):
        self.recipe({"quorlin": 1, "outputs": [{"type": "webp"}]})
        line, = self.lines("--dry-run", "r.quorlin", "in/a.jpg")
        for words in NAMED:
            self.assertIn(words, " ".join(line["losses"]))

    @unittest.skipIf(shutil.which("exiftool") is None, "no exiftool")
    def test_no_value_leads_out_of_the_folder(self):
        subprocess.run(["exiftool", "-q", "-overwrite_original", "-Make=", "-Model=../../up/x", "-LensModel=..", self.path("in/a.jpg")],
                       check=True, timeout=100)
        lines = self.outputs({"folder": "{camera}"}, {"folder": "{lens}/x"}, {"folder": "a/{lens}"}, {"name": "{lens}"}, {"name": "{camera}"})
        for line in lines:
            self.assertEqual(line["status"], "OK")
            path = Path(line["output"])
            self.assertNotIn("..", path.parts)
            self.assertTrue(path.resolve().is_relative_to(self.path("in").resolve()), path)
        self.assertEqual({Path(name).parts[0] for name in self.files(".")} & {"up", "x"}, set())


if __name__ == "__main__":
    batch_world.main()
