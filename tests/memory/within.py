#!/usr/bin/env python3
"""within.py PROGRAM FOLDER...: no picture of the folders ends the program where memory is short.

Each picture is opened, made small and converted into every type by a process of its own that may have no more than so
much address space. What does not fit may fail; a signal may not end it. MEGABYTES names other limits. Real pictures are
small most of the time, so large ones of every type are made, and have limits near which some of the conversions fit and
some do not.
"""

import os
import signal
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

LIMITS = [int(each) for each in os.environ.get("MEGABYTES", "1000 1500 2000").split()]
NEAR = [700, 900]  # megabytes, for the pictures of LARGE
LARGE_SIZE = (6000, 4000)
LARGE = {
    "plain.jpg": "vips jpegsave {rgb} {out} -Q 90",
    "progressive.jpg": "vips jpegsave {rgb} {out} -Q 90 --interlace",
    "plain.png": "vips pngsave {rgb} {out} --compression 1",
    "interlaced.png": "vips pngsave {rgb} {out} --compression 1 --interlace",
    "deep.tif": "vips colourspace {rgb} {out} rgb16",
    "float.tif": "vips cast {rgb} {out} float",
    "plain.gif": "vips gifsave {rgb} {out} --effort 1",
    "plain.webp": "vips webpsave {rgb} {out} --effort 0",
    "plain.heic": "vips heifsave {rgb} {out} --compression hevc --effort 0",
    "one-tile.jp2": "opj_compress -r 10 -i {rgb} -o {out}",
    "plain.bmp": "convert {rgb} BMP3:{out}",
    "deep.psd": "convert {rgb} -depth 16 -compress RLE PSD:{out}",
}
TYPES = ["bmp", "tiff", "jpeg", "png", "jp2", "gif", "pdf"]
LONGEST = 240  # seconds
SCRIPT = """import { cNSFileHandling, ZtImageHandling } from "quorlin";
const [file, folder, ...types] = scriptArguments;
const files = new cNSFileHandling();
const pictures = new ZtImageHandling();
const done = [];
if (pictures.hStringToCGImageRef(file)) done.push("decoded");
if (pictures.resizeImage(file, 160, 3, folder + "/small-", "public.jpeg", "8") === "OK") done.push("small");
for (const type of types) {
    const path = folder + "/out." + type;
    files.hConvertFileType(file, type, "8", path);
    if (files.hCheckIfFileExist(path) === "OK") done.push(type);
}
console.log("done:" + done.join(" "));
"""


def pictures(folders):
    for folder in folders:
        for place, folders_inside, names in os.walk(folder):
            folders_inside.sort()
            for name in sorted(names):
                if not name.lower().endswith((".md", ".tsv", ".plist", ".xmp", ".txt", ".py")):
                    yield os.path.join(place, name)


def made_large(folder):
    """Large pictures: stripes with grain on every 16th row, which is enough to keep encoders from making nothing of it."""
    width, height = LARGE_SIZE
    base = os.path.join(folder, "base.ppm")
    stripe = bytes((column // (16 << band)) % 256 for column in range(width) for band in range(3))
    with open(base, "wb") as file:
        file.write(b"P6\n%d %d\n255\n" % LARGE_SIZE)
        for row in range(height):
            file.write(os.urandom(3 * width) if row % 16 == 0 else stripe)
    for name, command in LARGE.items():
        words = command.format(rgb=base, out=os.path.join(folder, name)).split()
        subprocess.run(words, check=True, capture_output=True)
    os.remove(base)
    return pictures([folder])


def outcome(program, script, picture, limit):
    """What is wrong, and how many operations were done."""
    with tempfile.TemporaryDirectory() as target:
        command = ["prlimit", f"--as={limit * 1000 * 1000}", program, script, picture, target, *TYPES]
        try:
            ran = subprocess.run(command, capture_output=True, text=True, errors="replace", timeout=LONGEST, check=False)
        except subprocess.TimeoutExpired:
            return "takes too long", 0
    last = [line for line in (ran.stdout + ran.stderr).splitlines() if line.startswith("done:")]
    if ran.returncode < 0:
        return signal.Signals(-ran.returncode).name, 0
    if not last:
        return f"ends with {ran.returncode}: {ran.stderr[-300:]}", 0
    return "", len(last[0].split())


def failures_within(limit, found, program, script):
    """Tries all pictures, one on each processor, and says what came of it."""
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        outcomes = list(pool.map(lambda picture: outcome(program, script, picture, limit), found))
    for picture, (trouble, _) in zip(found, outcomes):
        if trouble:
            print(f"{limit} MB: {picture}: {trouble}")
    done = sum(each for _, each in outcomes)
    print(f"{limit} MB: {len(found)} pictures, {done} of {len(found) * (len(TYPES) + 2)} operations done", flush=True)
    return sum(1 for trouble, _ in outcomes if trouble) + (1 if done == 0 else 0)


def main():
    program, folders = sys.argv[1], [folder for folder in sys.argv[2:] if os.path.isdir(folder)]
    with tempfile.NamedTemporaryFile("w", suffix=".js") as script, tempfile.TemporaryDirectory() as own:
        script.write(SCRIPT)
        script.flush()
        found, large = list(pictures(folders)), list(made_large(own))
        failures = sum(failures_within(limit, found, program, script.name) for limit in LIMITS)
        failures += sum(failures_within(limit, large, program, script.name) for limit in NEAR)
    return 1 if failures or not found else 0


if __name__ == "__main__":
    sys.exit(main())
