#!/usr/bin/env python3
"""conversion_matrix.py SCRIPT_RUNNER own|CORPUS WORK_FOLDER: pictures of every readable type to every target, read by others.

One run of the script runner converts them all. exiftool, ImageMagick, poppler, libtiff and OpenJPEG then check what was
written, and their findings are compared with the table of promises in tools/formats.py. Ends with 77 if there is no
corpus.
"""
import json
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import formats
import picture_folders

SKIPPED = 77
TARGETS = list(formats.PROMISES)
SUFFIX = {"jpeg": "JPEG", "png": "PNG", "tiff": "TIFF", "bmp": "BMP", "gif": "GIF", "jp2": "JP2", "pdf": "PDF"}
FOLDERS = ("formats", "exif-real", "metadata", "orientation", "dpi")
PHOTOS = ("formats/flower.jpg", "formats/photo.jpg")
# More pixels only take time.
MOST_PIXELS = 1_300_000
# Two of 255, which nobody sees.
TWO_LEVELS = 2 / 255
# A few representatives of each series of similar pictures.
SOME = {"orientation": re.compile(r"landscape_[368]|portrait_5|exif_imagemagick|g4_|webp|avif|turned|container"),
        "exif-real": re.compile(r"DSCN|Pentax|Reagan|uc-unicode|i18n|bug528|Canon_40D|Paint"), "dpi": re.compile(""), "metadata": re.compile(""),
        "formats": re.compile("")}
# No decoder here reads these: nothing may come of them.
UNREAD = {"formats/IMG_1361.dng"}
# Tags about how the source's file was put together, about its pixels, or made up by the reader.
OWN_TO_FILE = re.compile(r"Offset|Thumbnail|ImageWidth|ImageHeight|ImageSize|Pixel|ImageLength|StripByte|Interop|BitsPerSample|Compression$"
                         r"|Photometric|SamplesPerPixel|RowsPerStrip|Planar|YCbCr|SampleFormat|Resolution|Orientation|XMPToolkit"
                         r"|ExifByteOrder|PreviewImage|JpgFromRaw|CodedCharacterSet|EnvelopeRecord|ApplicationRecord|MakerNoteUnknown|Tile")
GROUPS = {"exif": ("ExifIFD",), "gps": ("GPS",), "iptc": ("IPTC",), "xmp": ("XMP-",)}


def sources(corpus):
    """The rows of EXPECT.tsv that take part."""
    chosen = []
    for row in picture_folders.rows(corpus):
        folder = row["path"].split("/")[0]
        width, height = (float(side) for side in row["upright_wxh"].split("x")) if "x" in row["upright_wxh"] else (0, 0)
        if folder in FOLDERS and SOME[folder].search(row["path"]) and width * height <= MOST_PIXELS:
            chosen.append(row)
    chosen.sort(key=lambda row: row["path"] not in PHOTOS)
    return chosen


def run(*words, check=True):
    return subprocess.run([str(word) for word in words], check=check, capture_output=True, text=True, errors="replace").stdout


def tags_of(paths):
    """{path: {group: {tag: value}}} as reported by exiftool."""
    text = run("exiftool", "-json", "-G1", "-n", "-a", "-struct", "-charset", "filename=utf8", *paths, check=False)
    found = {}
    for entry in json.loads(text):
        groups = found.setdefault(entry["SourceFile"], {})
        for key, value in entry.items():
            group, _, tag = key.rpartition(":")
            groups.setdefault(group, {})[tag] = value
    return found


def pixels_of(paths):
    """{path: {depth, alpha, signature}} as reported by ImageMagick for the first picture in each."""
    found = {}
    text = run("identify", "-format", r"%i|%m|%w|%h|%z|%A|%[colorspace]|%Q|%#\n", *[f"{path}[0]" for path in paths], check=False)
    for line in text.split("\n"):
        cells = line.split("|")
        if len(cells) == 9:
            found[re.sub(r"\[0\]$", "", cells[0])] = dict(zip(("type", "width", "height", "depth", "alpha", "space", "quality", "signature"), cells[1:]))
    return found


