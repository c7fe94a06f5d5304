#!/usr/bin/env python3
"""headers.py ROOT BUILD ROOM...: every header of the rooms compiles alone, without precompiled headers, with what its room sees.

The options are those with which the build compiles the headers of a room together (the targets headers-ROOM).
"""
import json
import os
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


def options(build, room):
    """The compiler and its options for the headers of a room, without source, output and launcher."""
    name = f"{room}-forwards.cpp"
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if Path(entry["file"]).name != name:
            continue
        words = shlex.split(entry["command"])
        if Path(words[0]).name == "ccache":
            words = words[1:]
        return words[:words.index("-o")]
    sys.exit(f"{build}: nothing compiles the headers of {room}")


def complaint(root, command, header):
    """What the compiler says about a header by itself, or nothing."""
    source = f'#include "{header}"\n#include "{header}"\n'
    run = subprocess.run([*command, "-fsyntax-only", "-x", "c++", "-"], cwd=root, input=source, capture_output=True, text=True)
    return "" if run.returncode == 0 else f"{header} does not stand alone:\n{run.stderr}"


def main():
    root, build = Path(sys.argv[1]), Path(sys.argv[2])
    tries = []
    for room in sys.argv[3:]:
        headers = sorted(path.relative_to(root) for path in (root / room).rglob("*.h"))
        command = options(build, room) if headers else []
        tries += [(root, command, header) for header in headers]
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        complaints = [text for text in pool.map(lambda each: complaint(*each), tries) if text]
    print(*complaints, f"{len(tries)} headers, {len(complaints)} of which do not stand alone", sep="\n")
    return 1 if complaints or not tries else 0


if __name__ == "__main__":
    sys.exit(main())
