#!/usr/bin/env python3
"""pixel_matrix.py RUNNER WORK_FOLDER [CORPUS [EXPRESSION]]: pictures of every kind to every type, and how far their pixels are off.

The script runner converts each picture to all targets. Another program reads the source, another reads what was written, and
the mean difference of the two is held against the bound of tools/formats.py. Without CORPUS small pictures of unusual kinds
take part, which ImageMagick makes; with it everything in it of moderate size, or what an expression finds in the name. Ends with 77 where CORPUS is not there.
"""
import re
import shutil
import struct
import subprocess
import sys
import zlib
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import formats

SKIPPED = 77
TARGETS = list(formats.PROMISES)
FOLDERS = ("formats", "found", "dpi", "exif-real", "orientation", "cameras")
# Of larger ones reading takes minutes; of a series of photographs a few say all.
MOST_PIXELS = 1_300_000
SOME = {"orientation": re.compile(r"landscape_[36]|portrait_5|exif_imagemagick|g4_|webp|avif"),
        "exif-real": re.compile(r"DSCN|Reagan|i18n|bug528"), "cameras": re.compile(r"Canon\.jpg|Nikon\.jpg|FLIR|rw2|mrw|cr3|crw|x3f|iiq")}
# Neither the program nor a reader to compare with reads these, or the size by the container is another.
UNREAD = re.compile(r"00r1_graya_la|IMG_1361|iphone-irot")
MADE = {
    "grey.tif": ["-size", "60x40", "gradient:"], "rgb.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-depth", "8"],
    "deep.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-depth", "16"], "deep.png": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-depth", "16"],
    "bits.tif": ["-size", "60x40", "pattern:checkerboard", "-type", "bilevel"],
    "float.tif": ["-size", "60x40", "gradient:", "-depth", "32", "-define", "quantum:format=floating-point"],
    "float-rgb.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-depth", "32", "-define", "quantum:format=floating-point"],
    "signed.tif": ["-size", "60x40", "gradient:", "-depth", "16", "-define", "quantum:format=signed"],
    "cmyk.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-colorspace", "CMYK", "-depth", "8"],
    "deep-cmyk.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-colorspace", "CMYK", "-depth", "16"],
    "cmyk.jpg": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-colorspace", "CMYK", "-quality", "98"],
    "lab.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-colorspace", "Lab", "-depth", "8"],
    "alpha.png": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-alpha", "set", "-channel", "A", "-evaluate", "multiply", "0.6", "+channel"],
    "alpha.tif": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-alpha", "set", "-channel", "A", "-evaluate", "multiply", "0.6", "+channel"],
    "palette.gif": ["-size", "60x40", "gradient:red-blue", "-colors", "64"], "grey.jpg": ["-size", "60x40", "gradient:"],
    "rgb.jpg": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-quality", "95"], "rgb.bmp": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2"],
    "few.bmp": ["-size", "60x40", "gradient:red-blue", "+dither", "-colors", "14", "-type", "palette"], "rgb.psd": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2"],
    "cmyk.psd": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-colorspace", "CMYK"], "grey.psd": ["-size", "60x40", "gradient:", "-colorspace", "Gray"],
    "deep.psd": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-depth", "16"], "rgb.jp2": ["-size", "64x64", "plasma:red-blue", "-blur", "0x2"],
    "rgb.webp": ["-size", "60x40", "plasma:red-blue", "-blur", "0x2", "-quality", "90"],
}


def run(*words):
    return subprocess.run([str(word) for word in words], capture_output=True, text=True, errors="replace", timeout=300)


def made(folder):
    paths = []
    for name, words in MADE.items():
        path = folder / name
        run("convert", "-seed", "7", *words, path)
        if path.exists():
            paths.append(path)
    return paths


