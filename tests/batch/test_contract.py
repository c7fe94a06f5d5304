#!/usr/bin/env python3
"""test_contract.py PROGRAM: what others rely on when they write recipes, sentence by sentence: sizes, names, types and places.

Pixels are looked at in BMP, which this test reads itself.
"""
import json
import os
import re
import struct
import time
import unittest
import zlib

import batch_world
from batch_world import BatchTest, png

EXTENSIONS = {"jpeg": "jpg", "png": "png", "tiff": "tiff", "bmp": "bmp", "gif": "gif", "jp2": "jp2", "pdf": "pdf", "webp": "webp",
              "avif": "avif", "jxl": "jxl"}


class Bmp:
    """The pixels of a BMP of 24 or 32 bits."""

    def __init__(self, path):
        with open(path, "rb") as file:
            data = file.read()
        start, = struct.unpack_from("<I", data, 10)
        self.width, self.height, _, bits = struct.unpack_from("<iiHH", data, 18)
        step = bits // 8
        row = (self.width * step + 3) // 4 * 4
        self.rows = []
        for y in range(abs(self.height)):
            line = data[start + y * row:]
            self.rows.append([tuple(line[x * step:x * step + 3][::-1]) for x in range(self.width)])
        if self.height > 0:
            self.rows.reverse()
        self.height = abs(self.height)

    def at(self, x, y):
        return self.rows[y][x]


def with_chunks(path, *chunks):
    """Puts chunks behind the header of a PNG."""
    data = path.read_bytes()
    between = b"".join(struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body)) for kind, body in chunks)
    path.write_bytes(data[:33] + between + data[33:])
    return path


def with_dpi(path, dpi):
    return with_chunks(path, (b"pHYs", struct.pack(">IIB", round(dpi / 0.0254), round(dpi / 0.0254), 1)))


def flat_png(path, width, height, color):
    """A picture of one colour; with transparency if it has four values."""
    row = b"\0" + bytes(color) * width
    chunk = lambda name, data: struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6 if len(color) == 4 else 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(row * height, 1)) + chunk(b"IEND", b""))
    return path


class ContractTest(BatchTest):
    runs = 0

    def made(self, operations=(), source="a.png", status=0, options=(), **output):
        """The line of the only output of one picture, in a folder that nothing else is in."""
        ContractTest.runs += 1
        self.recipe({"quorlin": 1, "operations": list(operations), "outputs": [{"type": "bmp", **output}]})
        line, = self.lines("--jobs", "1", "--to", f"out{ContractTest.runs}", *options, "r.quorlin", source, status=status)
        return line

    def size(self, *operations, **more):
        line = self.made(operations, **more)
        self.assertEqual(line["status"], "OK", line["reason"])
        return line["width"], line["height"]

    def pixels(self, *operations, **more):
        return Bmp(self.made(operations, **more)["output"])

    def name(self, pattern, **more):
        return os.path.basename(self.made(name=pattern, **more)["output"])


