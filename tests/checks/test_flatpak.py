#!/usr/bin/env python3
"""The Flatpak manifest: what it names is what the build installs, and every source has an address and a checksum.

Usage: test_flatpak.py SOURCES BUILD
"""
import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCES, BUILD = (Path(each) for each in sys.argv[1:3])
MANIFEST = SOURCES / "packaging/flatpak/com.brelmark.Quorlin.json"
NEEDED = ["id", "runtime", "runtime-version", "sdk", "command", "finish-args", "modules"]
BUILD_SYSTEMS = ["autotools", "cmake", "cmake-ninja", "meson", "simple", "qmake"]


class Flatpak(unittest.TestCase):
    def setUp(self):
        self.manifest = json.loads(MANIFEST.read_text(encoding="utf-8"))
        self.id = self.manifest["app-id"]

    def test_has_what_the_builder_asks_for(self):
        self.assertEqual([key for key in NEEDED if key not in self.manifest and f"app-{key}" not in self.manifest], [])
        self.assertEqual(MANIFEST.stem, self.id)
        names = [module["name"] for module in self.manifest["modules"]]
        self.assertEqual(len(set(names)), len(names))
        self.assertEqual(names[-1], "quorlin")
        for module in self.manifest["modules"]:
            self.assertIn(module["buildsystem"], BUILD_SYSTEMS, module["name"])

    def test_every_source_is_an_address_with_a_checksum(self):
        sources = [(module["name"], source) for module in self.manifest["modules"] for source in module["sources"]]
        self.assertEqual(sources.pop(), ("quorlin", {"type": "dir", "path": "../.."}))
        for name, source in sources:
            self.assertEqual(source["type"], "archive", name)
            self.assertRegex(source["url"], r"^https://[a-z.]+/\S+\.tar\.(gz|xz|bz2)$")
            self.assertRegex(source["sha256"], r"^[0-9a-f]{64}$")

    def test_no_library_that_the_build_asks_for_is_forgotten(self):
        # What the runtime has is not built again.
        of_runtime = "cairo fontconfig libjpeg lcms2 libopenjp2 pangocairo libseccomp sqlite3 libturbojpeg xcb".split()
        built = {"vips-cpp": "vips", "exiv2": "exiv2", "libdeflate": "libdeflate", "libheif": "libheif", "libjxl": "libjxl",
                 "libjxl_threads": "libjxl", "libplist-2.0": "libplist"}
        asked = re.findall(r"pkg_check_modules\(\w+ REQUIRED IMPORTED_TARGET (\S+)\)", (SOURCES / "CMakeLists.txt").read_text())
        self.assertGreater(len(asked), 10)
        names = [module["name"] for module in self.manifest["modules"]]
        self.assertEqual([each for each in asked if each not in of_runtime and built.get(each) not in names], [])

    def test_what_it_names_is_installed(self):
        if not (BUILD / "bin/quorlin").exists() or not (BUILD / "bin/quorlin-batch").exists():
            self.skipTest("the programs are not built")
        with tempfile.TemporaryDirectory() as folder:
            ran = subprocess.run(["cmake", "--install", BUILD, "--prefix", folder], capture_output=True, text=True)
            self.assertEqual(ran.returncode, 0, ran.stderr)
            root = Path(folder)
            for path in [f"bin/{self.manifest['command']}", f"share/applications/{self.id}.desktop",
                         f"share/metainfo/{self.id}.metainfo.xml", f"share/mime/packages/{self.id}.xml",
                         f"share/icons/hicolor/scalable/apps/{self.manifest['rename-icon']}.svg"]:
                self.assertTrue((root / path).is_file(), path)
            entry = (root / f"share/applications/{self.id}.desktop").read_text(encoding="utf-8")
            self.assertIn(f"Icon={self.manifest['rename-icon']}\n", entry)
            self.assertRegex(entry, rf"(?m)^Exec={self.manifest['command']}\b")

    def test_it_reaches_no_more_than_it_needs(self):
        self.assertEqual([each for each in self.manifest["finish-args"] if "network" in each or "session-bus" in each], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
