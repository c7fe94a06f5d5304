#!/usr/bin/env python3
"""recipes.py QUORLIN_BATCH: recipes beside the same work done by ImageMagick, pixel by pixel.

Turns, flips, crops, frames and backgrounds are the same to the bit; what is scaled or converted to another profile is on average
at most 1 of 255 away.
"""
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

BATCH = sys.argv[1]
EXACT, NEAR = 0.0, 1.0


def crop(geometry, gravity="Center"):
    return ["-gravity", gravity, "-crop", geometry, "+repage"]


def scaled(size):
    return ["-filter", "Lanczos", "-resize", size + "!"]


# What is done, the same for ImageMagick, and how far apart the two may be. The pictures are 212 x 160 and 160 x 212 pixels.
CASES = [
    ("turn", [{"do": "turn", "degrees": 90}], ["-rotate", "90"], EXACT),
    ("turn left", [{"do": "turn", "degrees": -90}], ["-rotate", "-90"], EXACT),
    ("half turn", [{"do": "turn", "degrees": 180}], ["-rotate", "180"], EXACT),
    ("flop", [{"do": "flip", "direction": "horizontal"}], ["-flop"], EXACT),
    ("flip", [{"do": "flip", "direction": "vertical"}], ["-flip"], EXACT),
    ("transpose", [{"do": "turn", "degrees": 90}, {"do": "flip", "direction": "horizontal"}], ["-transpose"], EXACT),
    ("transverse", [{"do": "flip", "direction": "horizontal"}, {"do": "turn", "degrees": 90}], ["-transverse"], EXACT),
    ("turns in a row", [{"do": "turn", "degrees": 270}, {"do": "flip", "direction": "vertical"}, {"do": "turn", "degrees": 180}],
     ["-rotate", "270", "-flip", "-rotate", "180"], EXACT),
    ("crop", [{"do": "crop", "width": 100, "height": 80, "position": "top left"}], crop("100x80+0+0", "NorthWest"), EXACT),
    ("crop at the right", [{"do": "crop", "width": 101, "height": 81, "position": "bottom right"}], crop("101x81+0+0", "SouthEast"), EXACT),
    ("crop with an offset", [{"do": "crop", "width": 50, "height": 60, "position": "top left", "offset": [7, 11]}],
     crop("50x60+7+11", "NorthWest"), EXACT),
    ("crop reaching out", [{"do": "crop", "width": 100, "height": 100, "position": "top left", "offset": [90, 120]}],
     crop("100x100+90+120", "NorthWest"), EXACT),
    ("crop then turn", [{"do": "crop", "width": 90, "height": 60, "position": "top left"}, {"do": "turn", "degrees": 90}],
     crop("90x60+0+0", "NorthWest") + ["-rotate", "90"], EXACT),
    ("turn then crop", [{"do": "turn", "degrees": 90}, {"do": "crop", "width": 90, "height": 60, "position": "top left"}],
     ["-rotate", "90"] + crop("90x60+0+0", "NorthWest"), EXACT),
    ("two crops", [{"do": "crop", "width": 120, "height": 120, "position": "top left"},
                   {"do": "crop", "width": 60, "height": 40, "position": "bottom right"}],
     crop("120x120+0+0", "NorthWest") + crop("60x40+0+0", "SouthEast"), EXACT),
    ("frame", [{"do": "frame", "width": 9, "color": "#204060"}], ["-bordercolor", "#204060", "-border", "9"], EXACT),
    ("two frames", [{"do": "frame", "width": 3}, {"do": "frame", "width": 5, "color": "#000000"}],
     ["-bordercolor", "white", "-border", "3", "-bordercolor", "black", "-border", "5"], EXACT),
    ("frame then turn", [{"do": "frame", "width": 4, "color": "#ff0000"}, {"do": "turn", "degrees": 90}],
     ["-bordercolor", "red", "-border", "4", "-rotate", "90"], EXACT),
    ("pad", [{"do": "resize", "box": [300, 300], "fit": "pad", "color": "#123456"}],
     ["-background", "#123456", "-gravity", "Center", "-extent", "300x300"], EXACT),
    ("half", [{"do": "resize", "percent": 50}], scaled("50%"), NEAR),
    ("stretch", [{"do": "resize", "box": [90, 40], "fit": "stretch"}], scaled("90x40"), NEAR),
    ("larger", [{"do": "resize", "percent": 250, "enlarge": True}], scaled("250%"), NEAR),
    ("resize then turn", [{"do": "resize", "percent": 50}, {"do": "turn", "degrees": -90}], scaled("50%") + ["-rotate", "-90"], NEAR),
    ("turn then resize", [{"do": "turn", "degrees": 180}, {"do": "resize", "percent": 25}], ["-rotate", "180"] + scaled("25%"), NEAR),
    ("crop then resize", [{"do": "crop", "width": 120, "height": 100, "position": "top left"}, {"do": "resize", "percent": 50}],
     crop("120x100+0+0", "NorthWest") + scaled("50%"), NEAR),
    ("resize, frame", [{"do": "resize", "percent": 50}, {"do": "frame", "width": 6, "color": "#00ff00"}],
     scaled("50%") + ["-bordercolor", "#00ff00", "-border", "6"], NEAR),
]
BACKGROUND = [{"do": "background", "color": "#3060c0"}]


