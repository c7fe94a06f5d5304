#!/usr/bin/env python3
"""first_picture.py RUNNER WINDOW WORK_FOLDER [CORPUS]: pictures of every type as the first and the second of a process.

Libraries are started by what is done first, so each picture, and each thing that is done with one, takes its turn at being
the first in a new process, and the second after a picture of another type. Without CORPUS small pictures of all types that
ImageMagick can make take part, with it all of its files in the runner and in the window. No process may be ended by a signal.
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

OPERATIONS = ["size", "thumbnail", "handle", "preview", "properties", "conversion"]
SCRIPT = Path(__file__).with_name("first-picture.js")
LONGEST = 120
MADE = {
    "grey.bmp": ["-size", "20x10", "gradient:", "-type", "palette"], "colour.bmp": ["-size", "20x10", "plasma:"],
    "rgb.psd": ["-size", "20x10", "plasma:"], "cmyk.psd": ["-size", "20x10", "plasma:", "-colorspace", "CMYK"],
    "rgb.tif": ["-size", "20x10", "plasma:"], "rgb.png": ["-size", "20x10", "plasma:"], "rgb.gif": ["-size", "20x10", "plasma:"],
    "rgb.jpg": ["-size", "20x10", "plasma:"], "rgb.jp2": ["-size", "64x64", "plasma:"], "rgb.webp": ["-size", "20x10", "plasma:"],
    "cut.bmp": None, "cut.psd": None,
}


def made(folder):
    """The pictures of MADE, the last of them without their ends."""
    paths = []
    for name, words in MADE.items():
        path = folder / name
        if words is not None:
            subprocess.run(["convert", *words, f"{'PNG24:' if name == 'rgb.png' else ''}{path}"], check=True, capture_output=True)
        else:
            whole = (folder / ("colour.bmp" if name.endswith("bmp") else "rgb.psd")).read_bytes()
            path.write_bytes(whole[:len(whole) * 2 // 3])
        paths.append(path)
    return paths


def told(code):
    return f"ended by signal {signal.Signals(-code).name}" if code < 0 else f"ended with {code}"


def in_runner(runner, work, steps):
    words = [str(word) for step in steps for word in step]
    with tempfile.TemporaryDirectory(dir=work) as folder:
        try:
            ended = subprocess.run([runner, str(SCRIPT), f"{folder}/", *words], capture_output=True, text=True,
                                   errors="replace", timeout=LONGEST)
        except subprocess.TimeoutExpired:
            return [f"{' '.join(words)}: takes more than {LONGEST} s"]
    answers = len(ended.stdout.splitlines())
    if ended.returncode == 0 and answers == len(steps):
        return []
    return [f"{' '.join(words)}: {told(ended.returncode)}, {answers} answers of {len(steps)}: {ended.stderr.strip()[-200:]}"]


def has_started(home):
    """The window writes down which action it shows as soon as it does."""
    return any(b"ShownAction" in settings.read_bytes() for settings in home.glob("config/*/*.ini"))


def stand(process):
    """Whether a process waits for something to happen, and what it has computed, in the kernel's ticks."""
    fields = Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
    return fields[0] == "S", int(fields[11]) + int(fields[12])


def in_window(window, home, files):
    """Opens the window with pictures and waits until it is there and has nothing more to do."""
    environment = dict(os.environ, HOME=str(home), XDG_CONFIG_HOME=f"{home}/config", XDG_DATA_HOME=f"{home}/data")
    process = subprocess.Popen([window, *map(str, files)], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    start, last, quiet = time.monotonic(), -1, 0
    least_quiet, pause = 6, 0.1
    while process.poll() is None and time.monotonic() - start < LONGEST and quiet < least_quiet:
        time.sleep(pause)
        try:
            waits, now = stand(process)
        except OSError:
            continue
        quiet = quiet + 1 if waits and now == last and (quiet > 0 or has_started(home)) else 0
        last = now
    name = f"window with {' '.join(map(str, files))}"
    if process.poll() is not None:
        return [f"{name}: {told(process.returncode)}"]
    process.terminate()
    process.wait()
    return [] if quiet >= least_quiet else [f"{name}: still busy after {LONGEST} s"]


def runs_of(files, other):
    """What the runner does, process by process."""
    for path in files:
        for operation in OPERATIONS:
            yield [(operation, path)]
            yield [("preview", other), (operation, path)]


def main(runner, window, work, corpus=None):
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    own = made(work)
    files, other = own, work / "rgb.png"
    if corpus is not None:
        files = sorted(path for path in corpus.rglob("*") if path.is_file() and path.suffix not in (".tsv", ".md", ".txt", ".plist"))
        if not files:
            print("no pictures here")
            return 77
    # Of the files of all the world one process does everything, in the turns that matter.
    runs = list(runs_of(own if corpus is None else [], other))
    if corpus is not None:
        for path in files:
            runs += [[(first, path), *[(operation, path) for operation in OPERATIONS]] for first in ("preview", "properties")]
            runs.append([("thumbnail", other), *[(operation, path) for operation in OPERATIONS]])
    shown = [[path] for path in (files if corpus is not None else [path for path in own if path.suffix in (".bmp", ".psd")][:4])]
    if corpus is not None:
        shown += [[other, path] for path in files]
    # Nobody may be in the way of another: a window waits longer than it computes, the runner does not wait.
    processors = len(os.sched_getaffinity(0))
    with ThreadPoolExecutor(processors) as pool:
        problems = [line for found in pool.map(lambda run: in_runner(runner, work, run), runs) for line in found]
    homes = iter(range(len(shown)))
    with ThreadPoolExecutor(4 * processors) as pool:
        problems += [line for found in pool.map(lambda paths: in_window(window, work / f"home{next(homes)}", paths), shown)
                     for line in found]
    print(f"{len(runs)} processes of the runner, {len(shown)} windows, {len(problems)} problems")
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], Path(sys.argv[3]), *map(Path, sys.argv[4:5])))
