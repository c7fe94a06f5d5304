#!/usr/bin/env python3
"""metadata_matrix.py QUORLIN_BATCH PICTURE TOOLS: what results keep of the metadata, every type to every type, read by exiftool.

PICTURE, which has maker notes, gets all other kinds of metadata and becomes a file of every type that is written; each of these becomes
one of every type. A result contains what its source has and its type can hold, according to the table of
tools/formats.py.
"""
import json
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

BATCH, PICTURE, TOOLS = sys.argv[1:]
sys.path.insert(0, TOOLS)
from formats import HELD, IN_XMP, KEPT, NOT, becomes  # noqa: E402 (the path is an argument)

TOLD = ["-IFD0:Model=Trial 1", "-ExifIFD:LensModel=Trial lens", "-GPS:GPSLatitude=48.5", "-GPS:GPSLatitudeRef=N", "-GPS:GPSLongitude=11.25",
        "-GPS:GPSLongitudeRef=E", "-IPTC:City=Trialton", "-XMP-xmp:Label=Green", "-Comment=A trial comment", "-XResolution=200",
        "-YResolution=200", "-ResolutionUnit=inches"]
# Where exiftool finds each of them: in a block of its own, and in XMP.
PLACES = {
    "exif": (["IFD0:Model"], ["XMP-tiff:Model"]), "maker": (["Canon:OwnerName"], []), "gps": (["GPS:GPSLatitude"], ["XMP-exif:GPSLatitude"]),
    "iptc": (["IPTC:City"], ["XMP-photoshop:City"]), "xmp": (["XMP-xmp:Label"], []),
    "comment": (["File:Comment", "PNG:Comment", "GIF:Comment"], []),
    "resolution": (["IFD0:XResolution", "JFIF:XResolution", "PNG-pHYs:PixelsPerUnitX", "File:PixelsPerMeterX"], ["XMP-tiff:XResolution"]),
}
VALUES = {"exif": "Trial 1", "maker": "A tester", "gps": 48.5, "iptc": "Trialton", "xmp": "Green", "comment": "A trial comment"}
RESOLUTIONS = (200, 7874)


def run(*command):
    done = subprocess.run([str(part) for part in command], capture_output=True, check=False, timeout=250)
    assert done.returncode == 0, (command, done.stdout.decode(errors="replace")[-800:], done.stderr.decode(errors="replace")[-800:])
    return done.stdout


def forms(entry):
    """Of each kind of metadata whether a file has it, and how."""
    found = {}
    for name, places in PLACES.items():
        is_right = (lambda value: round(value) in RESOLUTIONS) if name == "resolution" else (lambda value, want=VALUES.get(name): value == want)
        own, other = (any(key in entry and is_right(entry[key]) for key in keys) for keys in places)
        found[name] = KEPT if own else IN_XMP if other else NOT
    return found


def told(paths):
    entries = json.loads(run("exiftool", "-j", "-n", "-G1", *paths))
    return {Path(entry["SourceFile"]).name: forms(entry) for entry in entries}


def made(base, sources, folder):
    """Every source as every type, by "source.type" of the report."""
    recipe = base / "all.quorlin"
    outputs = [{"type": name, "folder": str(folder), "name": "{name}-" + name} for name in HELD]
    # Smaller, so that all are encoded.
    recipe.write_text(json.dumps({"quorlin": 1, "operations": [{"do": "resize", "percent": 50}], "outputs": outputs}), encoding="utf-8")
    report = base / "report.jsonl"
    run(BATCH, "--quiet", "--report", report, recipe, *sources)
    lines = [json.loads(line) for line in report.read_text(encoding="utf-8").splitlines()]
    return [line for line in lines if "input" in line]


def problems_of(name, source, target, there):
    for kind in HELD[target]:
        wanted = becomes(kind, source, target)
        if wanted is not None and there[kind] != wanted:
            yield f"{name}: {kind} is {there[kind]}, not {wanted}"


def main():
    if shutil.which("exiftool") is None:
        print("no exiftool")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        first = base / "of.jpg"
        shutil.copyfile(PICTURE, first)
        run("exiftool", "-q", "-overwrite_original", *TOLD, first)
        assert all(form == KEPT for form in forms(json.loads(run("exiftool", "-j", "-n", "-G1", first))[0]).values())
        lines = made(base, [first], base / "sources")
        sources = [Path(line["output"]) for line in lines if line["type"] != "pdf"]
        lines += made(base, sources, base / "results")
        paths = [Path(line["output"]) for line in lines]
        read = told([first] + paths)
        problems = []
        for line in lines:
            name, source = Path(line["output"]).name, read[Path(line["input"]).name]
            problems += problems_of(name, source, line["type"], read[name])
    print("\n".join(problems) or f"{len(lines)} results keep what they can hold")
    return 1 if problems or len(lines) != len(HELD) * len(HELD) else 0


if __name__ == "__main__":
    sys.exit(main())
