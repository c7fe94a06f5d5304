#!/usr/bin/env python3
"""corpus_recipes.py QUORLIN_BATCH PICTURES...: 30 recipes over all pictures that can be read, beside what is worked out here and what
ImageMagick makes of the same pixels.

The size of every result is that of the arithmetic below, planned and made. For pictures that are not large the results
are made: each has the metadata of its picture (metadata.py). Turns, flips, crops, frames and backgrounds are
bit-identical with ImageMagick's; scaled or recoloured pixels differ on average by at most 1 of 255. Both start from the
picture as this program reads it, which pixel_matrix.py compares with other readers.
"""
import json
import math
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.argv[1:] or sys.exit(__doc__)
from metadata import NOT_COMPARED, problems_of, tags  # noqa: E402 (a program without arguments only says what it is)

BATCH, FOLDERS = sys.argv[1], sys.argv[2:]
EXACT, NEAR = 0.0, 1.0
# CMYK is scaled as it is and becomes RGB after that, whereas ImageMagick starts from our RGB: these are compared with
# vips instead.
IN_OWN_COLOURS = ("tiff_strip_cmyk_jpeg.tif", "pil_sample_cmyk.jpg")
LARGEST = 300_000  # pixels of a picture whose results are made
PARTS = 4          # ImageMagick does every recipe with one in so many pictures, another one each time
LEAST_SIDE = 24    # below, a level of rounding at the edge is all there is


def by_width(size, width):
    return width, int(max(1, (width * 100 / size[0]) * size[1] / 100))


def by_height(size, height):
    return int(max(1, (height * 100 / size[1]) * size[0] / 100)), height


def by_longest(longest):
    return lambda size: smaller(size, by_width(size, longest) if size[0] > size[1] else by_height(size, longest))


def smaller(size, wanted):
    return size if wanted[0] > size[0] or wanted[1] > size[1] else wanted


def by_percent(percent):
    return lambda size: tuple(int(max(1, side * percent / 100)) for side in size)


def by_megapixels(size, megapixels):
    factor = math.sqrt(megapixels * 1e6 / (size[0] * size[1]))
    return smaller(size, tuple(int(max(1, side * factor)) for side in size))


def inside(box):
    def of(size):
        if size[0] <= box[0] and size[1] <= box[1]:
            return size
        wide = size[0] * box[1] > size[1] * box[0]
        return tuple(min(pair) for pair in zip(by_width(size, box[0]) if wide else by_height(size, box[1]), box))
    return of


def cut(width, height):
    return lambda size: (min(size[0], width), min(size[1], height))


def by_fixed_ratio(across, down):
    def of(size):
        ratio = across / down
        if size[0] > size[1] * ratio:
            return max(1, math.floor(size[1] * ratio + 0.5)), size[1]
        return size[0], max(1, math.floor(size[0] / ratio + 0.5))
    return of


def by_ratio(longer, shorter):
    return lambda size: by_fixed_ratio(*((shorter, longer) if size[1] > size[0] else (longer, shorter)))(size)


def same(size):
    return size


def swapped(size):
    return size[1], size[0]


def framed(width):
    return lambda size: (size[0] + 2 * width, size[1] + 2 * width)


def chain(*steps):
    def of(size):
        for step in steps:
            size = step(size)
        return size
    return of


TURN = {"do": "turn", "degrees": 90}
LEFT = {"do": "turn", "degrees": -90}
HALF = {"do": "turn", "degrees": 180}
FLOP = {"do": "flip", "direction": "horizontal"}
FLIP = {"do": "flip", "direction": "vertical"}


def crop(width, height, position="top left", **more):
    return {"do": "crop", "width": width, "height": height, "position": position, **more}


def resize(**how):
    return {"do": "resize", **how}


def cropped(width, height, gravity="NorthWest", offset="+0+0"):
    return lambda size: ["-gravity", gravity, "-crop", f"{width}x{height}{offset}", "+repage"]


def border(color, width):
    return lambda size: ["-compose", "Copy", "-bordercolor", color, "-border", str(width)]


def scaled(of):
    return lambda size: ["-filter", "Lanczos", "-resize", "%dx%d!" % of(size)]


def does(*arguments):
    return lambda size: list(arguments)


def each(*steps):
    """Several of these, each with the size that the one before has left: (arguments, size) pairs."""
    def of(size):
        arguments = []
        for step, becomes in steps:
            arguments += step(size)
            size = becomes(size)
        return arguments
    return of


