#!/usr/bin/env python3
"""test_recipes.py PROGRAM: wrong recipes are refused before anything is written, in one sentence that begins with the place."""
import copy
import unittest

import batch_world
from batch_world import BatchTest, png

GOOD = {
    "quorlin": 1,
    "name": "All",
    "operations": [
        {"do": "crop", "ratio": "3:2", "position": "attention", "offset": [1, -2]},
        {"do": "resize", "box": [10, 10], "fit": "pad", "color": "#ffffff", "enlarge": True},
        {"do": "turn", "degrees": 90, "color": "#00000080"},
        {"do": "flip", "direction": "vertical"},
        {"do": "round", "radius": 2.5, "unit": "mm", "dpi": 300, "band": {"width": 1, "color": "#102030"}},
        {"do": "background", "pattern": "pattern.png"},
        {"do": "frame", "width": 3},
        {"do": "watermark", "text": "{name} {{x}", "size": 5, "opacity": 50, "tile": True},
        {"do": "sharpen", "amount": "low", "off": True},
        {"do": "profile", "to": "Display P3"},
    ],
    "outputs": [
        {"type": "jpeg", "quality": 85, "maxBytes": 100000, "name": "{name}", "folder": "{taken:yyyy}/x", "profile": "sRGB",
         "metadata": "copyright", "location": False, "dpi": 72, "matte": "#000000", "dates": "keep", "ifTaken": "skip",
         "operations": [{"do": "resize", "longest": 5}]},
        {"type": "webp", "lossless": True},
    ],
}

GONE = object()

# The place, what is there instead, and the place that the sentence begins with if that differs.
MUTATIONS = [
    ("quorlin", 2), ("quorlin", "1"), ("quorlin", GONE), ("quorlin", 1.5), ("quorlin", 0),
    ("name", 7), ("extra", 1), ("outputs", GONE), ("outputs", []), ("outputs", {}), ("operations", "none"),
    ("operations[0]", 3), ("operations[0].do", "melt"), ("operations[0].do", GONE), ("operations[0].ratio", "3/2"),
    ("operations[0].ratio", 1.5), ("operations[0].percent", 5), ("operations[0].width", 5, "operations[0].ratio"),
    ("operations[0].position", "middle"), ("operations[0].offset", [1]), ("operations[0].offset[1]", "x"),
    ("operations[0].turn", 1), ("operations[1].box[0]", 0), ("operations[1].box[1]", 100001),
    ("operations[1].fit", "inside", "operations[1].color"), ("operations[1].color", "white"),
    ("operations[1].longest", 5, "operations[1].box"), ("operations[1].enlarge", "yes"),
    ("operations[2].degrees", 361), ("operations[2].degrees", GONE), ("operations[2].color", "#12345"),
    ("operations[3].direction", "up"), ("operations[3].direction", None), ("operations[4].radius", -1),
    ("operations[4].shape", "circle", "operations[4].radius"), ("operations[4].unit", "km"), ("operations[4].dpi", 0.5),
    ("operations[4].band.width", GONE), ("operations[4].band.depth", 1), ("operations[5].pattern", "none.png"),
    ("operations[5].color", "#ffffff", "operations[5].pattern"), ("operations[6].width", GONE), ("operations[6].width", 1.5),
    ("operations[7].text", "{nmae}"), ("operations[7].font", "No Such Letters"), ("operations[7].size", 0),
    ("operations[7].picture", "none.png"), ("operations[7].opacity", 101), ("operations[7].angle", 400),
    ("operations[8].amount", "much"), ("operations[8].off", "true"), ("operations[9].to", "none.icc"),
    ("outputs[0]", "jpeg"), ("outputs[0].type", "psd"), ("outputs[0].quality", 0), ("outputs[0].quality", 101),
    ("outputs[0].lossless", True), ("outputs[0].maxBytes", 0), ("outputs[0].name", "a/b"), ("outputs[0].name", ""),
    ("outputs[0].name", "{camera:x}"), ("outputs[0].folder", "{nmae}"), ("outputs[0].profile", "CMYK"),
    ("outputs[0].metadata", "all"), ("outputs[0].location", 0), ("outputs[0].dpi", 10001), ("outputs[0].matte", "#ggg000"),
    ("outputs[0].dates", "old"), ("outputs[0].ifTaken", "ask"), ("outputs[0].operations[0].longest", "big"),
    ("outputs[0].operations[0].do", "unknown"), ("outputs[1].quality", 80, "outputs[1].lossless"), ("outputs[1].Type", "webp"),
]


