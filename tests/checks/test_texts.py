#!/usr/bin/env python3
"""texts.py finds what it is there for in a small tree with faults, and reads modules as they stand."""
import contextlib
import io
import json
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import texts  # noqa: E402

SCRIPT = """// A module.
import { fill,
         count } from "./wording.js";
export const title = () => qsTr("Open %1");
export default class Pane {
    text() { return qsTr("Close"); }
}
const example = "export import qsTr";
"""
FORM = """<ui version="4.0"><class>Window</class><widget class="QWidget" name="w">
<property name="windowTitle"><string>Title</string></property></widget></ui>"""
HEADER = "namespace a { class B : public QObject { Q_OBJECT\npublic: QString f(); }; }\n"
SOURCE = '#include "app/b.h"\nnamespace a {\nQString B::f() { return tr("Said by %1"); }\nvoid g() { key("isSave"); }\n}\n'


class Texts(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.write("interface/panes/some-pane.js", SCRIPT)
        self.write("interface/window.ui", FORM)
        self.write("app/b.h", HEADER)
        self.write("app/b.cpp", SOURCE)
        for language in texts.LANGUAGES:
            self.table(language, "Localizable", {"isSave": "%1 in " + language})

    def tearDown(self):
        shutil.rmtree(self.root)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def table(self, language, name, content):
        self.write(f"interface/texts/{language}/{name}.json", json.dumps(content))

    def check(self):
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = texts.check(self.root)
        return status, said.getvalue()

    def assert_finds(self, *words):
        status, said = self.check()
        self.assertEqual(status, 1, said)
        for word in words:
            self.assertIn(word, said)

    def test_blanks_module_words_and_nothing_else(self):
        plain = texts.without_modules(SCRIPT)
        self.assertEqual([len(line) for line in plain.split("\n")], [len(line) for line in SCRIPT.split("\n")])
        self.assertNotIn("import {", plain)
        self.assertNotIn("export const", plain)
        self.assertIn("class Pane {", plain)
        self.assertIn('"export import qsTr"', plain)

    def test_extracts_scripts_forms_and_classes_with_their_places(self):
        found, complaints = texts.extracted(self.root)
        self.assertEqual({context: sorted(each) for context, each in found.items()},
                         {"some-pane": ["Close", "Open %1"], "Window": ["Title"], "a::B": ["Said by %1"]})
        self.assertTrue(found["some-pane"]["Open %1"][0].endswith("some-pane.js:4"))
        self.assertEqual(complaints, [])

    def test_leaves_a_good_tree_alone(self):
        status, said = self.check()
        self.assertEqual(status, 0, said)
        self.assertIn("4 texts", said)

    def test_finds_faults_of_tables(self):
        self.table("nl", "Localizable", {})
        self.assert_finds("nl/Localizable.json: no text for isSave")
        self.table("nl", "Localizable", {"isSave": "no place"})
        self.assert_finds("other places for values")
        self.table("nl", "Localizable", {"isSave": ""})
        self.assert_finds("the text of isSave is empty")
        self.table("nl", "Localizable", {"isSave": "%1", "more": "x"})
        self.assert_finds("nobody has the key more")
        (self.root / "interface/texts/nl/Localizable.json").unlink()
        self.assert_finds("nl/Localizable.json is missing")

    def test_finds_keys_that_nobody_looks_up(self):
        for language in texts.LANGUAGES:
            self.table(language, "Localizable", {"isSave": "%1", "forgotten": "x"})
        self.assert_finds("nobody looks up forgotten")

    def test_holds_translations_against_the_texts(self):
        whole = {"some-pane": {"Close": "Sluit", "Open %1": "Open %1"}, "Window": {"Title": "Titel"}, "a::B": {"Said by %1": "Van %1"}}
        self.table("nl", "Interface", whole)
        self.assertEqual(self.check()[0], 0)
        self.table("nl", "Interface", {**whole, "Window": {"Title": None}})
        self.assert_finds("nl/Interface.json: Window: Title is no text")
        self.table("nl", "Interface", {**whole, "Window": {}})
        self.assert_finds("no text for Window: Title")
        self.table("nl", "Interface", {**whole, "Window": {"Title": "Titel", "Old": "Oud"}})
        self.assert_finds("nobody has the key Window: Old")
        self.table("nl", "Interface", {**whole, "some-pane": {"Close": "Sluit", "Open %1": "Open"}})
        self.assert_finds("other places for values")

    def test_updates_what_is_there(self):
        self.table("nl", "Interface", {"Window": {"Title": "Titel", "Old": "Oud"}})
        with contextlib.redirect_stdout(io.StringIO()):
            texts.update(self.root)
        self.assertEqual(texts.table(self.root, "nl", "Interface"),
                         {"Window": {"Title": "Titel"}, "a::B": {"Said by %1": None}, "some-pane": {"Close": None, "Open %1": None}})

    def test_fails_on_an_empty_tree(self):
        shutil.rmtree(self.root / "interface")
        (self.root / "interface").mkdir()
        shutil.rmtree(self.root / "app")
        self.assert_finds("no texts found")


if __name__ == "__main__":
    unittest.main()