def chosen(corpus):
    """The pictures of the corpus that take part, by its table."""
    paths = []
    for table in (corpus / "EXPECT.tsv", corpus / "found" / "EXPECT.tsv", corpus / "cameras" / "EXPECT.tsv"):
        if not table.exists():
            continue
        lines = table.read_text(encoding="utf-8").rstrip("\n").split("\n")
        names = lines[0].split("\t")
        for row in (dict(zip(names, line.split("\t"))) for line in lines[1:]):
            path = (corpus if table.parent == corpus else table.parent) / row["path"]
            folder = path.parent.name
            size = re.fullmatch(r"([\d.]+)x([\d.]+)", row.get("upright_wxh", ""))
            pixels = float(size.group(1)) * float(size.group(2)) if size else MOST_PIXELS + 1
            if folder in FOLDERS and SOME.get(folder, re.compile("")).search(path.name) and pixels <= MOST_PIXELS \
                    and not UNREAD.search(path.name) and row.get("decodable", "yes") == "yes":
                paths.append(path)
    return paths


class Picture:
    """A source, and what other programs see of it."""

    def __init__(self, path, work):
        self.path, self.work = path, work
        self.raw = work / "reference.tif"
        self.problem = self.read()

    def read(self):
        """The pixels as they are stored, by a program that is right for the type, into one TIFF with profile and transparency."""
        kind = self.path.suffix.lower()
        source = f"{self.path}[0]"
        info = run("tiffinfo", "-0", self.path).stdout if kind in (".tif", ".tiff") else ""
        if kind == ".pdf":
            # A chart of fine lines is off by more than 4 of 255 between poppler's two ways of smoothing edges; the other one is not ours.
            run("pdftocairo", "-r", "72", "-png", "-singlefile", self.path, self.work / "page")
            source = self.work / "page.png"
        elif kind in (".heic", ".avif"):
            run("heif-convert", self.path, self.work / "item.png")
            found = sorted(self.work.glob("item*.png"))
            source = found[0] if found else source
        elif kind == ".jp2":
            run("opj_decompress", "-i", self.path, "-o", self.work / "unpacked-source.png")
            source = self.work / "unpacked-source.png" if (self.work / "unpacked-source.png").exists() else source
        elif kind == ".svg":
            run("vips", "copy", self.path, self.work / "drawn.png")
            source = self.work / "drawn.png"
        elif "CIE Log2" in info or "old-style" in info:
            run("tiff2rgba", self.path, self.work / "rgba.tif")
            source = self.work / "rgba.tif"
        words = ["-alpha", "off"] if self.has_only_selections(info) else []
        made = run("convert", "-quiet", source, *words, "-depth", "16", "-compress", "none", self.raw)
        if not self.raw.exists():
            return f"no reference: {made.stderr.strip()[-120:]}"
        facts = run("identify", "-quiet", "-format", "%[colorspace]|%A|%[profile:icc]|%w|%h\n", f"{self.raw}[0]").stdout.split("\n")[0].split("|")
        if len(facts) != 5:
            return "no reference: it cannot be read again"
        self.space, self.has_alpha, self.has_profile = facts[0], facts[1] in ("True", "Blend"), facts[2] != ""
        self.size = (int(facts[3]), int(facts[4]))
        self.orientation = run("exiftool", "-s3", "-n", "-IFD0:Orientation", self.path).stdout.strip() if kind not in (".heic", ".avif") else ""
        return None

    def has_only_selections(self, info):
        kind = self.path.suffix.lower()
        if kind in (".tif", ".tiff"):
            return "alpha" not in info
        # Only a negative count of layers says of a Photoshop file that it is transparent.
        return kind == ".psd" and not photoshop_is_transparent(self.path.read_bytes())

    def turned(self, image, upright):
        """Words that turn the reference as the orientation says."""
        turns = {"2": ["-flop"], "3": ["-rotate", "180"], "4": ["-flip"], "5": ["-transpose"], "6": ["-rotate", "90"],
                 "7": ["-transverse"], "8": ["-rotate", "270"]}
        return turns.get(self.orientation, []) if upright else []

    def in_srgb(self):
        """The reference converted by its profile."""
        converted = self.work / "srgb.tif"
        if converted.exists():
            return converted
        plain = self.work / "plain.tif"
        if self.space in ("Lab", "CIELab"):
            if not lab_by_formula(self.path, self.work, converted):
                run("convert", "-quiet", self.raw, "-colorspace", "sRGB", "-depth", "16", converted)
        elif self.space == "CMYK" or self.has_profile:
            source = self.raw
            if self.has_alpha and self.space == "CMYK": # its colours and its transparency one by one
                run("convert", "-quiet", self.raw, "-alpha", "off", self.work / "inks.tif")
                source = self.work / "inks.tif"
            words = ["--embedded"] if self.has_profile else ["--input-profile", "cmyk"]
            run("vips", "icc_transform", source, plain, "srgb", "--intent", "relative", "--depth", "16", *words)
            if source is not self.raw:
                run("convert", "-quiet", self.raw, "-alpha", "extract", self.work / "alpha.tif")
                run("convert", "-quiet", plain, self.work / "alpha.tif", "-alpha", "off", "-compose", "copy-opacity", "-composite", converted)
            else:
                run("convert", "-quiet", plain, "-strip", "-depth", "16", converted)
        else:
            return self.raw
        return converted


