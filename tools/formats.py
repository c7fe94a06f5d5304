#!/usr/bin/env python3
"""formats.py [--check] FILE: what a conversion keeps, as docs/formats.md shows it. Writes FILE, or compares it.

PROMISES is the one table of that; a test converts real pictures and holds programs that are not ours against it.
"""
import sys
from pathlib import Path

PROPERTIES = {
    "size": "Pixels", "depth": "16 bits", "profile": "Colour profile", "alpha": "Transparency", "resolution": "Resolution",
    "orientation": "Orientation", "exif": "EXIF with maker notes", "gps": "GPS", "iptc": "IPTC", "xmp": "XMP",
}
KEPT = "kept"
NOT = "-"
# What becomes of each property. "stored": the pixels as they are stored, with the tag that turns them. "upright": turned
# upright, since no tag would do it. "srgb": colours are converted to sRGB. "matrix": kept where it is a profile of grey, or
# of three colours by a matrix, else converted. "black": laid on black. "page": the page's size in points.
PROMISES = {
    "png": {"size": "stored", "depth": KEPT, "profile": KEPT, "alpha": KEPT, "resolution": KEPT, "orientation": "tag",
            "exif": KEPT, "gps": KEPT, "iptc": KEPT, "xmp": KEPT},
    "tiff": {"size": "stored", "depth": KEPT, "profile": KEPT, "alpha": KEPT, "resolution": KEPT, "orientation": "tag",
             "exif": KEPT, "gps": KEPT, "iptc": KEPT, "xmp": KEPT},
    "pdf": {"size": "upright", "depth": KEPT, "profile": KEPT, "alpha": KEPT, "resolution": "page", "orientation": "turned",
            "exif": NOT, "gps": NOT, "iptc": NOT, "xmp": NOT},
    "jpeg": {"size": "upright", "depth": NOT, "profile": KEPT, "alpha": "black", "resolution": KEPT, "orientation": "turned",
             "exif": NOT, "gps": NOT, "iptc": NOT, "xmp": NOT},
    "jp2": {"size": "upright", "depth": KEPT, "profile": "matrix", "alpha": KEPT, "resolution": NOT, "orientation": "turned",
            "exif": NOT, "gps": NOT, "iptc": NOT, "xmp": NOT},
    "gif": {"size": "upright", "depth": NOT, "profile": "srgb", "alpha": KEPT, "resolution": NOT, "orientation": "turned",
            "exif": NOT, "gps": NOT, "iptc": NOT, "xmp": NOT},
    "bmp": {"size": "upright", "depth": NOT, "profile": "srgb", "alpha": "black", "resolution": KEPT, "orientation": "turned",
            "exif": NOT, "gps": NOT, "iptc": NOT, "xmp": NOT},
}
# How far the pixels of a target may be off on average, of 255. GIF has 256 colours, and mixes others by dots of these, each of
# which is off though what is seen of them is not: its bound is measured on photographs and only tells a wrong picture.
BOUNDS = {"png": 0.5, "tiff": 0.5, "bmp": 0.5, "pdf": 0.5, "jpeg": 3, "jp2": 3, "gif": 12}
NAMES = {"png": "PNG", "tiff": "TIFF", "pdf": "PDF", "jpeg": "JPEG", "jp2": "JPEG 2000", "gif": "GIF", "bmp": "BMP"}
# What a source can hold, by the name that exiftool has for its type.
SOURCES = {
    "JPEG": "profile resolution orientation exif gps iptc xmp", "PNG": "depth profile alpha resolution orientation exif gps iptc xmp",
    "TIFF": "depth profile alpha resolution orientation exif gps iptc xmp", "HEIC": "profile alpha resolution exif gps xmp",
    "AVIF": "profile alpha", "WEBP": "profile alpha resolution orientation exif gps xmp", "PSD": "profile alpha resolution exif gps iptc xmp",
    "JP2": "depth profile alpha resolution orientation exif gps iptc xmp", "GIF": "alpha", "BMP": "profile resolution", "PDF": "alpha",
    "SVG": "alpha",
}
SHORT = {"depth": "16 bits", "profile": "profile", "alpha": "transparency", "resolution": "resolution", "exif": "EXIF", "gps": "GPS",
         "iptc": "IPTC", "xmp": "XMP"}
