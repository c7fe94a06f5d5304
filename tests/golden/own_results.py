#!/usr/bin/env python3
"""own_results.py QUORLIN_BATCH FOLDER [--write]: sharpening, round edges, marks and text, by what is true of them and beside results of
our own that are kept in FOLDER, which --write makes.

The picture is made here: flat areas, a hard edge, a ramp and some noise. Levels may differ by one from what is kept.
Text is not compared, since fonts differ: its ink is inside the box that the recipe states, and nothing else changes.
"""
import json
import subprocess
import sys
import tempfile
from pathlib import Path

WIDTH, HEIGHT = 96, 64
EDGE = 48
BATCH, KEPT = sys.argv[1], Path(sys.argv[2])
WRITES = "--write" in sys.argv[3:]
SHARPEN = {amount: [{"do": "sharpen", "amount": amount}] for amount in ("low", "standard", "high")}
OVERSHOOT = {"standard": 12}
CASES = {
    **{f"sharpen-{amount}": operations for amount, operations in SHARPEN.items()},
    "round": [{"do": "round", "radius": 12}],
    "circle": [{"do": "round", "shape": "circle"}],
    "ellipse": [{"do": "round", "shape": "ellipse", "color": "#203040"}],
    "band": [{"do": "round", "radius": 10, "band": {"width": 3, "color": "#d08020"}}],
    "mark": [{"do": "watermark", "picture": "logo.ppm", "size": 30, "opacity": 60, "angle": 30}],
    "tiled": [{"do": "watermark", "picture": "logo.ppm", "size": 20, "opacity": 40, "tile": True}],
}


def picture():
    """Rows of pixels: an edge in the upper half, a ramp, and noise at the bottom."""
    rows, noise = [], 1
    for y in range(HEIGHT):
        row = []
        for x in range(WIDTH):
            if y < 32:
                row.append((80, 90, 100) if x < EDGE else (160, 150, 140))
            elif y < 48:
                row.append((40 + 2 * x, 60 + x, 230 - 2 * x))
            else:
                noise = (noise * 1103515245 + 12345) % 2 ** 31
                row.append((90 + (noise >> 16) % 40, 110, 120 - (noise >> 20) % 30))
        rows.append(row)
    return rows


def write_ppm(path, rows):
    body = bytes(level for row in rows for pixel in row for level in pixel)
    path.write_bytes(f"P6 {len(rows[0])} {len(rows)} 255\n".encode() + body)


def made(base, operations, name):
    """The file of a recipe over the picture, and its pixels with transparency."""
    recipe = base / "r.quorlin"
    recipe.write_text(json.dumps({"quorlin": 1, "operations": operations, "outputs": [{"type": "png", "name": name, "ifTaken": "replace"}]}),
                      encoding="utf-8")
    done = subprocess.run([BATCH, "--quiet", recipe, base / "a.png"], capture_output=True, check=False, timeout=100)
    assert done.returncode == 0, done.stderr.decode(errors="replace")
    return base / f"{name}.png"


def pixels(path):
    data = subprocess.run(["convert", path, "-depth", "8", "rgba:-"], capture_output=True, check=True, timeout=100).stdout
    return [tuple(data[i:i + 4]) for i in range(0, len(data), 4)]


def differences(one, other):
    """Levels, where pixels that nobody sees are equal whatever their colours."""
    if len(one) != len(other):
        return 255
    return max(max(abs(a - b) for a, b in zip(p, q)) for p, q in zip(one, other) if p[3] or q[3])


def beside_kept(base):
    for name, operations in CASES.items():
        path, kept = made(base, operations, name), KEPT / f"{name}.png"
        if WRITES:
            KEPT.mkdir(exist_ok=True)
            subprocess.run(["convert", path, "-strip", "-define", "png:exclude-chunks=date,time", kept], check=True, timeout=100)
        away = differences(pixels(path), pixels(kept))
        if away > 1:
            yield f"{name}: {away} levels from the result of our own that is kept"


def sharpened(base, rows):
    """Flat areas stay, and the edge goes no further than it may."""
    moved = {}
    for amount, operations in SHARPEN.items():
        result = pixels(made(base, operations, "flat"))
        moved[amount] = 0
        for y in range(4, 28):
            for x in range(WIDTH):
                away = max(abs(a - b) for a, b in zip(rows[y][x], result[y * WIDTH + x]))
                if abs(x - EDGE + 0.5) > 2 and away:
                    yield f"sharpen {amount}: a flat area changes at {x}, {y}"
                moved[amount] = max(moved[amount], away)
        if moved[amount] > OVERSHOOT.get(amount, 255):
            yield f"sharpen {amount}: {moved[amount]} levels beyond the edge"
    if not 0 < moved["low"] < moved["standard"] < moved["high"]:
        yield f"sharpen: {moved}"


def written(base, rows):
    """All ink of a text is in its corner, no closer to the edges than the margin says, and as high as its size lets it be."""
    result = pixels(made(base, [{"do": "watermark", "text": "Ag", "size": 20, "margin": 10, "color": "#ffffff", "opacity": 100}], "text"))
    ink = [(x, y) for y in range(HEIGHT) for x in range(WIDTH) if result[y * WIDTH + x][:3] != rows[y][x]]
    if not ink:
        yield "text: no ink"
        return
    left, right = min(x for x, _ in ink), max(x for x, _ in ink)
    top, bottom = min(y for _, y in ink), max(y for _, y in ink)
    margin = 0.1 * min(WIDTH, HEIGHT)
    if right >= WIDTH - int(margin) or bottom >= HEIGHT - int(margin) or left < WIDTH / 2 or top < HEIGHT / 2:
        yield f"text: ink from {left}, {top} to {right}, {bottom}"
    if not 0.1 * HEIGHT <= bottom - top + 1 <= 0.4 * HEIGHT:
        yield f"text: {bottom - top + 1} pixels high"


def rounded(base, rows):
    """Outside of the shape nothing is left, inside everything stays, and in between is the edge alone."""
    radius = 12
    result = pixels(made(base, [{"do": "round", "radius": radius}], "corner"))
    for y in range(HEIGHT):
        for x in range(WIDTH):
            across = max(radius - x - 0.5, x + 0.5 - (WIDTH - radius), 0)
            down = max(radius - y - 0.5, y + 0.5 - (HEIGHT - radius), 0)
            away, pixel = (across ** 2 + down ** 2) ** 0.5, result[y * WIDTH + x]
            if away > radius + 1 and pixel[3] != 0:
                yield f"round: {x}, {y} is outside and seen"
            if away < radius - 1 and pixel != (*rows[y][x], 255):
                yield f"round: {x}, {y} is inside and {pixel}"


def main():
    with tempfile.TemporaryDirectory() as folder:
        base, rows = Path(folder), picture()
        write_ppm(base / "a.ppm", rows)
        write_ppm(base / "logo.ppm", [[((x * 8) % 256, 255 - (y * 8) % 256, 128) for x in range(24)] for y in range(12)])
        for name in ("a", "logo"):
            subprocess.run(["convert", base / f"{name}.ppm", base / f"{name}.png"], check=True, timeout=100)
        for operations in CASES.values():
            operations[0].update({"picture": str(base / "logo.png")} if "picture" in operations[0] else {})
        problems = [*beside_kept(base), *sharpened(base, rows), *written(base, rows), *rounded(base, rows)]
    print("\n".join(problems[:40]) or f"{len(CASES)} results are as they were kept")
    return 1 if problems else 0


sys.exit(main())