def page_of(path):
    """The one page of a PDF file and the images on it, as reported by poppler."""
    info = run("pdfinfo", path)
    size = re.search(r"Page size:\s+([\d.]+) x ([\d.]+)", info)
    images = [line.split() for line in run("pdfimages", "-list", path).split("\n")[2:] if line]
    return {"pages": int(re.search(r"Pages:\s+(\d+)", info).group(1)), "points": (float(size.group(1)), float(size.group(2))),
            "images": [dict(zip(("page", "num", "type", "width", "height", "color", "comp", "bpc", "enc"), image)) for image in images]}


def others_in(groups):
    """What a TIFF file says about the channels after its colours: "1" and "2" are transparency, "0" is something else.
    """
    return str(groups.get("IFD0", {}).get("ExtraSamples", "")).split()


def carried(groups, kind):
    """The tags of one kind that a file should hand on."""
    return {f"{group}:{tag}": value for group, tags in groups.items() if group.startswith(GROUPS[kind])
            for tag, value in tags.items() if not OWN_TO_FILE.search(tag)}


class Matrix:
    def __init__(self, rows, corpus, out):
        self.rows, self.corpus, self.out = rows, corpus, out
        self.problems, self.checked = [], 0
        made = [str(self.path(number, target)) for number in range(len(rows)) for target in TARGETS]
        there = [path for path in made if Path(path).exists()]
        self.tags = tags_of(there + [str(corpus / row["path"]) for row in rows])
        self.pixels = pixels_of([path for path in there if not path.endswith(".pdf")])

    def path(self, number, target):
        return self.out / f"{number}.{target}"

    def expect(self, holds, row, target, text):
        self.checked += 1
        if not holds:
            self.problems.append(f"{row['path']} to {target}: {text}")

    def check(self):
        for number, row in enumerate(self.rows):
            for target in TARGETS:
                path = self.path(number, target)
                readable = row["path"] not in UNREAD
                self.expect(path.exists() == readable, row, target, "no file" if readable else "a file of something that cannot be read")
                if path.exists() and readable:
                    self.check_file(row, target, str(path))
        names = {path.name for path in self.out.iterdir()}
        wanted = {f"{n}.{t}" for n, row in enumerate(self.rows) for t in TARGETS if row["path"] not in UNREAD}
        left = {name for name in names - wanted if not name.startswith("quality-")}
        self.expect(not left, {"path": "all"}, "all", f"files that nobody asked for: {sorted(left)}")

    def check_file(self, row, target, path):
        promise = formats.PROMISES[target]
        tags = self.tags.get(path, {})
        self.expect(tags.get("File", {}).get("FileType") == SUFFIX[target], row, target, f"is a {tags.get('File', {}).get('FileType')}")
        page = page_of(path) if target == "pdf" else None
        self.check_size(row, target, tags, page, promise)
        self.check_depth(row, target, path, page, promise)
        self.check_profile(row, target, tags, page, promise)
        self.check_alpha(row, target, tags, path, page, promise)
        self.check_resolution(row, target, tags, page, promise)
        self.check_metadata(row, target, tags, promise)

    def size_of(self, row, promise):
        in_container = row["format"] in ("HEIC", "AVIF", "PDF", "SVG")
        text = row["stored_wxh"] if promise["size"] == "stored" and not in_container else row["upright_wxh"]
        return tuple(round(float(side)) for side in text.split("x"))

    def check_size(self, row, target, tags, page, promise):
        if page is not None:
            image = page["images"][0] if page["images"] else {"width": "0", "height": "0"}
            size = (int(image["width"]), int(image["height"]))
            self.expect(page["pages"] == 1, row, target, f"{page['pages']} pages")
        else:
            every = {tag: value for group in tags.values() for tag, value in group.items()}
            own = tags.get("IFD0" if target == "tiff" else "PNG" if target == "png" else "Jpeg2000" if target == "jp2" else "File", every)
            size = (own.get("ImageWidth", every.get("ImageWidth")), own.get("ImageHeight", every.get("ImageHeight")))
        self.expect(size == self.size_of(row, promise), row, target, f"{size} instead of {self.size_of(row, promise)}")
        stated = tags.get("IFD0", {}).get("Orientation", 1)
        source = int(row["orientation"]) if row["orientation"].isdigit() and 1 <= int(row["orientation"]) <= 8 else 1
        wanted = source if promise["orientation"] == "tag" and row["format"] not in ("HEIC", "AVIF") else 1
        self.expect(stated == wanted, row, target, f"orientation {stated} instead of {wanted}")

    def check_depth(self, row, target, path, page, promise):
        deep = row["bit_depth"] in ("10", "12", "16", "32") and promise["depth"] == formats.KEPT
        # Floating point stays in TIFF, and becomes 16 bits elsewhere.
        most = 32 if row["bit_depth"] == "32" and target == "tiff" else 16
        depth = int(page["images"][0]["bpc"]) if page is not None and page["images"] else int(self.pixels.get(path, {}).get("depth", 0))
        # ImageMagick reports the depth that the pixels need, not the file's.
        right = depth == (most if deep else 8) or (page is None and not deep and 1 <= depth <= 8)
        self.expect(right, row, target, f"{depth} bits instead of {most if deep else 8}")

    def check_profile(self, row, target, tags, page, promise):
        profile = "" if row["icc_profile"] == "-" else row["icc_profile"]
        if page is not None:
            is_icc = bool(page["images"]) and page["images"][0]["color"] == "icc"
            self.expect(is_icc == bool(profile), row, target, f"colours by {page['images'][0]['color']}")
            return
        found = str(tags.get("ICC_Profile", {}).get("ProfileDescription", ""))
        if promise["profile"] == formats.KEPT and row["colour_model"] in ("rgb", "gray", "palette"):
            self.expect(found == profile, row, target, f"profile '{found}' instead of '{profile}'")
        elif promise["profile"] == "srgb":
            self.expect(found == "", row, target, f"profile '{found}'")
        elif promise["profile"] == "matrix":
            self.expect(found in ("", profile), row, target, f"profile '{found}'")

    def check_alpha(self, row, target, tags, path, page, promise):
        wanted = row["has_alpha"] == "yes" and promise["alpha"] == formats.KEPT
        if page is not None:
            has = any(image["type"] == "smask" for image in page["images"])
        else:
            has = self.pixels.get(path, {}).get("alpha") in ("True", "Blend")
        if target == "tiff":
            # ImageMagick takes a fourth channel for transparency whatever its tag says.
            has = bool({"1", "2"} & set(others_in(tags)))
            self.check_others(row, path)
        # A GIF has one transparent index, which need not be used, and a palette need not say that all of it is opaque.
        if target != "gif" and row["format"] not in ("GIF", "WEBP", "SVG", "PDF"):
            self.expect(has == wanted, row, target, "transparency " + ("made up" if has else "lost"))

    def check_others(self, row, path):
        """A channel that is neither colour nor transparency is there in another TIFF file, sample for sample."""
        source = str(self.corpus / row["path"])
        if "0" in others_in(self.tags.get(source, {})):
            marks = [pixels_of([each])[each]["signature"] for each in (source, path)]
            said = others_in(self.tags.get(path, {}))
            self.expect("0" in said and marks[0] == marks[1], row, "tiff", f"the channel beside the colours is changed or lost, {said}")

    def check_resolution(self, row, target, tags, page, promise):
        is_stated = row["dpi_x"] not in ("-", "0") and row["format"] not in ("PDF", "SVG")
        dpi = float(row["dpi_x"]) if is_stated else 72.0
        width, height = self.size_of(row, promise)
        if promise["resolution"] == "page":
            # Only the horizontal resolution is known.
            points = width * 72 / dpi
            right = abs(page["points"][0] - points) <= 0.01 * points + 0.01
            self.expect(right, row, target, f"a page of {page['points']} points for {width} x {height} at {dpi} dpi")
        elif promise["resolution"] == formats.KEPT and is_stated:
            found = stated_dpi(target, tags)
            self.expect(abs(found - dpi) <= 0.006 * dpi, row, target, f"{found} dpi instead of {dpi}")

    def check_metadata(self, row, target, tags, promise):
        source = self.tags[str(self.corpus / row["path"])]
        for kind in GROUPS:
            before, after = carried(source, kind), carried(tags, kind)
            if promise[kind] == formats.KEPT:
                changed = [tag for tag, value in before.items() if after.get(tag) != value]
                self.expect(not changed, row, target, f"{kind}: {len(changed)} of {len(before)} tags changed or lost, such as {changed[:4]}")
            elif target != "pdf":
                self.expect(not after, row, target, f"{kind}: {sorted(after)[:4]}")
        if promise["exif"] == formats.KEPT and source.get("IFD0", {}).get("Make") and row["format"] == "JPEG":
            self.expect(tags.get("IFD0", {}).get("Make") == source["IFD0"]["Make"], row, target, "the camera is lost")

    def colours_of(self, path):
        """A signature of the colours alone if there are other channels."""
        if others_in(self.tags.get(path, {})):
            return run("convert", f"{path}[0]", "-alpha", "off", "-format", "%#", "info:")
        return self.pixels.get(path, {}).get("signature")

    def check_signatures(self):
        """Lossless targets have the same pixels, whichever program reads them."""
        for number, row in enumerate(self.rows):
            plain = row["icc_profile"] == "-" and row["has_alpha"] == "no" and row["orientation"] in ("-", "1")
            if row["path"] in UNREAD or not plain or row["bit_depth"] != "8" or row["colour_model"] not in ("rgb", "gray"):
                continue
            marks = {self.colours_of(str(self.path(number, target))) for target in ("png", "tiff", "bmp")}
            self.expect(len(marks) == 1, row, "png, tiff and bmp", "not the same pixels")