WORDS = {KEPT: "kept", NOT: "no", "stored": "as stored", "upright": "upright", "tag": "tag kept", "turned": "turned upright",
         "srgb": "converted to sRGB", "matrix": "kept if it fits, else sRGB", "black": "laid on black", "page": "size of the page"}


def lost(source, target):
    """What a file of this type can hold and the target cannot, in words."""
    gone = [SHORT[name] for name in SOURCES[source].split() if name in SHORT and PROMISES[target][name] in (NOT, "srgb", "black")]
    return ", ".join(gone) or "nothing"


def row(cells):
    return "| " + " | ".join(cells) + " |"


def text():
    targets = list(PROMISES)
    lines = ["# What a conversion keeps", "",
             "Made by `tools/formats.py` from its table; a test converts real pictures and reads them with exiftool, ImageMagick,",
             "poppler, libtiff and OpenJPEG. Do not change it by hand.", "", row([""] + [NAMES[name] for name in targets]),
             "|---" * (len(targets) + 1) + "|"]
    for name, words in PROPERTIES.items():
        lines.append(row([words] + [WORDS[PROMISES[target][name]] for target in targets]))
    lines += ["", "CMYK stays in TIFF, JPEG and PDF; elsewhere it becomes sRGB. Lab, floating point, CMYK with transparency and channels that",
              "are neither colour nor transparency stay from TIFF to TIFF; elsewhere the first three become RGB and the last are left out.",
              "Signed and long samples, and those of less than 8 bits, are brought to the full range of 8 or 16 bits. Of files with several",
              "pictures, pages or frames the first one is converted. A JPEG goes into a PDF page byte for byte where it is upright, with",
              "whatever it holds in itself; one that lies on its side is turned first, without loss where that can be done. What a PNG says",
              "in texts, and its gamma, goes along into a PNG. PDF and SVG are drawn at 72 pixels per inch.", "",
              "## What gets lost", "", row(["from"] + ["to " + NAMES[name] for name in targets]),
              "|---" * (len(targets) + 1) + "|"]
    for source in SOURCES:
        lines.append(row([source] + [lost(source, target) for target in targets]))
    lines += ["", "## How near the pixels are", "", "The mean difference to what another program reads in the source, of 255, is at most this. A test converts pictures of",
              "every kind and has other programs compare them; the differences that are there come of rounding 16 bits to 8, of lossy",
              "types, and of the 256 colours of a GIF, which mixes others by dots of these: each dot is off, what is seen of them is not.",
              "The best JPEG of a conversion has quality 90 of 100, with colours at full resolution. What that loses is the rounding of its",
              "coefficients: most of the time less than 2, up to 5.2 of dithered colours and 6.4 of noise, whoever writes it. Beyond 3 a JPEG is",
              "therefore held against that of another program at this quality, which may lose two hundredths less.",
              "What Lab of 8 bits is in sRGB is calculated by its formula.", "",
              row([NAMES[target] for target in targets]), "|---" * len(targets) + "|", row([f"{BOUNDS[target]:g}" for target in targets])]
    lines += ["", "A PDF page has the picture's size in points, so that its resolution is told by its pixels."]
    return "\n".join(lines) + "\n"


def main(arguments):
    path = Path(arguments[-1])
    if arguments[0] != "--check":
        path.write_text(text(), encoding="utf-8")
        return 0
    if path.read_text(encoding="utf-8") == text():
        return 0
    print(f"{path.name} is not what the table says: run tools/formats.py docs/formats.md")
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
