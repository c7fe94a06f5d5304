#!/usr/bin/env python3
"""jpeg_xl.py QUORLIN_BATCH PICTURE [slow]: large JPEG XLs, which are made of several frames, as other programs read them.

PICTURE, repeated to 8 megapixels, becomes a lossless JPEG XL with the metadata of PICTURE. djxl and vips find one picture with the same
pixels, exiftool the size and what was told. With "slow": 27 megapixels, with and without transparency and loss, take less than 1.5 GB.
"""
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

BATCH, PICTURE = sys.argv[1], Path(sys.argv[2]).resolve()
TOLD = ("Model", "Make", "OwnerName", "Label", "ImageSize")
MOST_MEGABYTES = 1500


def run(*command):
    done = subprocess.run([str(part) for part in command], capture_output=True, check=False, timeout=500)
    assert done.returncode == 0, (command, done.stderr.decode(errors="replace")[-400:])
    return done.stdout


def repeated(path, size, *more):
    """A file of pixels without metadata: PICTURE again and again, each row of tiles by itself."""
    run("convert", "-size", size, f"tile:{PICTURE}", "-depth", "8", *more, "-strip", "-define", "png:compression-level=1", path)


def made(base, picture, output):
    """The result and the megabytes of the largest process that took part."""
    recipe, report = base / "r.quorlin", base / "report.jsonl"
    recipe.write_text(json.dumps({"quorlin": 1, "outputs": [{"type": "jxl", "folder": "made", **output}]}))
    process = subprocess.Popen([BATCH, "--quiet", "--jobs", "1", "--report", report, recipe, picture], stderr=subprocess.PIPE)
    said = process.stderr.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    assert status == 0, said
    line = json.loads(report.read_text().splitlines()[0])
    assert line["status"] == "OK" and line["losses"] == [], line
    return Path(line["output"]), usage.ru_maxrss / 1024


def told(path):
    return json.loads(run("exiftool", "-j", *(f"-{name}" for name in TOLD), path))[0]


def pixels(path):
    return run("convert", path, "-depth", "8", "rgb:-")


def check_other_readers(base):
    picture = base / "large.png"
    repeated(picture, "3300x2500")
    run("exiftool", "-q", "-overwrite_original", "-TagsFromFile", PICTURE, "-all:all", "-XMP-xmp:Label=Green", picture)
    result, _ = made(base, picture, {"lossless": True})
    entry, source = told(result), told(picture)
    assert {name: entry.get(name) for name in TOLD} == {name: source.get(name) for name in TOLD}, (entry, source)
    assert entry["ImageSize"] == "3300x2500" and entry["Label"] == "Green" and "Model" in entry, entry
    run("djxl", result, base / "djxl.png")
    run("vips", "copy", result, base / "vips.png")
    assert run("vipsheader", "-a", result).count(b"n-pages") == 0
    wanted = pixels(picture)
    for name in ("djxl", "vips"):
        assert pixels(base / f"{name}.png") == wanted, f"{name} finds other pixels"


def check_memory(base):
    for name, more in (("rgb", ()), ("rgba", ("-alpha", "set", "-channel", "A", "-evaluate", "set", "60%"))):
        picture = base / f"{name}.png"
        repeated(picture, "6364x4243", *more)
        for output in ({}, {"lossless": True}):
            megabytes = made(base, picture, output)[1]
            print(f"{name} {output}: {megabytes:.0f} MB")
            assert megabytes < MOST_MEGABYTES, (name, output, megabytes)


def main():
    if any(shutil.which(name) is None for name in ("exiftool", "convert", "vips", "djxl")):
        print("no exiftool, ImageMagick, vips or djxl")
        return 77
    with tempfile.TemporaryDirectory(dir=os.environ.get("TMPDIR", "/var/tmp")) as folder:
        (check_memory if sys.argv[3:] == ["slow"] else check_other_readers)(Path(folder))
    return 0


if __name__ == "__main__":
    sys.exit(main())