class Resizing(ContractTest):
    def test_each_way(self):
        png(self.path("a.png"), 300, 200)
        for keys, expected in (
                ({"width": 150}, (150, 100)), ({"height": 50}, (75, 50)), ({"longest": 30}, (30, 20)), ({"shortest": 100}, (150, 100)),
                ({"percent": 50}, (150, 100)), ({"percent": 12.5}, (37, 25)), ({"megapixels": 0.015}, (150, 100)),
                ({"box": [90, 90]}, (90, 60)), ({"box": [90, 90], "fit": "inside"}, (90, 60)), ({"box": [90, 90], "fit": "fill"}, (90, 90)),
                ({"box": [90, 80], "fit": "stretch"}, (90, 80)), ({"box": [90, 90], "fit": "pad"}, (90, 90)), ({"width": 1}, (1, 1))):
            self.assertEqual(self.size({"do": "resize", **keys}), expected, keys)

    def test_enlarging_is_asked_for(self):
        png(self.path("a.png"), 30, 20)
        for keys, without, with_it in (
                ({"width": 60}, (30, 20), (60, 40)), ({"height": 60}, (30, 20), (90, 60)), ({"longest": 60}, (30, 20), (60, 40)),
                ({"shortest": 60}, (30, 20), (90, 60)), ({"percent": 200}, (30, 20), (60, 40)), ({"megapixels": 0.06}, (30, 20), (300, 200)),
                ({"box": [60, 60]}, (30, 20), (60, 40)), ({"box": [60, 60], "fit": "pad"}, (60, 60), (60, 60)),
                ({"box": [60, 10], "fit": "fill"}, (30, 10), (60, 10)), ({"box": [60, 60], "fit": "fill"}, (30, 20), (60, 60)),
                ({"box": [60, 10], "fit": "stretch"}, (30, 10), (60, 10)), ({"box": [15, 60], "fit": "stretch"}, (15, 20), (15, 60))):
            self.assertEqual(self.size({"do": "resize", **keys}), without, keys)
            self.assertEqual(self.size({"do": "resize", **keys, "enlarge": True}), with_it, keys)

    def test_no_side_is_less_than_a_pixel(self):
        png(self.path("a.png"), 300, 2)
        self.assertEqual(self.size({"do": "resize", "longest": 20}), (20, 1))
        self.assertEqual(self.size({"do": "resize", "percent": 0.01}), (1, 1))
        self.assertEqual(self.size({"do": "resize", "megapixels": 0.000001}), (12, 1))

    def test_lengths_in_units(self):
        with_dpi(png(self.path("a.png"), 600, 400), 254)
        for unit, length in (("mm", 10), ("cm", 1), ("in", 1 / 2.54), ("pt", 72 / 2.54), ("pica", 6 / 2.54)):
            self.assertEqual(self.size({"do": "resize", "width": length, "unit": unit})[0], 100, unit)
        self.assertEqual(self.size({"do": "resize", "width": 12.7, "unit": "mm", "dpi": 127}), (64, 42))
        self.assertEqual(self.size({"do": "resize", "width": 12.7, "unit": "mm", "dpi": 127}, {"do": "crop", "width": 0.2, "height": 0.2, "unit": "in"}), (25, 25))
        self.assertEqual(self.size({"do": "resize", "width": 300}, {"do": "crop", "width": 1, "height": 1, "unit": "cm"}), (100, 100))

    def test_padding_has_its_colour(self):
        flat_png(self.path("a.png"), 10, 10, (1, 2, 3))
        plain = self.pixels({"do": "resize", "box": [30, 10], "fit": "pad"})
        self.assertEqual((plain.at(0, 5), plain.at(15, 5), plain.at(29, 5)), ((255, 255, 255), (1, 2, 3), (255, 255, 255)))
        right = self.pixels({"do": "resize", "box": [30, 20], "fit": "pad", "color": "#102030", "position": "bottom right"})
        self.assertEqual((right.at(0, 0), right.at(19, 19), right.at(20, 10), right.at(29, 19), right.at(29, 9)),
                         ((16, 32, 48), (16, 32, 48), (1, 2, 3), (1, 2, 3), (16, 32, 48)))


class Cropping(ContractTest):
    def setUp(self):
        super().setUp()
        png(self.path("a.png"), 90, 60)
        png(self.path("high.png"), 60, 90)

    def test_sizes(self):
        for keys, expected in (
                ({"width": 30, "height": 20}, (30, 20)), ({"ratio": "1:1"}, (60, 60)), ({"ratio": "3:1"}, (90, 30)), ({"ratio": "1:3"}, (90, 30)),
                ({"ratio": "1:3", "turn": False}, (20, 60)), ({"percent": 0}, (90, 60)), ({"percent": 50}, (45, 30)),
                ({"width": 200, "height": 20}, (90, 20)), ({"width": 80, "height": 50, "position": "top left", "offset": [20, 20]}, (70, 40)),
                ({"width": 80, "height": 50, "position": "bottom right", "offset": [20, -20]}, (60, 40))):
            self.assertEqual(self.size({"do": "crop", **keys}), expected, keys)
        self.assertEqual(self.size({"do": "crop", "ratio": "3:1"}, source="high.png"), (30, 90))
        self.assertEqual(self.size({"do": "crop", "ratio": "3:1", "turn": False}, source="high.png"), (60, 20))

    def test_positions(self):
        whole = self.pixels()
        for position, x, y in (("top left", 0, 0), ("top", 30, 0), ("top right", 60, 0), ("left", 0, 20), ("center", 30, 20), ("right", 60, 20),
                               ("bottom left", 0, 40), ("bottom", 30, 40), ("bottom right", 60, 40)):
            part = self.pixels({"do": "crop", "width": 30, "height": 20, "position": position})
            self.assertEqual((part.at(0, 0), part.at(29, 19)), (whole.at(x, y), whole.at(x + 29, y + 19)), position)
        self.assertEqual(self.pixels({"do": "crop", "width": 30, "height": 20}).at(0, 0), whole.at(30, 20))
        moved = self.pixels({"do": "crop", "width": 30, "height": 20, "offset": [5, -7]})
        self.assertEqual(moved.at(0, 0), whole.at(35, 13))

    def test_nothing_that_is_left(self):
        line = self.made([{"do": "crop", "width": 10, "height": 10, "position": "top left", "offset": [90, 0]}], status=1)
        self.assertEqual(line["status"], "Failed")
        self.size({"do": "crop", "width": 10, "height": 10, "position": "top left", "offset": [89, 0]})


