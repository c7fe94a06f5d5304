#!/usr/bin/env python3
"""texts.py finds the faults in a small tree, and reads modules as they are."""
import contextlib
import io
import json
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import phrases  # noqa: E402
import texts  # noqa: E402

SCRIPT = """// A module.
import { fill,
         count } from "./wording.js";
export const title = () => qsTr("Open %1");
export default class Pane {
    text() { return qsTr("Close"); }
    files(n) { return qsTr("%n files", "", n); }
}
const example = "export import qsTr";
"""
FORM = """<ui version="4.0"><class>Window</class><widget class="QWidget" name="w">
<property name="windowTitle"><string>Title</string></property></widget></ui>"""
HEADER = "namespace a { class B : public QObject { Q_OBJECT\npublic: QString f(); }; }\n"
SOURCE = '#include "app/b.h"\nnamespace a {\nQString B::f() { return tr("Said by %1"); }\nvoid g() { key("isSave"); }\n}\n'

WHOLE = {"Window: Title": "Titel", "a::B: Said by %1": "Van %1", "some-pane: Close": "Sluit", "some-pane: Open %1": "Open %1"}


def message(text, translation):
    """One message of a .ts file; a list are forms for counts, and None is nothing yet."""
    if isinstance(translation, list):
        forms = "".join(f"<numerusform>{form}</numerusform>" for form in translation)
        return f'<message numerus="yes"><source>{text}</source><translation>{forms}</translation></message>'
    made = '<translation type="unfinished"></translation>' if translation is None else f"<translation>{translation}</translation>"
    return f"<message><source>{text}</source>{made}</message>"