def run(command, **more):
    done = subprocess.run([str(part) for part in command], capture_output=True, timeout=100, check=False, **more)
    assert done.returncode == 0, (command, done.stderr.decode(errors="replace"))
    return done.stdout


def pixels(path):
    return run(["convert", path, "-depth", "8", "rgb:-"])


def size(path):
    return run(["identify", "-format", "%wx%h", path]).decode()


def mean_difference(one, other):
    a, b = pixels(one), pixels(other)
    return sum(abs(x - y) for x, y in zip(a, b)) / len(a) if len(a) == len(b) else 255.0


def with_us(base, operations, picture, name):
    recipe = base / "r.quorlin"
    recipe.write_text(json.dumps({"quorlin": 1, "operations": operations, "outputs": [{"type": "png", "name": name}]}))
    run([BATCH, recipe, picture, "--to", base / "ours", "--quiet"])
    return base / "ours" / (name + ".png")


def compared(base, name, operations, arguments, most, picture):
    ours = with_us(base, operations, picture, f"{name}-{picture.stem}")
    theirs = base / "theirs.png"
    run(["convert", picture, *arguments, "-strip", theirs])
    difference = mean_difference(ours, theirs)
    if size(ours) != size(theirs) or difference > most:
        return [f"{name} of {picture.name}: {size(ours)} for {size(theirs)}, {difference:.3f} of 255 apart"]
    return []


def profiles(base, picture):
    """Into Adobe RGB with the profile that we embed, done once more by ImageMagick with the same bytes."""
    ours = with_us(base, [{"do": "profile", "to": "Adobe RGB"}], picture, "adobe")
    profile, srgb = base / "adobe.icc", base / "srgb.icc"
    profile.write_bytes(run(["exiftool", "-b", "-icc_profile", ours]))
    p3 = with_us(base, [{"do": "profile", "to": "Display P3"}, {"do": "profile", "to": "sRGB"}], picture, "srgb")
    srgb.write_bytes(run(["exiftool", "-b", "-icc_profile", p3]))
    theirs = base / "theirs.png"
    run(["convert", picture, "-intent", "Relative", "-black-point-compensation", "-profile", srgb, "-profile", profile, theirs])
    problems = []
    for name, one, other in (("Adobe RGB", ours, theirs), ("there and back", p3, picture)):
        difference = mean_difference(one, other)
        if difference > NEAR:
            problems.append(f"{name}: {difference:.3f} of 255 apart")
    return problems


def grey(base, picture):
    """The luminance of Rec. ITU-R BT.709, in the curve of IEC 61966-2-1."""
    ours = pixels(with_us(base, [{"do": "profile", "to": "gray"}], picture, "grey"))
    linear = [v / 255 / 12.92 if v <= 10 else ((v / 255 + 0.055) / 1.055) ** 2.4 for v in range(256)]
    theirs = pixels(picture)
    total = 0.0
    for i in range(0, len(theirs), 3):
        light = 0.2126 * linear[theirs[i]] + 0.7152 * linear[theirs[i + 1]] + 0.0722 * linear[theirs[i + 2]]
        value = 12.92 * light if light <= 0.0031308 else 1.055 * light ** (1 / 2.4) - 0.055
        total += abs(255 * value - ours[i])
    difference = 3 * total / len(theirs)
    return [] if difference <= NEAR else [f"grey: {difference:.3f} of 255 apart"]


def main():
    problems = []
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        environment = dict(os.environ, MAGICK_THREAD_LIMIT="1")
        pictures = []
        for name, extent in (("wide", "212x160"), ("high", "160x212")):
            picture = base / f"{name}.png"
            run(["convert", "-seed", "7", "-size", extent, "plasma:tomato-steelblue", "-depth", "8", "-strip", picture], env=environment)
            pictures.append(picture)
        for picture in pictures:
            for case in CASES:
                problems += compared(base, *case, picture)
        clear = base / "clear.png"
        run(["convert", pictures[0], "-alpha", "set", "-channel", "A", "-evaluate", "set", "40%", "+channel", clear])
        # One level for the rounding of two programs where colours are mixed.
        problems += compared(base, "background", BACKGROUND, ["-background", "#3060c0", "-flatten"], NEAR, clear)
        problems += profiles(base, pictures[0]) + grey(base, pictures[0])
    print("\n".join(problems) or f"{2 * len(CASES) + 4} recipes are as ImageMagick has them")
    return 1 if problems else 0


sys.exit(main())
