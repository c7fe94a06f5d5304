#!/usr/bin/env python3
"""Each check finds what it is there for in a small bad tree, and leaves the good one alone."""
import contextlib
import io
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, str(Path(__file__).parent))
import classes  # noqa: E402
import format as format_check  # noqa: E402
import layering  # noqa: E402
import packages  # noqa: E402
import sizes  # noqa: E402
import source_tree as tree  # noqa: E402
import words  # noqa: E402

GOOD = {
    "platform/graphics/bitmap.h": "#pragma once\n#include <QtGlobal>\n#include <vector>\n",
    "platform/graphics/pixels.h": "#pragma once\n#include <vips/vips8>\n#include \"platform/graphics/bitmap.h\"\n",
    "platform/graphics/bitmap.cpp": "#include \"platform/graphics/bitmap.h\"\n#include \"platform/graphics/pixels.h\"\n"
                                    "// \"OK\" in a comment is only a comment\n",
    "platform/CMakeLists.txt": "quorlin_library(platform SOURCES graphics/bitmap.cpp LINKS Qt6::Core\n"
                               "  PRIVATE_LINKS PkgConfig::VIPS)\n",
    "image/resize.h": "#pragma once\n#include \"platform/graphics/bitmap.h\"\n#include <QString>\n",
    "image/CMakeLists.txt": "quorlin_library(image SOURCES LINKS platform Qt6::Core)\n",
    "text/names.cpp": "#include <QString>\n",
    "tests/unit/image/tst_resize.cpp": "#include \"image/resize.h\"\n#include <QTest>\n",
}
MODULES = {"QString": "QtCore", "QtGlobal": "QtCore", "QImage": "QtGui", "QWidget": "QtWidgets", "QTest": "QtTest"}


def run_main(module, *arguments):
    old, sys.argv = sys.argv, [module.__name__, *map(str, arguments)]
    out = io.StringIO()
    try:
        with contextlib.redirect_stdout(out):
            return module.main(), out.getvalue()
    finally:
        sys.argv = old


class Tree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