class OtherOperations(ContractTest):
    def setUp(self):
        super().setUp()
        png(self.path("a.png"), 40, 30)
        self.whole = self.pixels()

    def test_turns_and_flips(self):
        turned = self.pixels({"do": "turn", "degrees": 90})
        self.assertEqual((turned.width, turned.height, turned.at(29, 0)), (30, 40, self.whole.at(0, 0)))
        for degrees, size in ((-90, (30, 40)), (270, (30, 40)), (-360, (40, 30)), (360, (40, 30)), (0, (40, 30)), (180, (40, 30))):
            self.assertEqual(self.size({"do": "turn", "degrees": degrees}), size)
        self.assertEqual(self.pixels({"do": "flip", "direction": "horizontal"}).at(39, 3), self.whole.at(0, 3))
        self.assertEqual(self.pixels({"do": "flip", "direction": "vertical"}).at(3, 29), self.whole.at(3, 0))

    def test_other_angles_enlarge_the_canvas(self):
        flat_png(self.path("a.png"), 40, 40, (9, 9, 9))
        white = self.pixels({"do": "turn", "degrees": 45})
        self.assertEqual((white.width in (56, 57, 58), white.at(0, 0), white.at(28, 28)), (True, (255, 255, 255), (9, 9, 9)))
        self.assertEqual(self.pixels({"do": "turn", "degrees": 45}, matte="#0000ff").at(0, 0), (0, 0, 255))
        self.assertEqual(self.pixels({"do": "turn", "degrees": 45, "color": "#00ff00"}, matte="#0000ff").at(0, 0), (0, 255, 0))

    def test_turns_are_clockwise(self):
        flat_png(self.path("a.png"), 100, 4, (0, 0, 0))
        drawn = self.pixels({"do": "turn", "degrees": 30})
        self.assertEqual((drawn.at(3, 3), drawn.at(drawn.width - 4, drawn.height - 4)), ((0, 0, 0), (0, 0, 0)))
        self.assertEqual((drawn.at(drawn.width - 4, 3), drawn.at(3, drawn.height - 4)), ((255,) * 3,) * 2)

    def test_rounding(self):
        flat_png(self.path("a.png"), 40, 30, (9, 9, 9))
        corner = self.pixels({"do": "round", "radius": 10})
        self.assertEqual((corner.width, corner.height, corner.at(0, 0), corner.at(0, 15), corner.at(20, 15)), (40, 30, (255,) * 3, (9,) * 3, (9,) * 3))
        self.assertEqual(self.size({"do": "round", "shape": "circle"}), (30, 30))
        self.assertEqual(self.size({"do": "round", "shape": "ellipse"}), (40, 30))
        band = self.pixels({"do": "round", "radius": 0, "band": {"width": 3, "color": "#ff0000"}})
        self.assertEqual((band.width, band.at(0, 0), band.at(2, 15), band.at(3, 15)), (40, (255, 0, 0), (255, 0, 0), (9, 9, 9)))
        self.assertEqual(self.pixels({"do": "round", "shape": "ellipse", "color": "#0000ff"}).at(0, 0), (0, 0, 255))

    def test_backgrounds(self):
        flat_png(self.path("a.png"), 10, 10, (9, 9, 9, 0))
        flat_png(self.path("p.png"), 3, 3, (7, 8, 9))
        self.assertEqual(self.pixels().at(5, 5), (255, 255, 255))
        self.assertEqual(self.pixels(matte="#010203").at(5, 5), (1, 2, 3))
        self.assertEqual(self.pixels({"do": "background", "color": "#aabbcc"}).at(5, 5), (170, 187, 204))
        self.assertEqual(self.pixels({"do": "background", "pattern": "p.png"}).at(9, 9), (7, 8, 9))
        os.makedirs(self.path("deep/er"))
        flat_png(self.path("deep/p.png"), 3, 3, (3, 2, 1))
        self.recipe({"quorlin": 1, "operations": [{"do": "background", "pattern": "../p.png"}], "outputs": [{"type": "bmp"}]}, "deep/er/r.quorlin")
        line, = self.lines("--to", "deeper", "deep/er/r.quorlin", "a.png")
        self.assertEqual(Bmp(line["output"]).at(0, 0), (3, 2, 1))

    def test_a_pattern_is_repeated_from_the_top_left(self):
        flat_png(self.path("a.png"), 10, 10, (9, 9, 9, 0))
        png(self.path("p.png"), 4, 3)
        pattern, drawn = self.pixels(source="p.png"), self.pixels({"do": "background", "pattern": "p.png"})
        for x, y in ((0, 0), (3, 2), (4, 3), (9, 9)):
            self.assertEqual(drawn.at(x, y), pattern.at(x % 4, y % 3))

    def test_frames(self):
        framed = self.pixels({"do": "frame", "width": 5, "color": "#102030"})
        self.assertEqual((framed.width, framed.height, framed.at(4, 4), framed.at(5, 5)), (50, 40, (16, 32, 48), self.whole.at(0, 0)))
        self.assertEqual(self.pixels({"do": "frame", "width": 1}).at(0, 0), (255, 255, 255))

    def test_what_is_off_is_left_out(self):
        self.assertEqual(self.size({"do": "frame", "width": 5, "off": True}), (40, 30))

    def test_watermarks(self):
        flat_png(self.path("a.png"), 200, 100, (0, 0, 0))
        flat_png(self.path("m.png"), 10, 10, (255, 255, 255))
        marked = self.pixels({"do": "watermark", "picture": "m.png", "opacity": 100})
        white = [(x, y) for y in range(100) for x in range(200) if marked.at(x, y) == (255, 255, 255)]
        self.assertEqual((white[0], white[-1]), ((158, 58), (197, 97)))  # 40 x 40 pixels, 2 away from the edges
        half = self.pixels({"do": "watermark", "picture": "m.png", "position": "top left", "margin": 0, "size": 50, "opacity": 50})
        self.assertIn(half.at(0, 0)[0], (127, 128))
        self.assertEqual(half.at(101, 50), (0, 0, 0))
        tiled = self.pixels({"do": "watermark", "picture": "m.png", "tile": True, "opacity": 100})
        self.assertGreater(sum(row.count((255, 255, 255)) for row in tiled.rows), 4 * 1600)
        text = self.pixels({"do": "watermark", "text": "H\nH", "size": 20})
        ink = [(x, y) for y in range(100) for x in range(200) if text.at(x, y) != (0, 0, 0)]
        self.assertTrue(ink and min(x for x, y in ink) > 100 and min(y for x, y in ink) > 40, ink[:1])
        self.assertLessEqual(max(max(text.at(x, y)) for x, y in ink), 180)  # 70 of 100

    def test_what_cannot_be_made_is_not_planned(self):
        """A mark or frame that is too large: the plan says what the run says, and nothing is written."""
        large = {"do": "resize", "width": 4000, "enlarge": True}
        png(self.path("m.png"), 1, 3000)
        png(self.path(f"{'long ' * 40}.png"))
        text = "The text is too large to be drawn"
        for name, operations, reason in (
                ("a.png", [large, {"do": "watermark", "text": "W" * 40, "size": 60}], text),
                ("a.png", [large, {"do": "watermark", "text": "W\n" * 40, "size": 60, "opacity": 1}], text),
                ("a.png", [{"do": "watermark", "text": "W" * 10001, "size": 1}], text),
                (f"{'long ' * 40}.png", [large, {"do": "watermark", "text": "{name}", "size": 100}], text),
                ("a.png", [large, {"do": "watermark", "text": "W" * 14, "size": 70, "angle": 45}], "cannot be made"),
                ("a.png", [large, {"do": "watermark", "picture": "m.png", "size": 100}], "4000 × 12000000 pixels cannot be made"),
                ("a.png", [{"do": "frame", "width": 100000}], "200040 × 200030 pixels cannot be made")):
            for outputs in ([{"type": "png"}], [{"type": "png", "operations": operations}]):
                own = operations if "operations" not in outputs[0] else []
                self.recipe({"quorlin": 1, "operations": own, "outputs": outputs})
                with self.subTest(operations=str(operations)[:99]):
                    planned = self.lines("--dry-run", "--to", "out", "r.quorlin", name, status=1)
                    made = self.lines("--to", "out", "r.quorlin", name, status=1)
                    self.assertIn(reason, planned[0]["reason"])
                    self.assertEqual(planned[0]["reason"], made[0]["reason"])
                    self.assertFalse(self.path("out").exists())
        self.made([large, {"do": "watermark", "text": "W" * 9, "size": 60}])
        self.made([large, {"do": "watermark", "text": "{camera}" * 9, "size": 100}])  # of which nothing is left
        self.made([large, {"do": "watermark", "text": "W" * 40, "size": 60, "off": True}])


