#!/usr/bin/env python3
"""comment_batch.py SCRIPT_RUNNER own|CORPUS WORK_FOLDER: the comment of every picture is changed, and nothing else.

Copies of all pictures get one comment after the other. Then programs that are not ours check them: exiftool must read
the comment back and find every other tag, embedded pictures and maker notes included, as it was before; vips must
decode the same pixels. The bytes of a JPEG outside its EXIF segments are compared one by one, and files that cannot
hold a comment as a whole. Ends with 77 if there is no corpus.
"""
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

import picture_folders

SKIPPED = 77
FOLDERS = ("exif-real", "metadata", "formats", "orientation", "dpi", "broken")
WRITABLE = ("JPEG", "TIFF", "PNG", "JP2", "WEBP", "Extended WEBP", "DNG", "BigTIFF")
COMMENTS = ["Plain words, 1 to 9", "Grüße aus Århus: ça va à l'œil", "Ελληνικά: Καλημέρα κόσμε", "写真の説明、東京にて。한국어 설명",
            "On the beach 🏖️ 😀 👩‍👩‍👧", "short", "Ж" * 3000, "", "x"]
# Tags with positions in the file, or the dates and size of the file.
PLACES = re.compile(r"^(System:|ExifTool:Warning|.*:UserComment$|.*:MPImageStart$|File:FileSize|Composite:)")
SCRIPT = """
import { mMeta } from "quorlin";
const [comment, ...paths] = scriptArguments;
const meta = new mMeta();
for (const path of paths) print(JSON.stringify([path, meta.hSetExifData(path, comment), meta.hGetExifUc(path)]));
"""


def tags(paths, *more):
    """What exiftool says of each file, binary values included."""
    done = subprocess.run(["exiftool", "-q", "-q", "-j", "-b", "-n", "-a", "-u", "-G1", *more, *map(str, paths)], capture_output=True,
                          env={**os.environ, "TZ": "UTC"})
    return {entry["SourceFile"]: entry for entry in json.loads(done.stdout or b"[]")}


def kept(entry, pages):
    """The tags that must not change. Where other pages are dropped, theirs go with them."""
    return {key: value for key, value in entry.items()
            if not PLACES.match(key) and key != "SourceFile" and not (pages > 1 and re.match(r"^(IFD[1-9]|File:PageCount)", key))}


def pixels(path, work):
    """A digest of the decoded first picture; none where vips cannot decode it."""
    raw = work / "pixels.v"
    raw.unlink(missing_ok=True)
    done = subprocess.run(["vips", "copy", str(path), str(raw)], capture_output=True)
    header = subprocess.run(["vipsheader", "-f", "bands", str(path)], capture_output=True, text=True).stdout
    if done.returncode != 0 or not raw.exists():
        return None
    data = raw.read_bytes()
    size = int.from_bytes(data[4:8], "little") * int.from_bytes(data[8:12], "little")
    formats = {0: 1, 1: 1, 2: 2, 3: 2, 4: 4, 5: 4, 6: 4, 7: 8, 8: 8, 9: 16}
    count = size * int(header) * formats[int.from_bytes(data[20:24], "little")]
    return hashlib.sha256(data[64:64 + count]).hexdigest()


def without_exif(data):
    """The bytes of a JPEG without its EXIF segments."""
    out, at = data[:2], 2
    while at + 4 <= len(data):
        if data[at] != 0xFF or data[at + 1] == 0xFF:
            out, at = out + data[at:at + 1], at + 1
            continue
        if data[at + 1] == 0xDA:
            break
        if data[at + 1] in (0x01, *range(0xD0, 0xD9)):
            out, at = out + data[at:at + 2], at + 2
            continue
        end = at + 2 + int.from_bytes(data[at + 2:at + 4], "big")
        if not (data[at + 1] == 0xE1 and data[at + 4:at + 10] == b"Exif\0\0"):
            out += data[at:end]
        at = end
    return out + data[at:]


