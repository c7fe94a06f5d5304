#!/usr/bin/env python3
"""formats.py [--check] FILE: what a conversion by the services keeps, as docs/formats.md shows it. Writes FILE, or compares it.

Beside FILE, which is in docs/, it does the same with the tables in manual/convert.md and manual/output.md, which say
what the actions of the window keep: these make recipes. What a format keeps, and what the product calls it, is read
from the program's own tables; PROMISES adds what a conversion makes of it. A test converts real pictures and compares
the results with it, using programs that are not ours.
"""
import re
import sys
from pathlib import Path

PROPERTIES = {
    "size": "Pixels", "depth": "16 bits", "profile": "Colour profile", "alpha": "Transparency", "resolution": "Resolution",
    "orientation": "Orientation", "exif": "EXIF with maker notes", "gps": "GPS", "iptc": "IPTC", "xmp": "XMP",
}
KEPT = "kept"
NOT = "-"
# What happens to each property. "stored": the pixels as they are stored, with the tag that turns them. "upright":
# turned upright, since no tag would do it. "srgb": colours are converted to sRGB. "matrix": kept if it is a grey or
# matrix RGB profile, else converted. "black": flattened onto black. "page": the page's size in points.
ROOT = Path(__file__).resolve().parents[1]
TABLE = ROOT / "platform/imageio/formats/formats.cpp"
OUTPUTS = ROOT / "image/types/output_types.cpp"
ACTIONS = ROOT / "interface/actions"


def output_types():
    """What the product's table says: keyword to (type identifier, word of lists, whether metadata is handed on)."""
    rows = re.findall(r'\.identifier = latin1\("([^"]+)"\),\s*\.keyword = latin1\("([^"]+)"\),\s*\.word = latin1\("([^"]+)"\)(.*?)\}',
                      OUTPUTS.read_text(encoding="utf-8"), re.S)
    return {keyword: (name, word, ".carriesMetadata = true" in rest) for name, keyword, word, rest in rows}


_OUTPUTS = output_types()
# In the order of the columns: those that keep most come first.
TARGETS = {keyword: _OUTPUTS[keyword][0] for keyword in ("png", "tiff", "pdf", "jpeg", "jp2", "gif", "bmp")}
NAMES = {keyword: _OUTPUTS[keyword][1] for keyword in TARGETS}
# A conversion hands metadata on into these types, and leaves pixels as they are stored; those in other types are turned upright.
CARRYING = tuple(keyword for keyword in TARGETS if _OUTPUTS[keyword][2])


def kept_by_format():
    """What the table of formats says: type identifier to {name of a field: "true", "Yes", "IfItFits" ...}."""
    rows = re.findall(r'\.identifier = latin1\("([^"]+)"\)(.*?)(?=\{\.content|^\}\};)', TABLE.read_text(encoding="utf-8"), re.S | re.M)
    return {name: dict(re.findall(r"\.(\w+) = (?:Kept::)?(\w+)", text.partition(".keeps")[2])) for name, text in rows}


def promises(target, kept):
    """What happens to each property in a file of one type."""
    metadata = KEPT if target in CARRYING else NOT
    return {"size": "stored" if target in CARRYING else "upright", "depth": KEPT if "depth16" in kept else NOT,
            "profile": {"Yes": KEPT, "IfItFits": "matrix"}.get(kept.get("profile"), "srgb"),
            "alpha": KEPT if "alpha" in kept else "black",
            "resolution": "page" if target == "pdf" else KEPT if "resolution" in kept else NOT,
            "orientation": "tag" if target in CARRYING else "turned",
            **{name: metadata for name in ("exif", "gps", "iptc", "xmp")}}


