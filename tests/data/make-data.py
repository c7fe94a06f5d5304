#!/usr/bin/env python3
"""make-data.py: writes the property lists and the table of names of this folder, with Python's own libraries."""
import datetime
import plistlib
import unicodedata
from pathlib import Path

HERE = Path(__file__).resolve().parent
EVERYTHING = {
    "Array": [1, "two", [3.5, False]], "Big": 2 ** 62, "Data": bytes(range(40)), "Date": datetime.datetime(2026, 5, 17, 14, 3, 9),
    "Dict": {"inner": {"deep": True}, "list": []}, "Empty": "", "False": False, "Int": 42, "Neg": -7, "Real": 0.1,
    "String": "plain words", "True": True, "Unicode": "Grüße 写真 😀", "key with spaces & <xml> \"quotes\"": "a < b & c",
}
NAMES = [
    "IMG_0001.JPG", "photo.final.v2.jpeg", ".hidden", ".hidden.jpg", "no extension", "trailing dot.", "two..dots.png",
    " leading and trailing .jpg ", "it's \"quoted\".tif", "a<h1>b.jpg", "per%20cent & hash#.gif", "back\\slash.jpg",
    "line\nbreak.jpg", "tab\there.png", "Crème brûlée.jpg", "Cre\u0300me bru\u0302le\u0301e.jpg", "Ærøskøbing Straße.jpg",
    "ΩΜΕΓΑ σίγμα.tif", "Привет мир.png", "İstanbul ılık.jpg", "ǆ Ǆ ǅ.jpg", "ﬁnest ﬂower.jpg", "写真 2026年.jpg", "사진.jpg",
    "עברית.jpg", "เที่ยว.jpg", "👩‍👩‍👧 family 🏖️.heic", "zero\u200bwidth\ufeff.jpg", "n\u0303o\u0308\u0323.jpg", "-rf *.jpg",
    "~tilde.jpg", "CON.jpg", "x" * 200 + ".jpg",
]


def escaped(text):
    return text.replace("\\", "\\\\").replace("\t", "\\t").replace("\n", "\\n").replace("\r", "\\r")


def main():
    for form, name in ((plistlib.FMT_XML, "all-types-xml.plist"), (plistlib.FMT_BINARY, "all-types-binary.plist")):
        (HERE / "plist" / name).write_bytes(plistlib.dumps(EVERYTHING, fmt=form))
    rows = ["\t".join(["name", "nfc", "nfd", "nfkc", "lower", "upper"])]
    for name in NAMES:
        forms = [unicodedata.normalize(form, name) for form in ("NFC", "NFD", "NFKC")]
        rows.append("\t".join(escaped(each) for each in [name, *forms, name.lower(), name.upper()]))
    (HERE / "names" / "names-expect.tsv").write_text("\n".join(rows) + "\n", encoding="utf-8", newline="\n")


main()