def stated_dpi(target, tags):
    if target == "png":
        physical = tags.get("PNG-pHYs", {})
        return physical.get("PixelsPerUnitX", 0) * 0.0254
    if target == "bmp":
        return tags.get("File", {}).get("PixelsPerMeterX", 0) * 0.0254
    if target == "jpeg":
        own = tags.get("JFIF", {})
        return own.get("XResolution", 0) * {1: 1, 2: 2.54}.get(own.get("ResolutionUnit"), 0)
    own = tags.get("IFD0", {})
    return own.get("XResolution", 0) * (2.54 if own.get("ResolutionUnit") == 3 else 1)


def check_tiff_and_jp2(matrix):
    """libtiff finds one directory without a warning; OpenJPEG's own tool decodes every JPEG 2000 file."""
    for number, row in enumerate(matrix.rows):
        if row["path"] in UNREAD:
            continue
        read = subprocess.run(["tiffinfo", str(matrix.path(number, "tiff"))], capture_output=True, text=True, errors="replace")
        directories = len(re.findall(r"^=== TIFF directory \d+ ===", read.stdout, re.M)) or read.stdout.count("TIFF Directory at")
        matrix.expect(read.returncode == 0 and directories == 1, row, "tiff", f"libtiff: {directories} directories, {read.stderr[:80]}")
        path = matrix.path(number, "jp2")
        unpacked = matrix.out.parent / "unpacked.png"
        unpacked.unlink(missing_ok=True)
        read = subprocess.run(["opj_decompress", "-quiet", "-i", str(path), "-o", str(unpacked)], capture_output=True)
        matrix.expect(read.returncode == 0 and unpacked.exists(), row, "jp2", "OpenJPEG cannot decode it")