class Layering(Tree):
    def faults(self, name=None, text=""):
        for good, content in GOOD.items():
            self.write(good, content)
        if name:
            self.write(name, text)
        return layering.check(self.root, MODULES)[0]

    def test_leaves_a_good_tree_alone(self):
        self.assertEqual(self.faults(), [])

    def test_finds_every_wrong_include(self):
        for name, text, said in [
            ("platform/graphics/a.cpp", '#include "image/resize.h"', "platform/ may not enter image/"),
            ("text/a.cpp", '#include "image/resize.h"', "text/ may not enter image/"),
            ("image/a.cpp", '#include "files/walk.h"', "image/ may not enter files/"),
            ("image/a.cpp", '#include "platform/graphics/none.h"', "does not exist"),
            ("image/a.cpp", '#include "resize.h"', "from the root"),
            ("image/a.cpp", '#include "engine/resize.h"', "no room"),
            ("image/a.cpp", "#include <vips/vips8>", "belongs to platform/ only"),
            ("app/a.cpp", "#include <exiv2/exiv2.hpp>", "belongs to platform/ only"),
            ("views/a.cpp", "#include <cairo.h>", "belongs to platform/ only"),
            ("files/a.cpp", "#include <sqlite3.h>", "belongs to presets/ only"),
            ("platform/graphics/a.cpp", "#include <sqlite3.h>", "belongs to presets/ only"),
            ("platform/graphics/a.cpp", "#include <boost/any.hpp>", "not known to this check"),
            ("text/a.cpp", "#include <QImage>", "text/ may not use QtGui"),
            ("image/a.cpp", "#include <QWidget>", "image/ may not use QtWidgets"),
            ("image/a.cpp", "#include <QtWidgets/QWidget>", "image/ may not use QtWidgets"),
            ("image/a.cpp", '  #  include "platform/graphics/pixels.h"', "may not leave platform/"),
        ]:
            with self.subTest(name=name, text=text):
                found = self.faults(name, text + "\n")
                self.assertEqual(len(found), 1, found)
                self.assertIn(said, found[0])
                (self.root / name).unlink()

    def test_follows_a_third_party_type_through_a_second_header(self):
        self.write("platform/graphics/more.h", '#include "platform/graphics/pixels.h"\n')
        found = self.faults("app/a.cpp", '#include "platform/graphics/more.h"\n')
        self.assertEqual(len(found), 1, found)
        self.assertIn("more.h shows third-party types", found[0])

    def test_finds_wrong_links(self):
        for room, links, said in [("text", "image", "text/ may not link image"),
                                  ("image", "PkgConfig::VIPS", "belongs to platform/ only"),
                                  ("image", "PkgConfig::BOOST", "not known"),
                                  ("image", "Qt6::Widgets", "may not link Qt6::Widgets")]:
            with self.subTest(room=room, links=links):
                name = f"{room}/CMakeLists.txt"
                found = self.faults(name, f"quorlin_library({room} SOURCES a.cpp LINKS {links})\n")
                self.assertEqual(len(found), 1, found)
                self.assertIn(said, found[0])
                (self.root / name).unlink()
        found = self.faults("text/CMakeLists.txt", "add_library(text a.cpp)\ntarget_link_libraries(text PUBLIC files)\n")
        self.assertIn("text/ may not link files", "\n".join(found))

    def test_finds_words_of_the_product_in_the_platform(self):
        for line, said in [('return QStringLiteral("Not Supported");', "Not Supported"), ("class cToolBox;", "cToolBox"),
                           ('if (keyword == u"EMMDir")', "EMMDir"), ('log("Failed to write image to %1");', "Failed to")]:
            with self.subTest(line=line):
                found = self.faults("platform/graphics/a.cpp", line + "\n")
                self.assertEqual(len(found), 1, found)
                self.assertIn(said, found[0])

    def rows(self, rows):
        """The check with these rows for the platform in place of the true ones."""
        return mock.patch.dict(layering.SUB_ROOMS, {"platform": rows}, clear=True)

    def test_keeps_sub_rooms_apart(self):
        good = {"graphics": "", "imageio/tiff": "graphics", "imageio/exif": "*", "desktop": ""}
        with self.rows(good):
            self.assertEqual(self.faults(), [])
            for name, text, said in [
                ("platform/imageio/tiff/a.cpp", '#include "platform/graphics/bitmap.h"', ""),
                ("platform/imageio/exif/a.cpp", '#include "platform/graphics/bitmap.h"', ""),
                ("platform/imageio/exif/a.h", '#include "platform/imageio/exif/a.h"', ""),
                ("platform/desktop/a.cpp", '#include "platform/graphics/bitmap.h"',
                 "platform/desktop may not enter platform/graphics"),
                ("platform/graphics/a.h", '#include "platform/desktop/a.h"', "platform/graphics may not enter platform/desktop"),
                ("platform/imageio/png/a.cpp", "#include <QString>", "platform/imageio/png is not known to this check"),
                ("platform/a.cpp", "#include <QString>", "platform/ is not known to this check"),
            ]:
                with self.subTest(name=name):
                    found = [fault for fault in self.faults(name, text + "\n") if "does not exist" not in fault]
                    self.assertEqual(len(found), 1 if said else 0, found)
                    self.assertIn(said, "".join(found))
                    (self.root / name).unlink()

    def test_refuses_a_circle_of_sub_rooms(self):
        for rows in [{"graphics": "desktop", "desktop": "graphics"}, {"graphics": "graphics"}, {"graphics": "nowhere"}]:
            with self.subTest(rows=rows), self.rows(rows):
                self.assertIn("does not stand above it", "".join(self.faults()))

    def test_keeps_widgets_out_of_what_the_runner_links(self):
        with mock.patch.dict(layering.SUB_ROOMS, clear=True):
            for name, text, said in [
                ("app/window/a.cpp", "#include <QWidget>\n", ""),
                ("app/seam/a.cpp", "#include <QWidget>\n", "app/ may not use QtWidgets"),
                ("app/CMakeLists.txt", "quorlin_library(quorlin_window SOURCES LINKS quorlin_script Qt6::Widgets)\n", ""),
                ("app/CMakeLists.txt", "quorlin_library(quorlin_script SOURCES LINKS Qt6::Widgets)\n",
                 "may not link Qt6::Widgets"),
                ("app/CMakeLists.txt", "quorlin_library(quorlin_script SOURCES LINKS quorlin_window)\n",
                 "quorlin_script may not link quorlin_window"),
            ]:
                with self.subTest(text=text):
                    found = self.faults(name, text)
                    self.assertEqual(len(found), 1 if said else 0, found)
                    self.assertIn(said, "".join(found))
                    (self.root / name).unlink()

    def test_knows_every_sub_room_by_a_row_that_is_used(self):
        root = Path(__file__).resolve().parents[2]
        for room, rows in layering.SUB_ROOMS.items():
            for name in rows:
                self.assertTrue((root / room / name).is_dir(), f"{room}/{name}")

    def test_fails_on_an_empty_tree(self):
        self.assertEqual(run_main(layering, self.root)[0], 1)