_KEPT = kept_by_format()
PROMISES = {target: promises(target, _KEPT[name]) for target, name in TARGETS.items()}
# The same of all that the window writes, in the order of its lists.
IN_WINDOW = {keyword: promises(keyword, _KEPT[name]) for keyword, (name, *_) in _OUTPUTS.items()}
# How far the pixels of a target may be off on average, of 255. GIF has 256 colours, and mixes others by dots of these, each of
# which differs although the overall impression does not: its bound is measured on photographs and only reveals a wrong
# picture.
BOUNDS = {"png": 0.5, "tiff": 0.5, "bmp": 0.5, "pdf": 0.5, "jpeg": 3, "jp2": 3, "gif": 12}
# What a source can hold, by the name that exiftool has for its type.
SOURCES = {
    "JPEG": "profile resolution orientation exif gps iptc xmp", "PNG": "depth profile alpha resolution orientation exif gps iptc xmp",
    "TIFF": "depth profile alpha resolution orientation exif gps iptc xmp", "HEIC": "profile alpha resolution exif gps xmp",
    "AVIF": "profile alpha", "WEBP": "profile alpha resolution orientation exif gps xmp", "PSD": "profile alpha resolution exif gps iptc xmp",
    "JP2": "depth profile alpha resolution orientation exif gps iptc xmp", "GIF": "alpha", "BMP": "profile resolution", "PDF": "alpha",
    "SVG": "alpha",
}
# What results of recipes, and of all actions of the window, keep of each kind of metadata; None if not applicable.
IN_XMP = "as XMP"
KINDS = {"exif": "EXIF", "maker": "Maker notes", "gps": "GPS", "iptc": "IPTC", "xmp": "XMP", "comment": "Comment", "resolution": "Resolution"}
_BLOCKS = dict.fromkeys(KINDS, KEPT)
_CONTAINER = {**_BLOCKS, "iptc": IN_XMP, "comment": NOT}
HELD = {
    "jpeg": _BLOCKS, "png": _BLOCKS, "tiff": {**_BLOCKS, "comment": NOT}, "jp2": {**_BLOCKS, "comment": NOT},
    "webp": _CONTAINER, "avif": _CONTAINER, "jxl": _CONTAINER,
    "gif": {**_BLOCKS, "exif": IN_XMP, "maker": NOT, "gps": IN_XMP, "iptc": IN_XMP, "resolution": IN_XMP},
    "pdf": {**_BLOCKS, "exif": IN_XMP, "maker": NOT, "gps": IN_XMP, "iptc": IN_XMP, "comment": NOT, "resolution": None},
    "bmp": {**dict.fromkeys(KINDS, NOT), "resolution": KEPT},
}
SHORT = {"depth": "16 bits", "profile": "profile", "alpha": "transparency", "resolution": "resolution", "exif": "EXIF", "gps": "GPS",
         "iptc": "IPTC", "xmp": "XMP"}
WORDS = {KEPT: "kept", NOT: "no", "stored": "as stored", "upright": "upright", "tag": "tag kept", "turned": "turned upright",
         "srgb": "converted to sRGB", "matrix": "kept if it fits, else sRGB", "black": "laid on black", "page": "size of the page"}


def lost(source, target):
    """What a file of this type can hold and the target cannot, in words."""
    gone = [SHORT[name] for name in SOURCES[source].split() if name in SHORT and PROMISES[target][name] in (NOT, "srgb", "black")]
    return ", ".join(gone) or "nothing"


def becomes(kind, source, target):
    """
    What happens to one kind of metadata in a file of the target's type; source says how a file has each of them. A resolution
    that only XMP states is read like any other.
    """
    held = HELD[target][kind]
    has = KEPT if kind == "resolution" and source[kind] == IN_XMP else source[kind]
    if held is None or held == KEPT and has != IN_XMP:
        return held and has
    if NOT in (held, has) or has == IN_XMP and HELD[target]["xmp"] == NOT:
        return NOT
    return IN_XMP