class Batch:
    def __init__(self, runner, corpus, work):
        self.runner, self.work, self.folder = runner, work, work / "pictures"
        shutil.rmtree(work, ignore_errors=True)
        self.rows, self.sources = [], {}
        for row in picture_folders.rows(corpus):
            if row["path"].split("/")[0] in FOLDERS:
                copy = self.folder / row["path"]
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(corpus / row["path"], copy)
                self.rows.append(row)
                self.sources[str(copy)] = corpus / row["path"]
        (work / "write.js").write_text(SCRIPT, encoding="utf-8")
        self.faults, self.written = [], 0

    def fault(self, path, text):
        self.faults.append(f"{path}: {text}")

    def write(self, comment):
        """What the service answers and reads back, by path."""
        done = subprocess.run([self.runner, str(self.work / "write.js"), comment, *self.sources], capture_output=True, text=True)
        if done.returncode != 0:
            sys.exit(f"the script failed: {done.stderr}")
        return {path: (status, read) for path, status, read in map(json.loads, done.stdout.splitlines())}

    def run(self):
        before = tags(self.sources)
        for number, comment in enumerate(COMMENTS):
            answers = self.write(comment)
            if set(answers) != set(self.sources):
                sys.exit("the script left files out")
            whole = number in (3, 6, len(COMMENTS) - 1)
            after = tags(self.sources) if whole else tags(self.sources, "-UserComment")
            for row, path in zip(self.rows, self.sources):
                self.check_comment(row, path, comment, answers[path], after[path])
                if whole:
                    self.check_rest(row, path, before[path], after[path])
        for row, path in zip(self.rows, self.sources):
            if self.is_written(row, path) and pixels(path, self.work) != pixels(self.sources[path], self.work):
                self.fault(path, "decodes to other pixels")
        litter = [str(path) for path in self.folder.rglob(".*")]
        if litter:
            self.fault("left behind", ", ".join(litter))

    def is_written(self, row, path):
        return row["format"] in WRITABLE and Path(path).read_bytes() != self.sources[path].read_bytes()

    def check_comment(self, row, path, comment, answer, entry):
        status, read = answer
        if status not in ("OK", "Failed"):
            self.fault(path, f"answers {status}")
        if row["decodable"] == "yes" and not row["path"].startswith("broken/") and status != "OK":
            if row["path"] != "formats/00r1_graya_la.jp2":  # which no decoder here reads
                self.fault(path, "was not opened")
        data = Path(path).read_bytes()
        if status == "Failed" or row["format"] not in WRITABLE:
            if data != self.sources[path].read_bytes():
                self.fault(path, "changed although it cannot hold a comment")
            return
        self.written += 1
        theirs = next((value for key, value in entry.items() if key.endswith(":UserComment")), None)
        if read != comment:
            self.fault(path, f"reads {read!r} instead of {comment!r}")
        if str(theirs) != comment:
            self.fault(path, f"exiftool reads {theirs!r} instead of {comment!r}")
        if row["format"] == "JPEG" and without_exif(data) != without_exif(self.sources[path].read_bytes()):
            self.fault(path, "differs outside its EXIF segment")

    def check_rest(self, row, path, before, after):
        pages = int(row["frames_pages"]) if row["frames_pages"].isdigit() else 1
        old, new = kept(before, pages if row["format"] == "TIFF" else 1), kept(after, pages if row["format"] == "TIFF" else 1)
        if not self.is_written(row, path):
            return
        if "File:ExifByteOrder" not in old:  # what a first EXIF block brings along
            new.pop("File:ExifByteOrder", None)
            new.update({"RIFF:WebP_Flags": flags & ~8 for flags in [new.get("RIFF:WebP_Flags")] if flags is not None})
            if old.get("File:FileType") == "WEBP":  # only the extended form holds a block
                new["File:FileType"] = "WEBP" if new.get("File:FileType") == "Extended WEBP" else new.get("File:FileType")
                if new.get("RIFF:WebP_Flags") == 0:
                    new["RIFF:WebP_Flags"] = old.get("RIFF:WebP_Flags")
        for key in sorted(set(old) | set(new)):
            if old.get(key) != new.get(key):
                self.fault(path, f"{key} was {str(old.get(key))[:80]!r} and is {str(new.get(key))[:80]!r}")


def main():
    runner, corpus, work = sys.argv[1], picture_folders.named(sys.argv[2]), Path(sys.argv[3]).resolve()
    if corpus is None:
        return SKIPPED
    if not shutil.which("exiftool") or not shutil.which("vips"):
        print("exiftool or vips is missing")
        return SKIPPED
    batch = Batch(runner, corpus, work)
    batch.run()
    for fault in batch.faults:
        print(fault)
    print(f"{batch.written} comments written into {len(batch.rows)} files, {len(batch.faults)} faults")
    fewest = sum(row["format"] in WRITABLE and row["decodable"] == "yes" for row in batch.rows) * len(COMMENTS) * 9 // 10
    return 1 if batch.faults or batch.written < max(fewest, 500) else 0


if __name__ == "__main__":
    sys.exit(main())
