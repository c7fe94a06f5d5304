#!/usr/bin/env python3
"""fields_batch.py SCRIPT_RUNNER own|CORPUS WORK_FOLDER: the fields of every picture are set, and nothing else changes.

Copies of all pictures get every field. Then programs that are not ours check them: exiftool must read each field where
the metadata working group has it, IPTC's digest included, and find every other tag, embedded pictures and maker notes
as they were; exif, which is libexif, must read what EXIF has of them. Vips must decode the same pixels. Files that are
not changed themselves are compared as a whole, and exiftool reads their sidecars. Ends with 77 if there is no corpus.
"""
import json
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

import picture_folders
from comment_batch import pixels

SKIPPED = 77
FOLDERS = ("cameras", "exif-real", "metadata", "formats", "orientation", "dpi", "broken")
IN_PLACE = ("JPEG", "TIFF", "PNG", "JP2", "WEBP", "Extended WEBP", "PSD", "PSB", "BigTIFF")
HAS_IPTC = ("JPEG", "TIFF", "PSD", "PSB", "BigTIFF")
LARGEST = 20_000_000
LONG = "Schloß am Hafen, " + "sehr lang " * 8
FIELDS = {
    "title": ["Möwen über Århus"], "headline": ["Καλημέρα κόσμε"], "caption": ["写真の説明 😀, it's a | bar\nsecond line"],
    "keywords": ["Möwe", "port", "日本語"], "creator": ["Zoë Müller", "A. N. Other"], "jobTitle": ["Fotografin"],
    "contactAddress": ["Am Kai 1"], "contactPhone": ["+49 40 1"], "contactEmail": ["a@b.example"], "contactWeb": ["https://b.example"],
    "copyright": ["© 2026 Zoë Müller"], "usageTerms": ["Only with credit"], "credit": ["Trial Press"], "source": ["Own"],
    "instructions": ["Embargo: none"], "jobIdentifier": ["J-17"], "sublocation": [LONG.strip()], "city": ["Århus"], "state": ["Midtjylland"],
    "country": ["Danmark"], "countryCode": ["DNK"], "dateTaken": ["2019-03-31T14:05:09.25+02:00"], "rating": ["4"], "label": ["Green"],
}
XMP = {
    "XMP-dc:Title": "Möwen über Århus", "XMP-photoshop:Headline": "Καλημέρα κόσμε", "XMP-dc:Description": FIELDS["caption"][0],
    "XMP-dc:Subject": FIELDS["keywords"], "XMP-dc:Creator": FIELDS["creator"], "XMP-photoshop:AuthorsPosition": "Fotografin",
    "XMP-iptcCore:CreatorContactInfo": {"CiAdrExtadr": "Am Kai 1", "CiTelWork": "+49 40 1", "CiEmailWork": "a@b.example",
                                        "CiUrlWork": "https://b.example"},
    "XMP-dc:Rights": "© 2026 Zoë Müller", "XMP-xmpRights:UsageTerms": "Only with credit", "XMP-photoshop:Credit": "Trial Press",
    "XMP-photoshop:Source": "Own", "XMP-photoshop:Instructions": "Embargo: none", "XMP-photoshop:TransmissionReference": "J-17",
    "XMP-iptcCore:Location": LONG.strip(), "XMP-photoshop:City": "Århus", "XMP-photoshop:State": "Midtjylland",
    "XMP-photoshop:Country": "Danmark", "XMP-iptcCore:CountryCode": "DNK", "XMP-photoshop:DateCreated": "2019:03:31 14:05:09.25+02:00",
    "XMP-xmp:Rating": 4, "XMP-xmp:Label": "Green",
}
IPTC = {
    "IPTC:ObjectName": "Möwen über Århus", "IPTC:Headline": "Καλημέρα κόσμε", "IPTC:Caption-Abstract": FIELDS["caption"][0],
    "IPTC:Keywords": FIELDS["keywords"], "IPTC:By-line": FIELDS["creator"], "IPTC:By-lineTitle": "Fotografin",
    "IPTC:CopyrightNotice": "© 2026 Zoë Müller", "IPTC:Credit": "Trial Press", "IPTC:Source": "Own",
    "IPTC:SpecialInstructions": "Embargo: none", "IPTC:OriginalTransmissionReference": "J-17",
    "IPTC:Sub-location": LONG.encode()[:32].decode(errors="ignore"), "IPTC:City": "Århus", "IPTC:Province-State": "Midtjylland",
    "IPTC:Country-PrimaryLocationName": "Danmark", "IPTC:Country-PrimaryLocationCode": "DNK", "IPTC:DateCreated": "2019:03:31",
    "IPTC:TimeCreated": "14:05:09+02:00", "IPTC:CodedCharacterSet": "\x1b%G",
}
EXIF = {
    "IFD0:ImageDescription": FIELDS["caption"][0], "IFD0:Artist": "Zoë Müller; A. N. Other", "IFD0:Copyright": "© 2026 Zoë Müller",
    "ExifIFD:DateTimeOriginal": "2019:03:31 14:05:09", "ExifIFD:SubSecTimeOriginal": 25, "ExifIFD:OffsetTimeOriginal": "+02:00",
}
# What libexif is asked by number, and says as text.
LIBEXIF = {"0x010e": FIELDS["caption"][0], "0x013b": "Zoë Müller; A. N. Other", "0x9003": "2019:03:31 14:05:09"}
# Tags with positions in the file, its size, or values of a field.
PLACES = re.compile(r"^(SourceFile$|System:|ExifTool:|.*:MPImageStart$|File:(FileSize|CurrentIPTCDigest|FileType|MIMEType)$|Composite:"
                    r"|Photoshop:IPTCDigest$|IPTC:ApplicationRecordVersion$|IFD0:(Rating|RatingPercent)$|XMP-exif:DateTimeOriginal$"
                    r"|XMP-x:XMPToolkit$|RIFF:VP8XFlags$|File:ExifByteOrder$|.*:ThumbnailOffset$|.*Offset$|.*StripOffsets$|.*:PreviewImageStart$"
                    r"|RIFF:WebP_Flags$|RIFF:Image(Width|Height)$|PNG:)")