def changed(where, value):
    """The good recipe with another value there."""
    recipe = copy.deepcopy(GOOD)
    steps = where.replace("[", ".[").split(".")
    keys = [int(step[1:-1]) if step.startswith("[") else step for step in steps]
    there = recipe
    for key in keys[:-1]:
        there = there[key]
    if value is GONE:
        del there[keys[-1]]
    else:
        there[keys[-1]] = value
    return recipe


class Recipes(BatchTest):
    def setUp(self):
        super().setUp()
        png(self.path("in/a.png"), 60, 40)
        png(self.path("pattern.png"))

    def test_the_good_one(self):
        self.recipe(GOOD)
        self.assertEqual(len(self.lines("r.quorlin", "in")), 2)

    def test_mutations(self):
        self.assertGreaterEqual(len(MUTATIONS), 50)
        for where, value, *place in MUTATIONS:
            with self.subTest(where=where, value=value):
                self.recipe(changed(where, value))
                self.run_batch("--to", "out", "--report", "report", "r.quorlin", "in", status=2)
                self.assertFalse(self.path("out").exists() or self.path("report").exists())
                self.assertEqual(len(self.said.splitlines()), 1)
                begin = f"quorlin-batch: r.quorlin: {place[0] if place else where}: "
                self.assertTrue(self.said.startswith(begin), self.said)
                self.assertGreater(len(self.said.strip()), len(begin))

    def test_the_sentence_of_the_contract(self):
        self.recipe(changed("outputs[0].operations[0].longest", "big"))
        self.run_batch("r.quorlin", "in", status=2)
        self.assertIn('outputs[0].operations[0].longest: a whole number from 1 to 100000, not "big"', self.said)

    def test_odd_keys_and_names(self):
        for text, sentence in (
                (r'{"quorlin": 1, "outputs": [{"a\nb": 1}]}', r'outputs[0]."a\nb": unknown key'),
                ('{"quorlin": 1, "outputs": [{"": 1}]}', 'outputs[0]."": unknown key'),
                ('{"quorlin": 1, "outputs": [{}], "%s": 1}' % ("k" * 100000), "k" * 60 + "…: unknown key"),
                (r'{"quorlin": 1, "outputs": [{"name": "a\ud800"}]}',
                 r"outputs[0].name: it contains half a character, \ud800"),
                ('{"quorlin": 1, "outputs": [{"maxBytes": 1e17}]}',
                 "outputs[0].maxBytes: a whole number from 1 to 1000000000000000, not 100000000000000000"),
                ('{"quorlin": 1, "outputs": [{"type": "png", "type": "jpeg"}]}', "outputs[0].type: it is there twice")):
            with self.subTest(sentence=sentence):
                self.recipe(text)
                self.run_batch("--to", "out", "r.quorlin", "in", status=2)
                self.assertEqual(self.said, f"quorlin-batch: r.quorlin: {sentence}\n")
                self.assertFalse(self.path("out").exists())

    def test_what_is_no_recipe(self):
        for text, begin in (("", "line 1: "), ("{", "line 1: "), ('{"quorlin": 1,\n\n"outputs": }', "line 3: "), ("[]", ""),
                            ("\u00ff", "line 1: ")):
            with self.subTest(text=text):
                self.path("r.quorlin").write_text(text, encoding="latin1")
                self.run_batch("r.quorlin", "in", status=2)
                self.assertTrue(self.said.startswith("quorlin-batch: r.quorlin: " + begin), self.said)


if __name__ == "__main__":
    batch_world.main()