def given_up(source, target):
    """What a file of this type may hold of the metadata and one of the target will not, or only in XMP, in words."""
    gone, as_xmp = [], []
    for kind, words in KINDS.items():
        there, result = HELD[source][kind], becomes(kind, HELD[source], target)
        if there in (KEPT, IN_XMP) and result == NOT:
            gone.append(words)
        elif there == KEPT and result == IN_XMP:
            as_xmp.append(words)
    parts = [", ".join(gone)] * bool(gone) + [", ".join(as_xmp) + " " + IN_XMP] * bool(as_xmp)
    return "; ".join(parts) or "nothing"


def recipe_tables():
    """What results of recipes keep of the metadata."""
    names = {keyword: _OUTPUTS[keyword][1] for keyword in HELD}
    lines = ["", "## What recipes keep", "", "Recipes, `quorlin-batch` and all actions of the window keep metadata in every type that can hold it. A test makes a file",
             "of every type, and from each of these one of every type, and reads them with exiftool. A result has what its source has and",
             "its own type can hold:", "", row([""] + list(names.values())), "|---" * (len(names) + 1) + "|"]
    for kind, words in KINDS.items():
        lines.append(row([words] + [{NOT: "no", None: "size of the page"}.get(HELD[target][kind], HELD[target][kind]) for target in HELD]))
    lines += ["", "So this is lost between one type and another, if the source has it:", "",
              row(["from"] + ["to " + name for name in names.values()]), "|---" * (len(names) + 1) + "|"]
    for source in HELD:
        if source != "pdf":  # whose pages are drawn
            lines.append(row([names[source]] + [given_up(source, target) for target in HELD]))
    lines += ["", "HEIC, AVIF and PSD files from elsewhere, and the previews of raw files, have what a JPEG has except comments. Orientation, size in",
              "pixels and thumbnail are corrected or removed. Other data in the file is removed together with the tags that announce it, and the plan",
              "says so: further pictures (MPF), gain maps, motion, signed credentials, camera makers’ segments, and bytes after the picture.",
              ""]
    return lines


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
              "are neither colour nor transparency are kept from TIFF to TIFF; elsewhere the first three become RGB and the last are dropped.",
              "Signed and long samples, and those of less than 8 bits, are scaled to the full range of 8 or 16 bits. Of files with several",
              "pictures, pages or frames the first one is converted. An upright JPEG is copied into a PDF page byte for byte, with everything",
              "in it; one that is stored sideways is rotated first, without loss if possible. The texts and the gamma of a PNG are",
              "copied into a PNG. PDF and SVG are drawn at 72 pixels per inch.", "",
              "## What gets lost", "", row(["from"] + ["to " + NAMES[name] for name in targets]),
              "|---" * (len(targets) + 1) + "|"]
    for source in SOURCES:
        lines.append(row([source] + [lost(source, target) for target in targets]))
    lines += ["", "## How close the pixels are", "", "The mean difference from what another program reads in the source, out of 255, is at most this. A test converts pictures of",
              "every kind and has other programs compare them; the differences come from rounding 16 bits to 8, from lossy types, and from",
              "the 256 colours of a GIF, which mixes other colours from dots of these: each dot differs, the overall impression does not.",
              "The best JPEG of a conversion has quality 90 of 100, with colours at full resolution. It loses only the rounding of its",
              "coefficients: usually less than 2, up to 5.2 for dithered colours and 6.4 for noise, in any encoder. Beyond 3 a JPEG is",
              "therefore compared with that of another program at this quality, which may lose two hundredths less.",
              "The sRGB values of 8-bit Lab are calculated by its formula.", "",
              row([NAMES[target] for target in targets]), "|---" * len(targets) + "|", row([f"{BOUNDS[target]:g}" for target in targets])]
    lines += ["", "A PDF page has the picture's size in points, so that its pixels determine its resolution."] + recipe_tables()[:-1]
    return "\n".join(lines) + "\n"


# Those that are one column of the manual.
OF_THE_WEB = ("webp", "avif", "jxl")