def check_qualities(matrix):
    """The codes give the encoder's qualities, and sizes that grow with them."""
    paths = {code: matrix.out / f"quality-{code}.jpeg" for code in [*"123456789", "10", ""]}
    found = pixels_of([str(path) for path in paths.values()])
    qualities = [int(found[str(path)]["quality"]) for path in paths.values()]
    wanted = [10, 20, 30, 40, 50, 60, 70, 80, 90, 90, 90]
    matrix.expect(qualities == wanted, matrix.rows[0], "jpeg", f"qualities {qualities}")
    sizes = [path.stat().st_size for path in paths.values()]
    grows = all(small < large for small, large in zip(sizes[:8], sizes[1:9])) and len(set(sizes[8:])) == 1
    matrix.expect(grows, matrix.rows[0], "jpeg", f"sizes {sizes}")


def softened(path, work, name):
    """A picture as an eye has it that does not see single dots."""
    made = work / f"{name}.png"
    subprocess.run(["mogrify", "-format", "png", "-path", str(work / "soft"), "-strip", "-alpha", "off", "-blur", "0x1.5", str(path)], check=True)
    (work / "soft" / (Path(path).stem + ".png")).rename(made)
    return made


def check_gif(matrix, work):
    """A photograph as GIF is as near to itself as ImageMagick makes it, with as many colours."""
    (work / "soft").mkdir(parents=True, exist_ok=True)
    (work / "theirs").mkdir(exist_ok=True)
    truth = matrix.path(0, "png")
    shutil.copy(truth, work / "theirs" / "photo.png")
    subprocess.run(["mogrify", "-format", "gif", str(work / "theirs" / "photo.png")], check=True)
    original = softened(truth, work, "original")
    def error(path, against):
        text = subprocess.run(["compare", "-metric", "RMSE", str(against), str(path), "null:"], capture_output=True, text=True).stderr
        return float(re.search(r"\(([\d.e-]+)\)", text).group(1))

    ours, theirs = matrix.path(0, "gif"), work / "theirs" / "photo.gif"
    dots = [error(path, truth) for path in (ours, theirs)]
    seen = [error(softened(path, work, name), original) for path, name in ((ours, "ours"), (theirs, "theirs"))]
    print(f"GIF of a photograph, ours and ImageMagick's: error {dots[0]:.4f} and {dots[1]:.4f}, softened {seen[0]:.4f} and {seen[1]:.4f}")
    matrix.expect(dots[0] < dots[1], matrix.rows[0], "gif", f"error {dots[0]}, ImageMagick's {dots[1]}")
    matrix.expect(seen[0] < TWO_LEVELS, matrix.rows[0], "gif", f"colours are off by {seen[0]}")


def main(runner, pictures, work):
    corpus = picture_folders.named(pictures)
    if corpus is None:
        return SKIPPED
    rows = sources(corpus)
    shutil.rmtree(work, ignore_errors=True)
    out = work / "out"
    out.mkdir(parents=True)
    answers = run(runner, Path(__file__).with_name("conversion-matrix.js"), out, *[corpus / row["path"] for row in rows]).split("\n")
    matrix = Matrix(rows, corpus, out)
    matrix.expect(len([line for line in answers if line]) == 7 * len(rows) + 11, {"path": "all"}, "all", "not every conversion answered")
    matrix.check()
    matrix.check_signatures()
    check_tiff_and_jp2(matrix)
    check_qualities(matrix)
    check_gif(matrix, work)
    print(f"{len(rows)} pictures, {matrix.checked} checks, {len(matrix.problems)} problems")
    print("\n".join(matrix.problems))
    return 1 if matrix.problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], Path(sys.argv[3])))
