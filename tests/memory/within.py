#!/usr/bin/env python3
"""within.py PROGRAM FOLDER...: no picture of the folders ends the program where memory is short.

Each picture is opened, made small and converted into every type by a process of its own that may have no more than so
much address space. What does not fit may fail; a signal may not end it. MEGABYTES names other limits.
"""

import os
import signal
import subprocess
import sys
import tempfile

LIMITS = [int(each) for each in os.environ.get("MEGABYTES", "1000 1500 2000").split()]
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


def outcome(program, script, picture, limit):
    """The exit code and what was done."""
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


def main():
    program, folders = sys.argv[1], [folder for folder in sys.argv[2:] if os.path.isdir(folder)]
    failures = 0
    with tempfile.NamedTemporaryFile("w", suffix=".js") as script:
        script.write(SCRIPT)
        script.flush()
        all_pictures = list(pictures(folders))
        for limit in LIMITS:
            operations = 0
            for picture in all_pictures:
                trouble, done = outcome(program, script.name, picture, limit)
                operations += done
                if trouble:
                    failures += 1
                    print(f"{limit} MB: {picture}: {trouble}", flush=True)
            print(f"{limit} MB: {len(all_pictures)} pictures, {operations} operations done", flush=True)
            if operations == 0:
                failures += 1
    return 1 if failures or not all_pictures else 0


if __name__ == "__main__":
    sys.exit(main())