# The name, the operation, its effect on the size, the same for ImageMagick (none if only size and metadata are
# checked), and how far apart pixels may be.
RECIPES = [
    ("turn", [TURN], swapped, does("-rotate", "90"), EXACT),
    ("turn left", [LEFT], swapped, does("-rotate", "-90"), EXACT),
    ("half turn", [HALF], same, does("-rotate", "180"), EXACT),
    ("flop", [FLOP], same, does("-flop"), EXACT),
    ("flip", [FLIP], same, does("-flip"), EXACT),
    ("transpose", [TURN, FLOP], swapped, does("-transpose"), EXACT),
    ("transverse", [FLOP, TURN], swapped, does("-transverse"), EXACT),
    ("turns in a row", [LEFT, FLIP, HALF, TURN], same, does("-rotate", "-90", "-flip", "-rotate", "270"), EXACT),
    ("crop", [crop(31, 23)], cut(31, 23), cropped(31, 23), EXACT),
    ("crop at the right", [crop(27, 29, "bottom right")], cut(27, 29), cropped(27, 29, "SouthEast"), EXACT),
    ("crop with an offset", [crop(12, 9, offset=[7, 11])], cut(12, 9), cropped(12, 9, offset="+7+11"), EXACT),
    ("crop then turn", [crop(30, 20), TURN], chain(cut(30, 20), swapped),
     each((cropped(30, 20), same), (does("-rotate", "90"), same)), EXACT),
    ("turn then crop", [TURN, crop(30, 20)], chain(swapped, cut(30, 20)),
     each((does("-rotate", "90"), same), (cropped(30, 20), same)), EXACT),
    ("two crops", [crop(40, 40), crop(17, 13, "bottom right")], chain(cut(40, 40), cut(17, 13)),
     each((cropped(40, 40), same), (cropped(17, 13, "SouthEast"), same)), EXACT),
    ("ratio", [{"do": "crop", "ratio": "3:2"}], by_ratio(3, 2), None, None),
    ("ratio that is not turned", [{"do": "crop", "ratio": "1:2", "turn": False}], by_fixed_ratio(1, 2), None, None),
    ("percent away", [{"do": "crop", "percent": 40}], lambda size: tuple(int(60 * side / 100) for side in size), None, None),
    ("frame", [{"do": "frame", "width": 9, "color": "#000000"}], framed(9), border("black", 9), EXACT),
    ("two frames", [{"do": "frame", "width": 3}, {"do": "frame", "width": 5, "color": "#000000"}], framed(8),
     each((border("white", 3), same), (border("black", 5), same)), EXACT),
    ("frame then turn", [{"do": "frame", "width": 4, "color": "#ffffff"}, TURN], chain(framed(4), swapped),
     each((border("white", 4), same), (does("-rotate", "90"), same)), EXACT),
    ("background", [{"do": "background", "color": "#ffffff"}], same, does("-background", "white", "-alpha", "remove"), NEAR),
    ("pad", [resize(box=[560, 580], fit="pad", color="#102030")], lambda size: (560, 580), None, None),
    ("half", [resize(percent=50)], by_percent(50), scaled(by_percent(50)), NEAR),
    ("longest", [resize(longest=160)], by_longest(160), scaled(by_longest(160)), NEAR),
    ("inside a box", [resize(box=[200, 150])], inside((200, 150)), scaled(inside((200, 150))), NEAR),
    ("megapixels", [resize(megapixels=0.03)], lambda size: by_megapixels(size, 0.03),
     scaled(lambda size: by_megapixels(size, 0.03)), NEAR),
    ("resize then turn", [resize(percent=50), LEFT], chain(by_percent(50), swapped),
     each((scaled(by_percent(50)), by_percent(50)), (does("-rotate", "-90"), same)), NEAR),
    ("crop then resize", [crop(40, 30), resize(percent=50)], chain(cut(40, 30), by_percent(50)),
     each((cropped(40, 30), cut(40, 30)), (scaled(by_percent(50)), same)), NEAR),
    ("resize then frame", [resize(percent=50), {"do": "frame", "width": 6, "color": "#ffffff"}], chain(by_percent(50), framed(6)),
     each((scaled(by_percent(50)), by_percent(50)), (border("white", 6), same)), NEAR),
    ("there and back", [{"do": "profile", "to": "Display P3"}, {"do": "profile", "to": "sRGB"}], same, None, None),
]


def run(command, **more):
    return subprocess.run([str(part) for part in command], capture_output=True, check=False, timeout=1500, **more)


def planned(base, operations, inputs, *options):
    """The lines of the report of a recipe that makes PNG files."""
    recipe, report, names = base / "r.quorlin", base / "report.jsonl", base / "inputs.txt"
    recipe.write_text(json.dumps({"quorlin": 1, "operations": operations, "outputs": [{"type": "png"}]}), encoding="utf-8")
    names.write_bytes(b"\0".join(str(path).encode("utf-8", "surrogateescape") for path in inputs))
    done = run([BATCH, recipe, "--from", names, "-0", "--quiet", "--report", report, *options])
    assert done.returncode in (0, 1), done.stderr
    lines = [json.loads(line) for line in report.read_text(encoding="utf-8").splitlines()]
    return {line["input"]: line for line in lines if "input" in line}


def size_of(line):
    return line["width"], line["height"]


def far_apart(ours, picture, arguments):
    """How far our result is from ImageMagick's of the same start, of 255; none if unknown."""
    told = run(["convert", "-alpha", "on", "(", picture, *arguments, "+repage", "-strip", ")", "(", ours, "-strip", ")", "-metric", "MAE",
                "-compare", "-format", "%[distortion]", "info:"])
    try:
        return 255 * float(told.stdout)
    except ValueError:
        return None