def photoshop_is_transparent(data):
    number = lambda at, size: int.from_bytes(data[at:at + size], "big")
    at = 26
    at += 4 + number(at, 4)
    at += 4 + number(at, 4)
    return number(at, 4) >= 6 and number(at + 4, 4) >= 2 and number(at + 8, 2) >= 0x8000


def readable(path, target, work, inks):
    """What was written as something that ImageMagick reads."""
    if target == "jp2":
        made = work / "unpacked.png"
        made.unlink(missing_ok=True)
        run("opj_decompress", "-i", path, "-o", made)
        return made
    return on_page(path, work, inks) if target == "pdf" else f"{path}[0]"


def on_page(path, work, inks):
    """The picture on a page, with its mask."""
    for old in work.glob("image-*"):
        old.unlink()
    if inks or is_scan(path):
        run("pdfimages", "-all", path, work / "image")
        found = sorted(work.glob("image-*"))
    else:
        found = as_png_files(path, work) # poppler converts by the profile and makes 8 bits of 16
    if len(found) == 2:
        both = work / "image-masked.png"
        run("convert", *found, "-alpha", "off", "-compose", "copy-opacity", "-composite", f"PNG64:{both}")
        return both
    return found[0] if found else work / "none"


def is_scan(path):
    """A JPEG file is on the page unchanged."""
    return " jpeg " in run("pdfimages", "-list", path).stdout


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def as_png_files(path, work):
    """The pictures as stored in a PDF file: rows that are filtered and compressed as in a PNG are one without its
    header."""
    data, made = path.read_bytes(), []
    for found in re.finditer(rb"/Subtype /Image /Width (\d+) /Height (\d+) .*/Predictor 15 /Colors (\d) /BitsPerComponent (\d+) .*"
                             rb"/Length (\d+) >>\s*stream\r?\n", data):
        width, height, colours, bits, length = map(int, found.groups())
        head = struct.pack(">IIBBBBB", width, height, bits, {1: 0, 3: 2}[colours], 0, 0, 0)
        made.append(work / f"image-{len(made):03}.png")
        made[-1].write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", data[found.end():found.end() + length])
                             + chunk(b"IEND", b""))
    return made[::-1] # a mask precedes what it masks


def srgb_of_lab(lightness, a, b):
    """Three numbers of 16 bits from CIE Lab whose white is that of sRGB."""
    middle = (lightness + 16) / 116
    cubes = [value ** 3 if value > 6 / 29 else 3 * (6 / 29) ** 2 * (value - 4 / 29) for value in (middle + a / 500, middle, middle - b / 200)]
    x, y, z = (cube * white for cube, white in zip(cubes, (0.95047, 1, 1.08883)))
    linear = (3.2404542 * x - 1.5371385 * y - 0.4985314 * z, -0.9692660 * x + 1.8760108 * y + 0.0415560 * z,
              0.0556434 * x - 0.2040259 * y + 1.0572252 * z)
    bounded = (min(max(value, 0), 1) for value in linear)
    return [round(65535 * (12.92 * value if value <= 0.0031308 else 1.055 * value ** (1 / 2.4) - 0.055)) for value in bounded]


