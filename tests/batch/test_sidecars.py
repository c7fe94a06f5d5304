#!/usr/bin/env python3
"""test_sidecars.py PROGRAM PICTURES: the fields of a sidecar are those of its picture in results, as exiftool reads them."""
import json
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

import batch_world
from batch_world import BatchTest

PICTURES = Path(sys.argv.pop() if len(sys.argv) > 2 else "")
FIELDS = {"XMP-dc:Description": "Möwe über dem Fluß", "XMP-dc:Title": "Porto", "XMP-dc:Rights": "© Ana Ruiz", "XMP-dc:Creator": "Ana Ruiz",
          "XMP-photoshop:City": "Lissabon", "XMP-iptcCore:CountryCode": "PRT", "XMP-dc:Subject": "gull",
          "XMP-photoshop:DateCreated": "2019:03:31 14:05:09"}


class Sidecars(BatchTest):
    def picture(self, name, fields=None, source="still.gif"):
        """A picture in the folder `in`, with a sidecar that exiftool writes."""
        self.path("in").mkdir(exist_ok=True)
        shutil.copy(PICTURES / "formats" / source, self.path("in") / name)
        sidecar = self.path("in") / (name + ".xmp")
        subprocess.run(["exiftool", "-q", "-o", sidecar, *(f"-{tag}={value}" for tag, value in (fields or FIELDS).items()),
                        "-XMP-crs:Exposure2012=1.5"], check=True, stdin=subprocess.DEVNULL)
        return self.path("in") / name

    def tags(self, path):
        said = subprocess.run(["exiftool", "-j", "-G1", "-struct", path], check=True, capture_output=True, stdin=subprocess.DEVNULL).stdout
        return json.loads(said)[0]

    def made(self, picture, **output):
        """The tags of the only result of a recipe over one picture."""
        recipe = self.recipe({"quorlin": 1, "outputs": [{"type": "jpeg", **output}]})
        lines = self.lines("--to", "out", recipe, picture)
        self.assertEqual([line["status"] for line in lines], ["OK"], lines)
        return self.tags(lines[0]["output"])

    def test_all_of_it(self):
        before = self.picture("a.gif").read_bytes()
        tags = self.made(self.path("in") / "a.gif")
        for tag in ("XMP-dc:Description", "IPTC:Caption-Abstract", "IFD0:ImageDescription"):
            self.assertEqual(tags[tag], "Möwe über dem Fluß", tag)
        for tag in ("XMP-dc:Title", "IPTC:ObjectName"):
            self.assertEqual(tags[tag], "Porto", tag)
        for tag in ("XMP-photoshop:City", "IPTC:City"):
            self.assertEqual(tags[tag], "Lissabon", tag)
        self.assertEqual(tags["ExifIFD:DateTimeOriginal"], "2019:03:31 14:05:09")
        self.assertFalse([tag for tag in tags if tag.startswith("XMP-crs")], tags)  # settings of another program
        self.assertEqual((self.path("in") / "a.gif").read_bytes(), before)

    def test_copyright_alone(self):
        tags = self.made(self.picture("a.gif"), metadata="copyright")
        self.assertEqual((tags["XMP-dc:Rights"], tags["IPTC:CopyrightNotice"], tags["IFD0:Copyright"]), ("© Ana Ruiz",) * 3)
        for tag in ("XMP-photoshop:City", "IPTC:City", "IPTC:Keywords", "XMP-dc:Subject", "ExifIFD:DateTimeOriginal"):
            self.assertNotIn(tag, tags)

    def test_none(self):
        tags = self.made(self.picture("a.gif"), metadata="none")
        self.assertFalse([tag for tag in tags if tag.startswith(("XMP", "IPTC", "ExifIFD")) or "Copyright" in tag], tags)

    def test_places_stay_out(self):
        tags = self.made(self.picture("a.gif"), location=False)
        self.assertEqual(tags["XMP-dc:Title"], "Porto")
        self.assertFalse([tag for tag in tags if "City" in tag or "Country" in tag], tags)

    def test_the_same_type(self):
        """A GIF that is only copied gets them too."""
        tags = self.made(self.picture("a.gif"), type="gif")
        self.assertEqual(tags["XMP-dc:Description"], "Möwe über dem Fluß")

    def test_copies_that_cannot_have_them(self):
        """An AVIF or BMP that is only copied stays as it is, and the result says what it is missing."""
        for name, source in (("a.avif", "rgb.avif"), ("b.bmp", "palette8.bmp")):
            picture = self.picture(name, source=source)
            recipe = self.recipe({"quorlin": 1, "outputs": [{"type": name[2:]}]})
            line = self.lines("--to", "out", recipe, picture)[0]
            self.assertEqual(line["status"], "OK", line)
            self.assertIn("Metadata of its sidecar file is left out, since the file is copied", line["losses"])
            self.assertEqual(Path(line["output"]).read_bytes(), picture.read_bytes(), name)
            self.assertNotIn("XMP-dc:Title", self.tags(line["output"]))

    def test_other_kinds_of_files(self):
        for name, source in (("a.heic", "profile.heic"), ("b.bmp", "palette8.bmp"), ("c.dng", "plain.dng")):
            tags = self.made(self.picture(name, source=source))
            self.assertEqual((tags["XMP-dc:Title"], tags["IPTC:City"]), ("Porto", "Lissabon"), name)

    def test_a_file_with_metadata_of_its_own(self):
        """A JPEG is changed itself, so that a sidecar beside it does not count."""
        tags = self.made(self.picture("a.jpg", source="photo.jpg"))
        self.assertNotIn("Möwe über dem Fluß", tags.values())

    def test_a_name_and_a_damaged_sidecar(self):
        picture = self.picture("a.gif")
        recipe = self.recipe({"quorlin": 1, "outputs": [{"type": "jpeg", "name": "{taken:yyyy}-{name}"}]})
        self.assertEqual(Path(self.lines("--to", "out", recipe, picture)[0]["output"]).name, "2019-a.jpg")
        (self.path("in") / "a.gif.xmp").write_bytes(b"<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF")
        self.assertNotIn("XMP-dc:Title", self.made(picture))


if __name__ == "__main__":
    if shutil.which("exiftool") is None:
        print("exiftool is not installed")
        sys.exit(77)
    batch_world.PROGRAM = sys.argv.pop(1)
    unittest.main()