def in_manual(target, name):
    """What happens to a property in a recipe, in the few words of the manual."""
    words = {KEPT: "yes", NOT: "no", "matrix": "if it fits", "srgb": "sRGB", "black": "a colour", "page": "page size"}
    if name in ("exif", "resolution") and IN_WINDOW[target][name] in (KEPT, NOT):
        held = HELD[target][name]
        return held if held == IN_XMP else words[held]
    return words[IN_WINDOW[target][name]]


def manual_table():
    """What Convert keeps, in the few words of the manual."""
    rows = {"16 bits": "depth", "Profile": "profile", "Transparency": "alpha", "Resolution": "resolution", "Metadata": "exif"}
    lines = [row([""] + [_OUTPUTS[name][1] for name in IN_WINDOW]).replace("|  |", "| |"), row(["---"] * (len(IN_WINDOW) + 1))]
    return "\n".join(lines + [row([said] + [in_manual(target, name) for target in IN_WINDOW]) for said, name in rows.items()])


def kept_in_words(target):
    promised = promises(target, _KEPT[_OUTPUTS[target][0]])["profile"]
    profile = {KEPT: ["profile"], "matrix": ["profile if it fits"]}.get(promised, [])
    return ", ".join(profile + ["metadata"] * (HELD[target]["exif"] == KEPT)) or "pixels"


def kept_in_all(targets):
    """The same of several, which are one column."""
    words = {kept_in_words(target) for target in targets}
    if len(words) > 1:
        raise SystemExit(f"formats.py: {', '.join(targets)} are one column in the manual and keep different things")
    return words.pop()


def made_by_recipes():
    """Whether all actions that write pictures say that they are. One that makes a file of all of them together says so."""
    offers = [re.search(r"^export const offer = (.*?);$", step.read_text(encoding="utf-8"), re.M | re.S)
              for step in sorted(ACTIONS.glob("*/*-step.js"))]
    return all("byRecipe: true" in offer.group(1) for offer in offers if offer is not None and "types:" in offer.group(1) and "oneFile: true" not in offer.group(1))


def actions_table():
    """What the actions keep, in the few words of the manual."""
    if not made_by_recipes():
        raise SystemExit("formats.py: not every action makes a recipe, as the manual says")
    columns = ("jpeg", "png", "tiff", "jp2")
    web = ", ".join(_OUTPUTS[name][1] for name in OF_THE_WEB)
    return "\n".join([row([""] + [NAMES[name] for name in columns] + [web, "GIF, BMP"]).replace("|  |", "| |"),
                      row(["---"] * (len(columns) + 3)),
                      row(["kept"] + [kept_in_words(name) for name in columns] + [kept_in_all(OF_THE_WEB), kept_in_all(("gif", "bmp"))])])


def with_table(page, before, table):
    """The page of the manual with that table replacing the first one after the text `before`."""
    head, mark, rest = page.partition(before)
    if not re.match(r"\|", rest):
        raise SystemExit(f"formats.py: no table stands behind {before!r}")
    return head + mark + re.sub(r"\A(\|[^\n]*\n)+", table + "\n", rest)


def main(arguments):
    path = Path(arguments[-1])
    convert, output = path.parent / "manual/convert.md", path.parent / "manual/output.md"
    wanted = {path: text(),
              convert: with_table(convert.read_text(encoding="utf-8"), "## What is kept, exactly\n\n", manual_table()),
              output: with_table(output.read_text(encoding="utf-8"), "## What is kept\n\n", actions_table())}
    if arguments[0] != "--check":
        for name, content in wanted.items():
            name.write_text(content, encoding="utf-8")
        return 0
    wrong = [name.name for name, content in wanted.items() if name.read_text(encoding="utf-8") != content]
    for name in wrong:
        print(f"{name} is not what the table says: run tools/formats.py docs/formats.md")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