def lab_by_formula(path, work, made):
    """The sRGB of a TIFF file in CIE Lab of 8 bits, calculated here: ImageMagick takes the two colours up to a step off. False for others."""
    plain = work / "lab-plain.tif"
    run("tiffcp", "-c", "none", "-p", "contig", "-r", "1000000", f"{path},0", plain)
    said = run("exiftool", "-s3", "-n", "-f", "-ImageWidth", "-ImageHeight", "-SamplesPerPixel", "-PhotometricInterpretation", "-BitsPerSample",
               "-StripOffsets", plain).stdout.split("\n")
    if len(said) < 6 or said[3] != "8" or not said[4].startswith("8") or " " in said[5]:
        return False
    width, height, bands, start = int(said[0]), int(said[1]), int(said[2]), int(said[5])
    samples = plain.read_bytes()[start:start + width * height * bands]
    signed = lambda byte: byte - 256 if byte > 127 else byte
    known, rows = {}, []
    for row in range(height):
        line = bytearray(1) # no filter
        for at in range(row * width * bands, (row + 1) * width * bands, bands):
            lab = samples[at:at + 3]
            if lab not in known:
                known[lab] = struct.pack(">3H", *srgb_of_lab(lab[0] / 2.55, signed(lab[1]), signed(lab[2])))
            line += known[lab] + (bytes(2 * samples[at + 3:at + 4]) if bands > 3 else b"")
        rows.append(line)
    head = struct.pack(">IIBBBBB", width, height, 16, 6 if bands > 3 else 2, 0, 0, 0)
    png = work / "lab.png"
    png.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(b"".join(rows), 1)) + chunk(b"IEND", b""))
    run("convert", "-quiet", png, "-depth", "16", made)
    return True


def difference(one, other, ground, work):
    """The mean difference of two pictures of one size, of 255, laid on one ground; as text why there is none."""
    made = []
    for image, extra in (one, other):
        made.append(work / f"{ground}-{len(made)}.png")
        run("convert", "-quiet", image, *extra, "+profile", "*", "-set", "colorspace", "sRGB", "-background", ground, "-alpha", "remove",
            "-alpha", "off", "+repage", f"PNG48:{made[-1]}")
    answer = run("compare", "-metric", "MAE", *made, "null:").stderr
    found = re.search(r"\(([\d.eE+-]+)\)", answer)
    return float(found.group(1)) * 255 if found else answer.strip()[-160:]


def of_inks(one, other, work):
    """The mean difference of two pictures in CMYK, ink by ink."""
    made = []
    for image, extra in (one, other):
        made.append(work / f"inks-{len(made)}.tif")
        run("convert", "-quiet", image, *extra, "-alpha", "off", "+profile", "*", "-separate", "-append", made[-1])
    answer = run("compare", "-metric", "MAE", *made, "null:").stderr
    found = re.search(r"\(([\d.eE+-]+)\)", answer)
    return float(found.group(1)) * 255 if found else answer.strip()[-160:]


def held(picture, target, path):
    """What is to be said of one target: (mean difference or text, bound)."""
    promise = formats.PROMISES[target]
    bound = formats.BOUNDS[target]
    shown = readable(path, target, picture.work, picture.space == "CMYK" and not picture.has_alpha)
    upright = promise["orientation"] != "tag"
    turn = picture.turned(picture.raw, upright)
    if picture.space == "CMYK" and not picture.has_alpha and target in ("tiff", "jpeg", "pdf"):
        return of_inks((picture.raw, turn), (shown, []), picture.work), bound
    lab = picture.space in ("Lab", "CIELab")
    if lab and target == "tiff":
        return of_inks((picture.raw, turn), (shown, []), picture.work), bound
    converted = lab or picture.space == "CMYK" or (picture.has_profile and promise["profile"] in ("srgb", "matrix"))
    if picture.has_profile and target == "jp2":
        # A matrix profile stays in a JPEG 2000: the nearer of the two is meant.
        two = [of_ground((source, turn), (shown, []), picture, promise) for source in (picture.raw, picture.in_srgb())]
        numbers = [value for value in two if isinstance(value, float)]
        return (min(numbers) if numbers else two[0]), max(bound, formats.BOUNDS["jpeg"])
    return of_ground((picture.in_srgb() if converted else picture.raw, turn), (shown, []), picture, promise), bound