SCRIPT = """
import { files } from "quorlin/files";
const [work, ...paths] = scriptArguments;
for (const path of paths) print(JSON.stringify([path, files.writeFields(path, JSON.parse(work)), files.readFields(path)]));
"""


def tags(paths):
    done = subprocess.run(["exiftool", "-q", "-q", "-j", "-b", "-n", "-a", "-u", "-U", "-G1", "-struct", *map(str, paths)],
                          capture_output=True, env={**os.environ, "TZ": "UTC"})
    return {entry["SourceFile"]: entry for entry in json.loads(done.stdout or b"[]")}


def written(runner, work, paths):
    script = Path(paths[0]).parent.parent / "write.js"
    script.write_text(SCRIPT, encoding="utf-8")
    done = subprocess.run([runner, str(script), json.dumps(work), *map(str, paths)], capture_output=True, text=True, timeout=550)
    lines = [json.loads(line) for line in done.stdout.splitlines() if line.startswith("[")]
    if len(lines) != len(paths):
        sys.exit(f"{len(lines)} of {len(paths)} answers: {done.stderr[-800:]}")
    return {path: (write, read) for path, write, read in lines}


def expected(kind, before):
    """A JPEG 2000 or PNG file gets no IPTC, but what it has is kept in step."""
    has_iptc = kind in HAS_IPTC or any(key.startswith("IPTC:") for key in before)
    return {**XMP, **(IPTC if has_iptc else {}), **EXIF}