class Outputs(ContractTest):
    def setUp(self):
        super().setUp()
        png(self.path("a.png"), 60, 40)

    def test_types_and_their_extensions(self):
        for kind, extension in EXTENSIONS.items():
            line = self.made(type=kind)
            self.assertEqual((line["type"], os.path.basename(line["output"])), (kind, f"a.{extension}"))
        os.rename(self.path("a.png"), self.path("a.JPEG"))
        self.assertEqual(os.path.basename(self.made(source="a.JPEG", type="original")["output"]), "a.png")

    def test_qualities_that_a_type_lacks(self):
        for kind in EXTENSIONS:
            for key, value, kinds in (("quality", 50, ("jpeg", "webp", "avif", "jxl", "jp2")), ("lossless", True, ("webp", "jxl", "jp2"))):
                self.recipe({"quorlin": 1, "outputs": [{"type": kind, key: value}]})
                self.run_batch("--dry-run", "r.quorlin", "a.png", status=0 if kind in kinds else 2)
        for key, value in (("quality", 50), ("lossless", True)):
            self.assertEqual(self.made(type="original", **{key: value})["status"], "OK")

    def test_bytes_at_most(self):
        png(self.path("a.png"), 400, 300)
        large = self.made(type="jpeg", quality=95)["bytes"]
        small = self.made(type="jpeg", quality=95, maxBytes=large - 1)
        self.assertTrue(large * 0.5 < small["bytes"] < large)
        self.assertEqual(self.made(type="jpeg", quality=95, maxBytes=large)["bytes"], large)
        self.assertEqual(self.made(type="jpeg", maxBytes=500, status=1)["status"], "Failed")
        self.assertEqual(self.made(type="bmp", maxBytes=500, status=1)["status"], "Failed")

    def test_names(self):
        for pattern, expected in (
                ("{name}", "a"), ("{name}.{extension}", "a.png"), ("{folder}", self.folder.name), ("{counter:001}", "001"), ("{counter:7}", "7"),
                ("{width}x{height}", "60x40"), ("{{name}", "{name}"), ("{camera}", "unknown"), ("{taken}", "undated"), ("{lens}", "unknown"),
                ("{type}", "PNG"), ("{orientation}", "Landscape")):
            self.assertEqual(self.name(pattern), expected + ".bmp", pattern)
        self.assertRegex(self.name("{changed:yyyy}"), r"^20\d\d\.bmp$")
        self.assertEqual(os.path.basename(self.made([{"do": "turn", "degrees": 90}], name="{width}x{height}")["output"]), "40x60.bmp")

    def test_month_names_are_english(self):
        os.utime(self.path("a.png"), (1_772_000_000, 1_772_000_000))  # in February
        self.recipe({"quorlin": 1, "outputs": [{"type": "bmp", "name": "{changed:dd MMM, EEE}"}]})
        for language in ("de_DE.UTF-8", "tr_TR.UTF-8", "C", "xx"):
            line, = self.lines("--dry-run", "r.quorlin", "a.png", env={"LC_ALL": language, "LANG": language, "LANGUAGE": language})
            self.assertEqual(os.path.basename(line["output"]), "25 Feb, Wed.bmp")

    def test_folders(self):
        line = self.made(folder="x/{type}/{counter:1}")
        self.assertTrue(line["output"].endswith("/x/PNG/1/a.bmp"), line["output"])
        line = self.made(folder=str(self.path("else/where")))
        self.assertEqual(line["output"], str(self.path("else/where/a.bmp")))
        self.recipe({"quorlin": 1, "outputs": [{"type": "bmp", "folder": "beside"}]})
        png(self.path("in/b.png"))
        self.assertEqual(self.lines("r.quorlin", "in/b.png")[0]["output"], str(self.path("in/beside/b.bmp")))

    def test_operations_of_an_output_follow_the_common_ones(self):
        png(self.path("a.png"), 60, 40)
        self.recipe({"quorlin": 1, "operations": [{"do": "crop", "width": 40, "height": 40}], "outputs": [
            {"type": "bmp", "name": "1", "operations": [{"do": "resize", "longest": 10}]}, {"type": "bmp", "name": "2"},
            {"type": "bmp", "name": "3", "operations": [{"do": "frame", "width": 1}]}]})
        lines = self.lines("--to", "o", "r.quorlin", "a.png")
        self.assertEqual([(line["index"], line["width"]) for line in sorted(lines, key=lambda line: line["index"])], [(0, 10), (1, 40), (2, 42)])

    def test_dates(self):
        os.utime(self.path("a.png"), (1_500_000_000, 1_500_000_000))
        self.assertEqual(os.stat(self.made(dates="keep")["output"]).st_mtime, 1_500_000_000)
        for how in ({}, {"dates": "now"}):
            self.assertGreater(os.stat(self.made(**how)["output"]).st_mtime, time.time() - 1000)

    def test_what_is_there(self):
        recipe = {"quorlin": 1, "operations": [{"do": "flip", "direction": "vertical"}], "outputs": [{"type": "bmp"}]}

        def again(how):
            recipe["outputs"][0]["ifTaken"] = how
            self.recipe(recipe)
            line, = self.lines("--to", "out", "r.quorlin", "a.png")
            return line["status"], line["output"] and os.path.basename(line["output"])
        self.assertEqual([again("number") for _time in range(3)], [("OK", "a.bmp"), ("OK", "a (2).bmp"), ("OK", "a (3).bmp")])
        self.assertEqual(again("skip")[0], "Skipped")
        self.path("out/a.bmp").write_text("mine")
        self.assertEqual(again("replace"), ("OK", "a.bmp"))
        self.assertEqual(self.path("out/a.bmp").read_bytes(), self.path("out/a (2).bmp").read_bytes())
        self.assertEqual(self.files("out"), ["a (2).bmp", "a (3).bmp", "a.bmp"])

    def test_its_own_original_is_replaced_last(self):
        self.recipe({"quorlin": 1, "operations": [{"do": "resize", "longest": 30}], "outputs": [
            {"ifTaken": "replace"}, {"type": "bmp", "name": "copy", "operations": [{"do": "resize", "longest": 6}]}]})
        lines = self.lines("r.quorlin", "a.png")
        self.assertEqual({line["output"] for line in lines}, {str(self.path("a.png")), str(self.path("copy.bmp"))})
        self.assertEqual(self.size(source="a.png"), (30, 20))

    def test_two_outputs_of_one_name(self):
        for how in ("number", "replace", "skip", "current"):
            self.recipe({"quorlin": 1, "outputs": [{"type": "bmp", "name": "x", "ifTaken": how}] * 3})
            lines = self.lines("--to", how, "r.quorlin", "a.png")
            self.assertEqual([line["status"] for line in lines], ["OK"] * 3, how)
            self.assertEqual(self.files(how), ["x (2).bmp", "x (3).bmp", "x.bmp"])

    def test_pixels_that_stay_are_not_encoded_again(self):
        before = self.path("a.png").read_bytes()
        for operations, output, lossless in (
                ([], {}, True), ([{"do": "resize", "longest": 100}], {}, True), ([{"do": "turn", "degrees": 360}], {}, True),
                ([{"do": "turn", "degrees": 90}, {"do": "turn", "degrees": 270}], {}, True), ([{"do": "crop", "percent": 0}], {}, True),
                ([{"do": "frame", "width": 0}], {}, True), ([], {"quality": 85}, False), ([], {"lossless": True}, False),
                ([{"do": "frame", "width": 1}], {}, False), ([], {"maxBytes": len(before)}, True), ([], {"type": "bmp"}, False)):
            line = self.made(operations, **{"type": "original", **output})
            self.assertEqual(line["lossless"], lossless, (operations, output))
            if lossless:
                with open(line["output"], "rb") as file:
                    self.assertEqual(file.read(), before)


