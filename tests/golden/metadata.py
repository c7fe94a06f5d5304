#!/usr/bin/env python3
"""metadata.py QUORLIN_BATCH FOLDER PICTURES...: what exiftool reads in pictures and in the results that a recipe makes of them.

Each picture is made small and written as six types. Every tag of the source is in each result with its value, or it is one that
the result cannot have for a reason given here, or the report names it as a loss.
"""
import json
import re
import shutil
import subprocess
import sys
from pathlib import Path

TYPES = ("jpeg", "png", "webp", "avif", "jxl", "tiff")
RECIPE = {"quorlin": 1, "operations": [{"do": "resize", "longest": 96}], "outputs": [{"type": name, "folder": name} for name in TYPES]}

# Groups of exiftool that describe the file, its container or its colours, not the photograph.
OF_FILES = {"ExifTool", "System", "File", "Composite", "JFIF", "PNG", "RIFF", "Jpeg2000", "QuickTime", "Meta", "VP8", "GIF", "Adobe",
            "APP14", "Photoshop", "Ducky", "PNG-pHYs", "MPF0", "MPImage1"}
# Small pictures, further pages and previews of raw files are not the picture that is written.
OF_OTHER_PICTURES = re.compile(r"IFD[1-9]|SubIFD|ICC[-_].*")
# How pixels are stored in the file that was read.
OF_PIXELS = set("""ImageWidth ImageHeight BitsPerSample Compression PhotometricInterpretation FillOrder StripOffsets StripByteCounts
    RowsPerStrip SamplesPerPixel PlanarConfiguration ExtraSamples SampleFormat Predictor InkSet TileWidth TileLength TileOffsets
    TileByteCounts JPEGTables PageNumber SubfileType OldSubfileType T4Options T6Options YCbCrPositioning YCbCrSubSampling
    YCbCrCoefficients ReferenceBlackWhite PreviewImage PreviewImageStart PreviewImageLength OtherImageStart OtherImageLength
    ThumbnailOffset ThumbnailLength ThumbnailImage WhitePoint PrimaryChromaticities TransferFunction JpgFromRawStart
    MinSampleValue MaxSampleValue ColorMap TargetPrinter""".split())
# These have to be those of the result.
CHANGED = {"ExifImageWidth", "ExifImageHeight", "Orientation"} | OF_PIXELS
# What says that the file holds raw data, which no result does.
OF_RAW_FILES = {"DNGVersion", "DNGBackwardVersion", "UniqueCameraModel"}
# exiftool reports offsets in maker notes from the beginning of the file.
PLACES = re.compile(r".*(Start|Offset)$")
# Types without IPTC have it in XMP if that has a name for it; exiftool then reports it under that name.
IPTC_AS_XMP = {"webp", "avif", "jxl"}
# What a reader calls the block itself, not what it says.
OF_BLOCKS = {"XMPToolkit", "CodedCharacterSet", "ApplicationRecordVersion", "EnvelopeRecordVersion"}
LEFT_OUT = CHANGED | OF_RAW_FILES | OF_BLOCKS
# The raw data of the camera are not read, but the picture inside, whose EXIF says less.
NOT_COMPARED = {"Panasonic.rw2"}
MAKERS_DATA = "outside EXIF is left out"


def tags(folder):
    told = subprocess.run(["exiftool", "-q", "-r", "-j", "-n", "-G1", "-api", "largefilesupport=1", str(folder)],
                          capture_output=True, check=False, timeout=1000)
    return {Path(entry["SourceFile"]).resolve(): entry for entry in json.loads(told.stdout or b"[]")}


def compared(entry):
    for key, value in entry.items():
        group, _, name = key.rpartition(":")
        if group and group not in OF_FILES and not OF_OTHER_PICTURES.fullmatch(group) and \
                name not in LEFT_OUT and not PLACES.match(name):
            yield group, name, value


def is_there(result, group, name, value):
    key = f"{group}:{name}"
    if key in result:
        there = result[key]
        near = isinstance(there, float) and isinstance(value, (int, float)) and abs(there - value) <= 1e-6 * max(1, abs(value))
        return there == value or near
    return False


def problems_of(line, source, result):
    """The tags that a result lacks or has changed without a word, by name."""
    losses = " ".join(line["losses"])
    known_groups = {key.rpartition(":")[0] for key in result}
    for group, name, value in compared(source):
        if is_there(result, group, name, value):
            continue
        if group == "IPTC" and line["type"] in IPTC_AS_XMP:
            continue
        if MAKERS_DATA in losses and group not in known_groups:
            continue
        if MAKERS_DATA in losses and group in ("FLIR", "CIFF"):  # which are in maker notes too
            continue
        yield f"{group}:{name} was {value!r:.60}, is {result.get(f'{group}:{name}')!r:.60}"


def main(batch, folder, pictures):
    if shutil.which("exiftool") is None:
        print("no exiftool")
        return 77
    if not all(Path(each).is_dir() for each in pictures):
        print("no pictures")
        return 77
    folder = Path(folder)
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    (folder / "all.quorlin").write_text(json.dumps(RECIPE), encoding="utf-8")
    # Some of the pictures are broken, which their status says.
    subprocess.run([batch, "--quiet", "--keep-tree", "--to", folder / "made", "--report", folder / "report.jsonl", folder / "all.quorlin",
                    *pictures], capture_output=True, check=False, timeout=1500)
    sources = {path: entry for each in pictures for path, entry in tags(each).items()}
    results = tags(folder / "made")
    lines = [json.loads(line) for line in (folder / "report.jsonl").read_text(encoding="utf-8").splitlines()]
    seen, count, faults = 0, 0, []
    for line in lines:
        if line.get("status") != "OK" or Path(line["input"]).name in NOT_COMPARED:
            continue
        source, result = sources[Path(line["input"]).resolve()], results[Path(line["output"]).resolve()]
        seen += 1
        count += sum(1 for _ in compared(source))
        faults += [f"{Path(line['input']).name} to {line['type']}: {fault}" for fault in problems_of(line, source, result)]
    print(f"{seen} results, {count} tags, {len(faults)} lost or changed without a word")
    print("\n".join(faults[:60]))
    return 1 if faults or seen == 0 or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], sys.argv[3:]))