def compare_tags(path, kind, before, after):
    wanted = expected(kind, before)
    for key, value in wanted.items():
        if after.get(key) != value:
            yield f"{path}: {key} is {after.get(key)!r}, not {value!r}"
    if kind in HAS_IPTC and (after.get("Photoshop:IPTCDigest") is None
                             or after.get("Photoshop:IPTCDigest") != after.get("File:CurrentIPTCDigest")):
        yield f"{path}: the digest is {after.get('Photoshop:IPTCDigest')}, not {after.get('File:CurrentIPTCDigest')}"
    for key in sorted((set(before) | set(after)) - set(wanted)):
        if not PLACES.match(key) and before.get(key) != after.get(key):
            yield f"{path}: {key} was {str(before.get(key))[:80]!r}, is {str(after.get(key))[:80]!r}"


def gives_up(path):
    """Whether libexif calls what the camera wrote corrupt, maker notes above all, and then reads nothing of the file at all."""
    done = subprocess.run(["exif", "-m", str(path)], capture_output=True, env={**os.environ, "LC_ALL": "C.UTF-8"})
    return done.returncode != 0 and b"Corrupt data" in done.stdout + done.stderr


def compare_libexif(original, path):
    if shutil.which("exif") is None:
        return
    if gives_up(original):
        print(f"libexif cannot read {original.name}, before or after")
        return
    for tag, value in LIBEXIF.items():
        done = subprocess.run(["exif", "-m", "-t", tag, str(path)], capture_output=True, env={**os.environ, "LC_ALL": "C.UTF-8"})
        said = done.stdout.decode(errors="replace").strip()
        if said != value:
            yield f"{path}: libexif reads {said!r} in {tag}, not {value!r}"


def check(original, copy, kind, before, after, work):
    if kind not in IN_PLACE:
        return
    yield from compare_tags(copy, kind, before, after)
    if kind == "JPEG":
        yield from compare_libexif(original, copy)
    if pixels(original, work) != pixels(copy, work):
        yield f"{copy}: other pixels"


def main():
    runner, corpus, work = sys.argv[1], sys.argv[2], Path(sys.argv[3])
    if shutil.which("exiftool") is None:
        print("no exiftool")
        return SKIPPED
    folder = picture_folders.named(corpus)
    if folder is None:
        return SKIPPED
    pictures = [path for name in FOLDERS for path in sorted((folder / name).rglob("*"))
                if path.is_file() and path.suffix.lower() not in (".tsv", ".md", ".txt", ".xmp") and path.stat().st_size < LARGEST]
    shutil.rmtree(work, ignore_errors=True)
    copies = {}
    for number, original in enumerate(pictures):
        copy = work / "copies" / f"{number:03}-{original.name}"
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(original, copy)
        copies[str(copy)] = original
    before = tags(copies)
    answers = written(runner, {"fields": {name: {"set": texts} for name, texts in FIELDS.items()}}, list(copies))
    after = tags(copies)
    problems, counts = [], {}
    for copy, original in copies.items():
        kind = before.get(copy, {}).get("File:FileType", "")
        write, read = answers[copy]
        what = "refused" if write["problem"] else "in place" if write["file"] == copy else "sidecar"
        counts[what] = counts.get(what, 0) + 1
        if what == "refused":
            print(f"refused: {write['problem']}")
        if what != "in place" and Path(copy).read_bytes() != original.read_bytes():
            problems.append(f"{copy}: changed")
        if what == "in place":
            problems += check(original, Path(copy), kind, before[copy], after[copy], work)
        if what != "refused":
            said = {name: field["value"] for name, field in read["fields"].items()}
            problems += [f"{copy}: {name} is {said.get(name)}" for name in FIELDS if said.get(name) != FIELDS[name]]
        if what == "sidecar":
            found = tags([write["file"]]).get(write["file"], {})
            problems += [f"{write['file']}: {key} is {found.get(key)!r}" for key in XMP if found.get(key) != XMP[key]]
    print("\n".join(problems))
    print(f"{len(copies)} pictures: {counts}; {len(problems)} problems")
    return 1 if problems or not counts.get("in place") else 0


if __name__ == "__main__":
    sys.exit(main())