def told_upright(entry):
    return entry.get("IFD0:Orientation", 1) == 1


def wrong_sizes(name, becomes, starts, lines):
    for path, start in starts.items():
        line = lines[path]
        if line["status"] not in ("OK", "Planned"):
            yield f"{name} of {Path(path).name}: {line['status']}, {line['reason']}"
        elif becomes is not None and size_of(line) != tuple(becomes(size_of(start))):
            yield f"{name} of {Path(path).name}: {size_of(line)}, not {tuple(becomes(size_of(start)))} of {size_of(start)}"


def wrong_pixels(name, arguments, most, starts, lines):
    for path, start in starts.items():
        if arguments is None or lines[path]["status"] != "OK":
            continue
        away = far_apart(lines[path]["output"], start["output"], arguments(size_of(start)))
        if away is None or away > most:
            yield f"{name} of {Path(path).name}: {away} of 255 apart"


def wrong_own_colours(base, starts):
    """Pictures that are scaled in colours other than RGB, compared with those that vips has scaled before converting to
    RGB."""
    for number, path in enumerate(path for path in starts if Path(path).name in IN_OWN_COLOURS):
        scaled_first = base / f"scaled{number}.tif"
        done = run(["vips", "resize", path, scaled_first, "0.5"])
        assert done.returncode == 0, done.stderr
        ours = planned(base, [resize(percent=50)], [path], "--to", base / f"ours{number}")[path]
        theirs = planned(base, [], [scaled_first], "--to", base / f"theirs{number}")[str(scaled_first)]
        away = far_apart(ours["output"], theirs["output"], [])
        if away is None or away > NEAR:
            yield f"half of {Path(path).name} in its own colours: {away} of 255 apart"


def wrong_tags(name, sources, base, lines):
    results = tags(base)
    for path, line in lines.items():
        source, result = sources.get(Path(path).resolve()), results.get(Path(line["output"] or "/").resolve())
        if line["status"] != "OK" or source is None or Path(path).name in NOT_COMPARED:
            continue
        width = result.get("ExifIFD:ExifImageWidth", line["width"])
        # What is not encoded again may go on lying on its side.
        if not line["lossless"] and (width != line["width"] or result.get("IFD0:Orientation", 1) != 1):
            yield f"{name} of {Path(path).name}: EXIF tells another size or orientation"
        yield from (f"{name} of {Path(path).name}: {fault}" for fault in problems_of(line, source, result))


def over_all(base):
    pictures = [path for folder in FOLDERS for path in sorted(Path(folder).resolve().rglob("*"))
                if path.is_file() and path.suffix.lower() not in (".pdf", ".svg", ".md", ".tsv", ".json", ".txt")]
    every = {path: line for path, line in planned(base, [], pictures, "--dry-run").items() if line["status"] == "Planned"}
    small = [path for path, line in every.items() if line["width"] * line["height"] <= LARGEST]
    starts = {path: line for path, line in planned(base, [], small, "--to", base / "starts").items() if line["status"] == "OK"}
    sources = {path: entry for folder in FOLDERS for path, entry in tags(folder).items()}
    problems = []
    for number, (name, operations, becomes, arguments, most) in enumerate(RECIPES):
        # A crop that is outside a picture leaves nothing.
        big = {path: line for path, line in every.items() if min(size_of(line)) >= LEAST_SIDE}
        problems += wrong_sizes(name, becomes, big, planned(base, operations, big, "--dry-run"))
        wanted = {path: line for path, line in starts.items() if min(size_of(line)) >= LEAST_SIDE}
        upright = [path for path, line in wanted.items() if not line["lossless"] or told_upright(sources.get(Path(path).resolve(), {}))]
        results = base / f"made{number}"
        lines = planned(base, operations, wanted, "--to", results)
        problems += wrong_sizes(name, becomes, wanted, lines)
        scales = any(each["do"] == "resize" for each in operations)
        looked_at = {path: wanted[path] for i, path in enumerate(upright)
                     if i % PARTS == number % PARTS and not (scales and Path(path).name in IN_OWN_COLOURS)}
        problems += wrong_pixels(name, arguments, most, looked_at, lines)
        problems += wrong_tags(name, sources, results, lines)
        shutil.rmtree(results, ignore_errors=True)
    problems += wrong_own_colours(base, starts)
    print(f"{len(RECIPES)} recipes, {len(every)} pictures planned, {len(starts)} made")
    return problems, len(starts)


def main():
    if any(shutil.which(name) is None for name in ("exiftool", "convert", "compare", "vips")) or not all(Path(each).is_dir() for each in FOLDERS):
        print("no pictures, exiftool, ImageMagick or vips")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        problems, count = over_all(Path(folder))
    print("\n".join(problems[:80]))
    return 1 if problems or count == 0 or len(RECIPES) < 30 else 0


if __name__ == "__main__":
    sys.exit(main())