class Command(ContractTest):
    def test_folders_are_walked(self):
        for name in ("in/b2.png", "in/b10.png", "in/.hidden/x.png", "in/.x.png", "in/sub/c.png"):
            png(self.path(name))
        png(self.path("other/d.png"))
        os.symlink(self.path("other"), self.path("in/link"))
        os.symlink(self.path("other/d.png"), self.path("in/e.png"))
        os.symlink(self.path("other/d.png"), self.path("named.png"))
        self.plain(name="{counter:1}-{name}")
        lines = self.lines("--dry-run", "r.quorlin", "in", "named.png", "in/b2.png", "in/../in/sub")
        self.assertEqual(sorted(os.path.basename(line["output"]) for line in lines), ["1-b2.png", "2-b10.png", "3-c.png", "4-named.png"])

    def test_every_input_keeps_its_number(self):
        for name in "abc":
            png(self.path(f"in/{name}.png"))
        self.path("in/b.png").write_text("nothing")
        self.plain(name="{counter:01}")
        lines = self.by_input(self.lines("--to", "o", "r.quorlin", "in", "gone.png", "in/a.png", status=1))
        self.assertEqual([lines[f"{name}.png"]["output"] and os.path.basename(lines[f"{name}.png"]["output"]) for name in "abc"], ["01.png", None, "03.png"])

    def test_an_unreadable_picture_has_a_line_for_each_output(self):
        self.path("x.png").write_text("nothing")
        self.recipe({"quorlin": 1, "outputs": [{}, {"type": "jpeg"}, {"type": "bmp"}]})
        lines = self.lines("r.quorlin", "x.png", "gone.png", status=1)
        self.assertEqual(sorted((os.path.basename(line["input"]), line["index"]) for line in lines),
                         [(name, index) for name in ("gone.png", "x.png") for index in range(3)])

    def test_an_unknown_preset(self):
        png(self.path("a.png"))
        self.run_batch("--preset", "Rename/Whatever", "a.png", status=2)

    def test_values_climb_nowhere(self):
        png(self.path("in/a.png"))
        os.rename(self.path("in"), self.path(".."+"x"))
        self.plain(folder="{folder}/{name}", name="{folder}")
        line, = self.lines("--to", "o", "r.quorlin", "..x/a.png")
        self.assertEqual(line["output"], str(self.path("o/..x/a/..x.png")))

    def test_the_recipe_of_a_preset(self):
        png(self.path("a.png"))
        line, = self.lines("--preset", "Resize/Web 1600", "--dry-run", "a.png")
        self.assertRegex(line["recipe"], "^[0-9a-f]{12}$")

    def test_a_summary_ends_every_report(self):
        self.plain()
        os.mkdir(self.path("empty"))
        for more in ((), ("--dry-run",), ("--shard", "1/2")):
            self.assertEqual(self.lines(*more, "r.quorlin", "empty"), [])
        report = self.run_batch("--report", "-", "r.quorlin", "empty")
        self.assertEqual(list(json.loads(report)), ["summary"])