class Classes(Tree):
    def names(self, text):
        return [name for _, name in classes.classes(text)]

    def test_knows_what_other_files_could_meet(self):
        text = ("#include <array>\nclass A : public QObject\n{\n    struct Inner {\n    };\n};\nnamespace x {\nstruct B final {\n};\n"
                "namespace {\nclass Own\n{\n};\n}\nvoid f() { struct Here { }; }\n}\nclass C;\nenum class D { E };\n"
                "template<typename T> class F {\n};\nclass G\n{\n};\n")
        self.assertEqual(self.names(text), ["A", "x::B", "G"])

    def test_refuses_one_name_for_two(self):
        self.write("tests/one.h", "class Hand\n{\n};\n")
        self.write("tests/two.cpp", "class Hand : public QObject\n{\n};\nnamespace {\nclass Place\n{\n};\n}\n")
        self.write("tests/three.cpp", "namespace jobs {\nclass Hand\n{\n};\n}\nnamespace {\nclass Place\n{\n};\n}\n")
        status, said = run_main(classes, self.root)
        self.assertEqual((status, said.splitlines()[0]),
                         (1, "Hand is defined more than once: tests/one.h:1, tests/two.cpp:1"))


class Sizes(Tree):
    def body(self, lines):
        return "".join(f"    call({n});\n" for n in range(lines - 3))

    def test_counts_the_lines_of_a_function(self):
        for head in ["int f()", "A::A(int b) : m_b(b), m_c(0)", "A::A(int b) : m_b{b}, m_c{}",
                     "bool A::f() const noexcept", "auto f() -> int",
                     "template<typename T> T f(T (*g)(int))", "static Result<Bitmap> f(const A &a,\n    B b = {})"]:
            with self.subTest(head=head):
                text = f"namespace x {{\n\n// words {{\n{head}\n{{\n{self.body(20)}}}\n\n}}\n"
                self.assertEqual([count for _, count in sizes.functions(text, script=False)], [20 + head.count("\n")])

    def test_takes_no_block_for_a_function(self):
        text = "struct A\n{\n    enum B { C };\n    int d { 0 };\n};\nnamespace {\nclass E : public A\n{\n};\n}\n"
        self.assertEqual(sizes.functions(text, script=False), [])

    def test_counts_script_functions_and_methods(self):
        text = "export function f(a) {\n  return a;\n}\nclass A {\n  run(b) {\n    if (b) {\n    }\n  }\n}\nconst g = x => {\n};\n"
        self.assertEqual([count for _, count in sizes.functions(text, script=True)], [3, 4, 2])

    def test_counts_a_named_script_function_for_itself_and_an_arrow_with_its_owner(self):
        text = "export function f() {\n  let a;\n  function g() {\n    a = 1;\n  }\n  return () => {\n    g();\n  };\n}\n"
        self.assertEqual(sizes.functions(text, script=True), [(1, 6), (3, 3)])

    def test_reports_above_the_mark_and_fails_above_the_limit(self):
        for lines, status, said in [(sizes.FUNCTION_MARK, 0, ""), (sizes.FUNCTION_MARK + 1, 0, "for review"),
                                    (sizes.FUNCTION_LIMIT, 0, "for review"), (sizes.FUNCTION_LIMIT + 1, 1, "the limit is")]:
            with self.subTest(lines=lines):
                self.write("image/a.cpp", f"void f()\n{{\n{self.body(lines)}}}\n")
                answer, out = run_main(sizes, self.root)
                self.assertEqual(answer, status, out)
                self.assertIn(said, out)

    def test_fails_on_a_folder_of_more_sources_than_a_list_of_contents_holds(self):
        for number in range(sizes.FOLDER_LIMIT):
            self.write(f"image/a{number}.cpp", "void f()\n{\n}\n")
        self.write("image/more/b.cpp", "void f()\n{\n}\n")
        self.write("image/CMakeLists.txt", "")
        self.assertEqual(run_main(sizes, self.root)[0], 0)
        self.write("image/c.ui", "")
        answer, out = run_main(sizes, self.root)
        self.assertEqual(answer, 1)
        self.assertIn("image: 26 sources side by side, the limit is 25", out)

    def test_fails_on_a_file_that_is_clearly_too_long(self):
        self.write("image/a.cpp", "void f()\n{\n}\n" + "\n" * sizes.FILE_LIMIT)
        self.assertEqual(run_main(sizes, self.root)[0], 1)

    def test_fails_on_an_empty_tree(self):
        self.assertEqual(run_main(sizes, self.root)[0], 1)


