#!/usr/bin/env python3
"""make-samples.py OUTDIR: draws the sample pictures of samples/ from nothing, the same pixels each time.

Landscapes of ridges, haze and water, as a substitute for photographs, free of other people's rights. Needs the commands
vips and exiftool. They are under the licence of Quorlin.
"""
import math
import random
import subprocess
import sys
import tempfile
from pathlib import Path


def lerp(a, b, t):
    return tuple(x + (y - x) * t for x, y in zip(a, b))


def ridge(width, roughness, rng):
    """Heights between -1 and 1 by midpoint displacement, one for each column."""
    size = 1 << math.ceil(math.log2(width))
    line = [0.0] * (size + 1)
    line[0], line[size] = rng.uniform(-0.6, 0.6), rng.uniform(-0.6, 0.6)
    step, spread = size, 0.7
    while step > 1:
        half = step // 2
        for i in range(half, size, step):
            line[i] = (line[i - half] + line[i + half]) / 2 + rng.uniform(-spread, spread)
        step, spread = half, spread * roughness
    return line[:width]


def draw(scene, width, height):
    """One scene as the bytes of an 8-bit RGB raster."""
    rng = random.Random(scene["seed"])
    horizon = int(height * scene["horizon"])
    layers = []
    count = scene["ridges"]
    for i in range(count):
        depth = (i + 1) / count
        base = horizon * (0.58 + 0.42 * depth)
        rise = height * (0.17 - 0.08 * depth)
        heights = [base - rise * h for h in ridge(width, 0.44 + 0.08 * depth, rng)]
        layers.append((heights, lerp(scene["haze"], scene["ground"], depth ** 1.3)))
    sun_x, sun_y = scene["sun"][0] * width, scene["sun"][1] * height
    rows = []
    for y in range(horizon if scene["water"] else height):
        row = []
        sky = lerp(scene["zenith"], scene["low"], min(1.0, y / horizon) ** 1.4)
        for x in range(width):
            colour = sky
            distance = math.hypot(x - sun_x, y - sun_y) / height
            colour = lerp(colour, scene["light"], 0.85 * math.exp(-(distance * 5.5) ** 1.2))
            if distance < scene["disc"]:
                colour = scene["light"]
            for heights, tone in layers:
                if y > heights[x]:
                    below = min(1.0, (y - heights[x]) / (height * 0.22))
                    colour = lerp(tone, scene["haze"], 0.30 * below)
            row.append(colour)
        rows.append(row)
    for y in range(len(rows), height):
        depth = (y - horizon + 1) / (height - horizon)
        mirror = rows[max(0, int(horizon - 1 - (y - horizon) * horizon / (height - horizon)))]
        sway = (2 + 10 * depth) * math.sin(y * 0.9 / (0.3 + depth))
        rows.append([lerp(mirror[min(width - 1, max(0, int(x + sway)))], scene["water"], 0.25 + 0.35 * depth)
                     for x in range(width)])
    out = bytearray()
    for row in rows:
        for colour in row:
            grain = rng.gauss(0, scene["grain"])
            out += bytes(min(255, max(0, round(c + grain))) for c in colour)
    return bytes(out)


def scene_of(seed, horizon, ridges, sun, disc, grain, water, **colours):
    return dict(seed=seed, horizon=horizon, ridges=ridges, sun=sun, disc=disc, grain=grain, water=water, **colours)


SCENES = {
    "Evening ridge.jpg": (2400, 1600, scene_of(
        11, 1.0, 6, (0.68, 0.42), 0.035, 2.2, None, zenith=(58, 76, 130), low=(250, 180, 128), light=(255, 238, 196),
        haze=(214, 146, 126), ground=(34, 28, 48))),
    "Lake in the morning.jpg": (2400, 1600, scene_of(
        23, 0.62, 5, (0.3, 0.3), 0.03, 2.0, (70, 104, 124), zenith=(98, 150, 196), low=(232, 226, 208),
        light=(255, 250, 228), haze=(176, 196, 204), ground=(36, 66, 62))),
    "Standing phone picture.jpg": (2400, 1800, scene_of(
        37, 1.0, 5, (0.5, 0.25), 0.04, 2.4, None, zenith=(40, 110, 170), low=(226, 232, 220), light=(255, 252, 240),
        haze=(170, 196, 186), ground=(24, 70, 46))),
    "Night.png": (1800, 1200, scene_of(
        41, 0.7, 4, (0.75, 0.2), 0.045, 0, (8, 12, 28), zenith=(6, 10, 30), low=(40, 54, 96), light=(236, 240, 250),
        haze=(34, 46, 80), ground=(6, 8, 16))),
    "Dunes.tif": (1800, 1200, scene_of(
        53, 1.0, 4, (0.2, 0.2), 0.03, 0, None, zenith=(96, 160, 216), low=(250, 230, 196), light=(255, 250, 230),
        haze=(240, 206, 150), ground=(176, 108, 52))),
}
WRITTEN = {".jpg": "[Q=85,profile=srgb]", ".png": "[compression=9,filter=all,profile=srgb]",
           ".tif": "[compression=deflate,predictor=horizontal,profile=srgb]"}
TAGS = ["-Make=Quorlin", "-Model=Sample", "-DateTimeOriginal=2026:11:21 07:30:00", "-CreateDate=2026:11:21 07:30:00",
        "-ISO=100", "-FNumber=8", "-ExposureTime=1/250", "-FocalLength=35", "-XResolution=300", "-YResolution=300",
        "-ResolutionUnit=inches"]


def turned_left(raster, width, height):
    """The raster as a camera held upright stores it: to be turned 90 degrees clockwise for viewing."""
    out = bytearray()
    for x in range(width - 1, -1, -1):
        for y in range(height):
            at = (y * width + x) * 3
            out += raster[at:at + 3]
    return bytes(out), height, width


def main():
    out = Path(sys.argv[1])
    out.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as work:
        for name, (width, height, scene) in SCENES.items():
            standing = name.startswith("Standing")
            if standing:
                width, height = height, width
            raster = draw(scene, width, height)
            if standing:
                raster, width, height = turned_left(raster, width, height)
            plain = Path(work) / "plain.ppm"
            plain.write_bytes(b"P6\n%d %d\n255\n" % (width, height) + raster)
            target = out / name
            subprocess.run(["vips", "copy", plain, f"{target}{WRITTEN[target.suffix]}"], check=True)
            if target.suffix == ".jpg":
                subprocess.run(["exiftool", "-q", "-overwrite_original", *TAGS,
                                f"-Orientation#={6 if standing else 1}", target], check=True)


if __name__ == "__main__":
    main()