class Texts(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.write("interface/panes/some-pane.js", SCRIPT)
        self.write("interface/window.ui", FORM)
        self.write("app/b.h", HEADER)
        self.write("app/b.cpp", SOURCE)
        for language in texts.LANGUAGES:
            self.table(language, "Localizable", {"isSave": "%1 in " + language})
            self.translate(language, {**({} if language == "en" else WHOLE), "some-pane: %n files": ["%n a", "%n b"]})

    def tearDown(self):
        shutil.rmtree(self.root)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def table(self, language, name, content):
        self.write(f"interface/texts/{language}/{name}.json", json.dumps(content))

    def translate(self, language, translations):
        """Writes the .ts file of {"context: text": translation}."""
        contexts = "".join(f"<context><name>{key.rsplit(': ', 1)[0]}</name>{message(key.rsplit(': ', 1)[1], made)}</context>"
                           for key, made in translations.items())
        self.write(f"interface/texts/quorlin_{language}.ts",
                   f'<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS><TS version="2.1" language="{language}">{contexts}</TS>')

    def translated(self, language):
        return {key: forms for key, (_, forms, _) in texts.messages(texts.translation(self.root, language)).items()}

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

    def test_extracts_scripts_forms_and_classes(self):
        found, complaints = texts.extracted(self.root)
        self.assertEqual({key: has_count for key, (_, _, has_count) in found.items()},
                         {**{key: False for key in WHOLE}, "some-pane: %n files": True})
        self.assertEqual(complaints, [])

    def test_leaves_a_good_tree_alone(self):
        status, said = self.check()
        self.assertEqual(status, 0, said)
        self.assertIn("5 texts, 1 of them with counts", said)

    def test_finds_sentences_that_are_not_marked(self):
        helper = 'QString text(const char *sentence) { return QCoreApplication::translate("platform", sentence); }\n'
        self.write("platform/file.cpp", helper + 'QString f() { return text("it is damaged"); }\n')
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn("platform/file.cpp: not marked for translation: it is damaged", said)

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
        whole = {**WHOLE, "some-pane: %n files": ["%n a", "%n b"]}
        self.translate("nl", {**whole, "Window: Title": None})
        self.assert_finds("quorlin_nl.ts: is unfinished: Window: Title")
        self.translate("nl", {key: text for key, text in whole.items() if key != "Window: Title"})
        self.assert_finds("quorlin_nl.ts: lacks Window: Title")
        self.translate("nl", {**whole, "Window: Old": "Oud"})
        self.assert_finds("quorlin_nl.ts: nobody uses Window: Old")
        self.translate("nl", {**whole, "some-pane: Open %1": "Open"})
        self.assert_finds("has other places for values than in English: some-pane: Open %1")
        self.translate("nl", {**whole, "Window: Title": ""})
        self.assert_finds("quorlin_nl.ts: is empty: Window: Title")
        texts.translation(self.root, "nl").unlink()
        self.assert_finds("quorlin_nl.ts is missing")

    def test_holds_the_forms_for_counts_against_the_texts(self):
        self.translate("nl", {**WHOLE, "some-pane: %n files": ["the a", "%n b"]})
        self.assertEqual(self.check()[0], 0)
        for forms, fault in ((["%n a", "the b"], "other places"), (["%n a", ""], "is empty"), (["%n %1", "%n b"], "other places"),
                             (["%n a", "%n b", "%n c"], "a form too many"), (["%n a"], "lacks a form")):
            self.translate("nl", {**WHOLE, "some-pane: %n files": forms})
            self.assert_finds("quorlin_nl.ts: ", fault)
        self.translate("en", {})
        self.assert_finds("quorlin_en.ts: lacks some-pane: %n files")
        self.translate("en", {"some-pane: %n files": ["%n file", "%n files"], "Window: Title": "Title"})
        self.assert_finds("quorlin_en.ts: nobody uses Window: Title")

    def test_updates_what_is_there(self):
        self.translate("nl", {"Window: Title": "Titel", "Window: Old": "Oud"})
        with contextlib.redirect_stdout(io.StringIO()):
            texts.update(self.root)
        self.assertEqual(self.translated("nl"), {**{key: None for key in WHOLE}, "some-pane: %n files": None, "Window: Title": ["Titel"]})
        self.assertEqual(self.translated("en"), {"some-pane: %n files": ["%n a", "%n b"]})

    def say(self, text, translation="x"):
        """Puts a text into the form, and its translation into each language."""
        self.write("interface/window.ui", FORM.replace("Title", text))
        for language in ("de", "fr", "nl"):
            rest = {key: made for key, made in WHOLE.items() if key != "Window: Title"}
            self.translate(language, {**rest, f"Window: {text}": translation, "some-pane: %n files": ["%n a", "%n b"]})

    def test_finds_phrases_that_are_not_used(self):
        for text in ("Take back the last deed", "It goes along", "Cancelled before its turn", "Written anew", "Standing pictures",
                     "50 per cent", "Choose a folder please", "This can't be", "It’s done", "Done!", "About 5 %", "Wait..."):
            self.say(text)
            self.assert_finds("Window: " + text)
        for text in ("Date taken", "Sort by Hand", "It becomes 5%", "The picture’s own size", "Rename the indeed"):
            self.say(text)
            self.assertEqual(self.check()[0], 0, self.check()[1])

    def test_finds_phrases_of_each_language(self):
        for translation, language in (("Bitte warten", "de"), ("Das Bild geht mit", "de"), ("Veuillez patienter", "fr"),
                                      ("5 pour cent", "fr"), ("Type&amp;#x202f;: JPEG", "fr"), ("Foto gaat mee", "nl"),
                                      ("In de prullenmand", "nl")):
            self.say("Wait", translation)
            self.assert_finds(f"quorlin_{language}.ts: says ")
        self.table("nl", "Localizable", {"isSave": "%1, alstublieft"})
        self.assert_finds("nl/Localizable.json: says “alstublieft”: isSave")

    def test_finds_long_sentences(self):
        self.say("Word " * 24)
        self.assert_finds("has a sentence of ")
        self.say(("Word " * 12).strip() + ". " + ("Word " * 12).strip())
        self.assertEqual(self.check()[0], 0)

    def test_finds_buttons_that_are_not_in_title_case(self):
        button = '<ui><class>W</class><widget class="{}"><property name="text"><string>{}</string></property></widget></ui>'
        for control, text, fault in (("QPushButton", "Show all", "all"), ("QToolButton", "move Up", "move"), ("QLabel", "Show all", None),
                                     ("QPushButton", "Go to the &amp;Next One…", None), ("QPushButton", "Write 2 as JPEG", None)):
            self.write("interface/window.ui", button.format(control, text))
            found = phrases.check_buttons(self.root)
            self.assertEqual(found, [f"interface/window.ui: “{fault}” in the button “{text}” has no capital"] if fault else [])
        self.write("interface/window.ui", button.format("QLabel", "x"))
        self.write("interface/a.js", 'shell.ask({ buttons: [qsTr("Keep both"), qsTr("Cancel")], check: qsTr("Do this for all") });')
        self.assertEqual(phrases.check_buttons(self.root), ["interface/a.js: “both” in the button “Keep both” has no capital"])

    def test_reads_pages_and_texts_between_quotes(self):
        self.write("docs/manual/crop.md", "# Crop\n\nThe file is written anew. `anew` is not said.\n")
        self.assert_finds("docs/manual/crop.md: says “anew”")
        self.write("docs/manual/crop.md", "# Crop\n\n`anew` is not said.\n")
        self.write("packaging/a.desktop", "[Desktop Entry]\nName=A\nComment=Do one deed\nComment[nl]=Een daad, alstublieft\n")
        self.assert_finds("packaging/a.desktop: says “deed”", "packaging/a.desktop: says “alstublieft”")
        (self.root / "packaging/a.desktop").unlink()
        self.write("app/c.cpp", '// a deed\nconst char *text = "one deed more";\n')
        self.assert_finds("app/c.cpp: says “deed”: one deed more")
        self.write("app/c.cpp", '// a deed\nconst char *text = "deed";\n')
        self.assertEqual(self.check()[0], 0, self.check()[1])

    def test_fails_on_an_empty_tree(self):
        shutil.rmtree(self.root / "interface")
        (self.root / "interface").mkdir()
        shutil.rmtree(self.root / "app")
        self.assert_finds("no texts found")


if __name__ == "__main__":
    unittest.main()