def of_ground(one, other, picture, promise):
    grounds = ["black", "white"] if picture.has_alpha and promise["alpha"] == formats.KEPT else ["black"]
    if promise is formats.PROMISES["gif"] and picture.has_alpha: # one colour of its table is transparent, the others are not
        one = (one[0], [*one[1], "-channel", "A", "-threshold", "50%", "+channel"])
    found = [difference(one, other, ground, picture.work) for ground in grounds]
    texts = [value for value in found if not isinstance(value, float)]
    return texts[0] if texts else max(found)


def lost_by_another(picture):
    """What ImageMagick loses with the same quality: noise and dithered colours suffer more than photographs in any
    encoder."""
    made = picture.work / "theirs.jpg"
    on_black = ["-background", "black", "-alpha", "remove", "-alpha", "off"]
    run("convert", "-quiet", picture.raw, *on_black, "-quality", "90", "-sampling-factor", "1x1", made)
    value = difference((picture.raw, on_black), (made, []), "black", picture.work)
    return value if isinstance(value, float) else 0


def judged(runner, path, work):
    """The lines of problems of one source and its figures."""
    work.mkdir(parents=True)
    ended = run(runner, Path(__file__).with_name("pixel-matrix.js"), work, path)
    if ended.returncode != 0:
        return [f"{path.name}: the runner ended with {ended.returncode}: {ended.stderr.strip()[-160:]}"], {}
    picture = Picture(path, work)
    if picture.problem:
        return [f"{path.name}: {picture.problem}"], {}
    problems, figures = [], {}
    for target in TARGETS:
        written = work / f"made.{target}"
        if not written.exists():
            problems.append(f"{path.name} to {target}: no file")
            continue
        value, bound = held(picture, target, written)
        if picture.path.suffix.lower() == ".gif" and target == "gif":
            bound = formats.BOUNDS["gif"]
        if target == "jpeg" and isinstance(value, float) and value > bound:
            bound = max(bound, 1.02 * lost_by_another(picture))
        figures[target] = value if isinstance(value, float) else None
        if not isinstance(value, float) or value > bound:
            problems.append(f"{path.name} to {target}: {value if not isinstance(value, float) else f'{value:.2f}, {bound} at most'}")
    return problems, figures


def main(runner, work, corpus=None, *some):
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    paths = made(work) if corpus is None else chosen(corpus)
    if corpus is not None and not paths:
        print("no pictures here")
        return SKIPPED
    if len(some) > 0:
        paths = [path for path in paths if re.search(some[0], path.name)]
    with ThreadPoolExecutor(2) as pool:
        found = list(pool.map(lambda job: judged(runner, job[1], work / str(job[0])), enumerate(paths)))
    problems = [line for lines, _ in found for line in lines]
    print(f"{len(paths)} pictures, {sum(len(figures) for _, figures in found)} targets, {len(problems)} problems")
    print("picture".ljust(44) + "".join(target.rjust(7) for target in TARGETS))
    for path, (_, figures) in zip(paths, found):
        cells = (figures.get(target) for target in TARGETS)
        print(path.name[:43].ljust(44) + "".join(("-" if cell is None else f"{cell:.2f}").rjust(7) for cell in cells))
    print("\n".join(problems))
    return 1 if problems or not paths else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], Path(sys.argv[2]), *map(Path, sys.argv[3:4]), *sys.argv[4:5]))