class Odd(ContractTest):
    def test_marks_of_other_editors(self):
        png(self.path("a.png"))
        text = json.dumps({"quorlin": 1, "outputs": [{"type": "bmp"}]}, indent=1)
        for number, data in enumerate((b"\xef\xbb\xbf" + text.encode(), text.replace("\n", "\r\n").encode(), text.encode() + b"\n\n")):
            self.path("r.quorlin").write_bytes(data)
            self.assertEqual(len(self.lines("--to", f"{number}", "r.quorlin", "a.png")), 1)
        for data in (text.encode("utf-16"), text.encode("utf-16-le"), b"\0" * 10, text.encode() + b"x"):
            self.path("r.quorlin").write_bytes(data)
            self.run_batch("--to", "no", "r.quorlin", "a.png", status=2)
            self.assertTrue(re.match(r"quorlin-batch: r\.quorlin: line \d+: ", self.said), self.said)

    def test_large_and_deep_recipes(self):
        png(self.path("a.png"))
        for text in ('{"quorlin": 1, "outputs": [{}], "name": "%s"}' % ("x" * 100_000_000), "[" * 100_000, '{"a":' * 100_000,
                     '{"quorlin": 1, "outputs": ' + "[" * 5000 + "]" * 5000 + "}"):
            self.path("r.quorlin").write_text(text)
            self.run_batch("--to", "no", "r.quorlin", "a.png", status=2)
            self.assertEqual(len(self.said.splitlines()), 1)
            self.assertLess(len(self.said), 500)
        self.assertFalse(self.path("no").exists())


if __name__ == "__main__":
    batch_world.main()