class Words(Tree):
    def test_finds_each_kind_of_word(self):
        for text in ["as the sp" "ec says", "Par" "t 1.2 holds", "see /wo" "rk/main", "in /ro" "ot/x", "fa" "rm-run it",
                     "the Specific" "ation"]:
            with self.subTest(text=text):
                self.write("docs/a.md", text + "\n")
                answer, out = run_main(words, self.root)
                self.assertEqual(answer, 1, out)

    def test_finds_words_in_names(self):
        self.write("docs/sp" "ec.md", "good\n")
        self.assertEqual(run_main(words, self.root)[0], 1)

    def test_finds_turns_that_read_as_translated_in_code(self):
        for name, found in (("a.js", 1), ("a.cpp", 1), ("a.md", 0)):
            self.write("room/" + name, "// made an" "ew\n")
            self.assertEqual(run_main(words, self.root)[0], found, name)
            (self.root / "room" / name).unlink()

    def test_leaves_like_words_alone(self):
        self.write("docs/a.md", "especially specific, a special part 12 of the workshop; /worker\n")
        self.assertEqual(run_main(words, self.root)[0], 0)

    def test_fails_on_an_empty_tree(self):
        self.assertEqual(run_main(words, self.root)[0], 1)


class Packages(Tree):
    LIST = "build cmake cmd:cmake\nbuild vips pkg:vips-cpp cmd:pkg-config\ntest exif cmd:exiftool\nlint f cmd:clang-format\n"

    def answer(self, name, text, listing=LIST):
        self.write("packaging/packages.txt", listing)
        self.write("CMakeLists.txt", "find_package(PkgConfig)\npkg_check_modules(VIPS REQUIRED IMPORTED_TARGET vips-cpp)\n")
        if name:
            self.write(name, text)
        old, packages.false_claims = packages.false_claims, lambda gives: []
        try:
            return run_main(packages, self.root)
        finally:
            packages.false_claims = old

    def test_leaves_a_complete_list_alone(self):
        self.assertEqual(self.answer("tests/a.py", "subprocess.run(['exiftool', '-v'])")[0], 0)

    def test_finds_what_no_package_gives(self):
        for name, text in [
            ("image/CMakeLists.txt", "pkg_check_modules(CAIRO REQUIRED IMPORTED_TARGET cairo)\n"),
            ("app/CMakeLists.txt", "find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)\n"),
            ("app/CMakeLists.txt", "find_package(OpenCV)\n"),
            ("tests/a.py", 'subprocess.run(["ident' 'ify", path])'),
            ("tests/a.sh", "x=$(vipsheader a.jpg)\n"),
            ("tests/tst_a.cpp", 'process.start(QStringLiteral("vips"), arguments);'),
            ("tests/tst_a.cpp", "#include <tl/expected.hpp>\n"),
            ("platform/graphics/a.cpp", 'QImageReader reader(device.get(), "tiff");\n'),
            ("run", "#!/usr/bin/env bash\nexiftool a.jpg\n"),
        ]:
            with self.subTest(name=name, text=text):
                answer, out = self.answer(name, text)
                self.assertEqual(answer, 1, out)
                (self.root / name).unlink()

    def test_finds_a_spoilt_list(self):
        for line in ["build cmake\n", "kitchen sink cmd:sink\n", "build exif cmd:exiftool\n"]:
            with self.subTest(line=line):
                self.assertEqual(self.answer(None, "", self.LIST + line)[0], 1)

    def test_finds_a_package_that_does_not_hold_what_it_is_listed_for(self):
        if not packages.shutil.which("dpkg"):
            self.skipTest("dpkg is not installed")
        self.assertEqual(list(packages.false_claims({"cmd:bash": [("build", "bash")]})), [])
        self.assertEqual(len(list(packages.false_claims({"cmd:no-such-command": [("build", "bash")]}))), 1)


class Format(Tree):
    def test_finds_an_unformatted_file(self):
        if not format_check.formatter():
            self.skipTest("clang-format 14 is not installed")
        self.write(".clang-format", "BasedOnStyle: LLVM\n")
        self.write("image/a.cpp", "int a;\n")
        self.assertEqual(run_main(format_check, self.root)[0], 0)
        self.write("image/a.cpp", "int   a ;\n")
        self.assertEqual(run_main(format_check, self.root)[0], 1)


class SourceTree(unittest.TestCase):
    def test_blanks_comments_and_literals_line_for_line(self):
        text = 'int a; // "b\nchar c = \'"\'; /* d\n */ auto e = R"(f " // )";\nauto g = "h // i";\n'
        code = tree.code_only(text)
        self.assertEqual(code.count("\n"), text.count("\n"))
        self.assertEqual(code.split(), "int a; char c = ; auto e = ; auto g = ;".split())
        self.assertEqual([t for _, t in tree.string_literals(text)], ['f " // ', "h // i"])


if __name__ == "__main__":
    unittest.main()
