#!/usr/bin/env python3
"""table.py [TASK...]: how near Quorlin is to programs that do nothing else, task by task, and whether that is near enough.

CPU time for a picture is the user and system time of the process and of the children that it waited for, its start included, divided
by the number of pictures. It is taken on two roads, the services of quorlin-script and quorlin-batch with one worker, in rounds with
the program that it is compared with, which has one thread too; ratios are taken round by round. Memory is that of the largest process,
and for quorlin-batch, without a bound, also what all of its processes have together.

A bound is missed where the median of the ratios is above it by more than half of their interquartile range, or by more than 5 %. Where
the interquartile range is above 10 % of the median the task is measured once more, and then is too noisy to be passed.

  PROGRAMS  folder of quorlin-script, quorlin-batch, quorlin-worker, quorlin
  PEERS     folder of the program "limit"
  CORPUS    folder of photographs of 12 megapixels
  RUNS=7    rounds        COUNT=40  photographs of a round (16 for what takes long)
  BOUNDS=no  measures only: nothing is held against a bound
"""
import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PROGRAMS = Path(os.environ.get("PROGRAMS", ROOT / "build/bin"))
LIMIT = Path(os.environ.get("PEERS", ROOT / "build/bench/build")) / "limit"
CORPUS = Path(os.environ.get("CORPUS", ROOT / "build/bench/corpus/jpeg12"))
RUNS = int(os.environ.get("RUNS", "7"))
COUNT = int(os.environ.get("COUNT", "40"))
HAS_BOUNDS = os.environ.get("BOUNDS") != "no"
FEW = min(COUNT, 16)


def jpeg(quality, *operations):
    return {"operations": list(operations), "outputs": [{"type": "jpeg", "quality": quality}]}


def each(command):
    return ["sh", "-c", f'in=$1; out=$2; for f in "$in"/*; do {command}; done', "sh", "{in}", "{out}"]


class Task:
    """One row: what the limit program and the script are called with, the recipe of the other road, and the bounds."""

    def __init__(self, limit, script, recipe, most, memory, **more):
        self.limit = [str(LIMIT), *limit.format(i="{in}", o="{out}").split(), "-t", "1"]
        self.script = [str(PROGRAMS / "quorlin-script"), str(ROOT / "bench" / script[0]), *script[1:], "{out}", "{files}"]
        self.recipe, self.most, self.memory = recipe, most, memory
        self.count = more.get("count", COUNT)
        self.others = more.get("others", {})  # {name: (command, at most)}


TASKS = {
    "a": Task("a {i} {o} -T fast", ("resize.js", "a"), jpeg(80, {"do": "resize", "longest": 1000}), 1.3, 50),
    "b": Task("b {i} {o} -T fast", ("resize.js", "b"), jpeg(80, {"do": "resize", "percent": 50}), 1.3, 60),
    "c": Task("c {i} {o} -T fast", ("resize.js", "c"),
              jpeg(80, {"do": "resize", "box": [1000, 1000], "fit": "fill"}), 1.4, 60),
    "d90": Task("r90 {i} {o}", ("turn.js", "d90"),
                {"operations": [{"do": "turn", "degrees": -90}], "outputs": [{}]}, 0.95, 120, count=FEW,
                others={"jpegtran": (each('jpegtran -rotate 270 -trim -copy all -outfile "$out/${f##*/}" "$f"'), 0.85)}),
    "e": Task("e {i} {o}", ("turn.js", "e"),
              {"operations": [{"do": "flip", "direction": "horizontal"}], "outputs": [{}]}, 1.0, 120, count=FEW,
              others={"jpegtran": (each('jpegtran -flip horizontal -copy all -outfile "$out/${f##*/}" "$f"'), 0.85)}),
    "d7": Task("full {i} {o} -q 92", ("turn.js", "d7"),
               jpeg(92, {"do": "turn", "degrees": -7.5, "color": "#000000"}), 2.7, 140, count=FEW),
    "f": Task("crop {i} {o}", ("mask.js", "f"), jpeg(90, {"do": "crop", "width": 3000, "height": 2250}), 1.15, 80, count=FEW,
              others={"jpegtran": (each('jpegtran -crop 3000x2250+496+368 -copy all -outfile "$out/${f##*/}" "$f"'), 1.05)}),
    "h": Task("round {i} {o} -q 1", ("mask.js", "h"),
              {"operations": [{"do": "round", "radius": 200}], "outputs": [{"type": "png"}]}, 1.2, 120, count=FEW),
    "png": Task("png {i} {o} -q 1", ("convert.js", "png"), {"outputs": [{"type": "png"}]}, 1.05, 80, count=FEW),
    "j": Task("j {i} {o} -T fast", ("preview.js", "j"), None, 1.2, 50),
}


class MemoryWatch(threading.Thread):
    """The most that a process and its children had together, what they share counted once, in MB."""

    def __init__(self, pid):
        super().__init__(daemon=True)
        self.pid, self.most, self.goes_on = pid, 0, True

    def members(self):
        found = [self.pid]
        for task in Path(f"/proc/{self.pid}/task").glob("*/children"):
            try:
                found += [int(pid) for pid in task.read_text().split()]
            except OSError:
                pass
        return found

    def run(self):
        while self.goes_on:
            total = 0
            for pid in self.members():
                try:
                    lines = Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
                    total += sum(int(line.split()[1]) for line in lines if line.startswith("Pss:"))
                except OSError:
                    pass
            self.most = max(self.most, total / 1024)
            time.sleep(0.05)


def cost(command, watches=False):
    """CPU seconds and megabytes of a command: of its largest process, and of all together."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                               env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))
    watch = MemoryWatch(process.pid)
    if watches:
        watch.start()
    said = process.stderr.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    watch.goes_on = False
    if status != 0:
        sys.exit(f"bench: {command[0]} failed: {said.decode(errors='replace')[:300]}")
    return usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, watch.most


class Workshop:
    """A folder with photographs, copies of each other if there are too few."""

    def __init__(self, folder):
        self.folder = folder

    def pictures(self, count):
        place = self.folder / f"in{count}"
        if not place.exists():
            place.mkdir()
            originals = sorted(CORPUS.glob("*.jpg"))
            if not originals:
                sys.exit(f"bench: there are no photographs in {CORPUS}")
            for i in range(count):
                shutil.copy(originals[i % len(originals)], place / f"p{i:03}.jpg")
        return place

    def run(self, command, count, watches=False):
        """Costs of a command, which must make a file of each picture."""
        out, pictures = self.folder / "out", self.pictures(count)
        shutil.rmtree(out, ignore_errors=True)
        out.mkdir()
        filled = []
        for word in command:
            if word == "{files}":
                filled += map(str, sorted(pictures.iterdir()))
            else:
                filled.append(word.replace("{in}", str(pictures)).replace("{out}", str(out)))
        found = cost(filled, watches)
        made = sum(1 for each_file in out.iterdir() if not each_file.name.startswith("."))
        if made != count:
            sys.exit(f"bench: {filled[0]} made {made} files of {count} pictures")
        return found

    def batch(self, name, recipe):
        path = self.folder / f"{name}.quorlin"
        path.write_text(json.dumps(dict(recipe, quorlin=1)))
        return [str(PROGRAMS / "quorlin-batch"), str(path), "{files}", "--to", "{out}", "--jobs", "1", "--quiet"]


def spread(values):
    """Median and interquartile range."""
    if len(values) < 2:
        return values[0], 0
    quarters = statistics.quantiles(values, n=4, method="inclusive")
    return quarters[1], quarters[2] - quarters[0]


class Verdict:
    def __init__(self):
        self.faults = []

    def judge(self, what, ratios, most):
        """A text for the ratios; the faults remember what is missed."""
        middle, range_ = spread(ratios)
        text = f"{middle:.2f} ({most})"
        if not HAS_BOUNDS:
            return text
        if middle > most and (middle - most > range_ / 2 or middle > 1.05 * most):
            self.faults.append(f"{what}: {middle:.2f}, the bound is {most}")
            return text + " NOT MET"
        if range_ > 0.1 * middle:
            self.faults.append(f"{what}: too noisy, {middle:.2f} with an interquartile range of {range_:.2f}")
            return text + " TOO NOISY"
        return text

    def memory(self, what, megabytes, most):
        text = f"{megabytes:.0f} ({most})"
        if HAS_BOUNDS and megabytes > most:
            self.faults.append(f"{what}: {megabytes:.0f} MB, the bound is {most}")
            return text + " NOT MET"
        return text


def measured(shop, name, task):
    commands = {"limit": task.limit, "script": task.script}
    if task.recipe:
        commands["batch"] = shop.batch(name, task.recipe)
    commands.update({other: command for other, (command, _) in task.others.items() if shutil.which(other)})
    rounds = [{way: shop.run(command, task.count) for way, command in commands.items()} for _ in range(RUNS)]
    together = shop.run(commands["batch"], task.count, True)[2] if task.recipe else None
    return rounds, together


def row_of(shop, name, task, verdict):
    for attempt in (1, 2):
        rounds, together = measured(shop, name, task)
        ratios = {way: [one["script"][0] / one[way][0] for one in rounds] for way in rounds[0] if way != "script"}
        middle, range_ = spread(ratios["limit"])
        if range_ <= 0.1 * middle or not HAS_BOUNDS or attempt == 2:
            break
    others = [verdict.judge(f"{name} to {other}", ratios[other], most)
              for other, (_, most) in task.others.items() if other in ratios]
    milliseconds = 1000 * statistics.median(one["script"][0] for one in rounds) / task.count
    batch = "-"
    if task.recipe:
        batch = f"{spread([one['batch'][0] / one['script'][0] for one in rounds])[0]:.2f}"
    megabytes = max(one["script"][1] for one in rounds)
    return [name, f"{milliseconds:.1f}", verdict.judge(name, ratios["limit"], task.most), ", ".join(others) or "-", batch,
            verdict.memory(name, megabytes, task.memory), f"{together:.0f}" if together else "-"]


def comment_row(shop, verdict):
    """Task i: 200 files are changed in place, copies each time."""
    originals, count = sorted(CORPUS.glob("*.jpg")), 5 * COUNT
    place = shop.folder / "comments"

    def files():
        shutil.rmtree(place, ignore_errors=True)
        place.mkdir()
        for i in range(count):
            shutil.copy(originals[i % len(originals)], place / f"p{i:03}.jpg")
        return sorted(map(str, place.iterdir()))

    rounds = []
    for _ in range(RUNS):
        files()
        limit = cost([str(LIMIT), "ik", str(place), "x", "-t", "1"])
        rounds.append((limit, cost([str(PROGRAMS / "quorlin-script"), str(ROOT / "bench/comment.js"), *files()])))
    shutil.rmtree(place)
    milliseconds = 1000 * statistics.median(ours[0] for _, ours in rounds) / count
    return ["i", f"{milliseconds:.2f}", verdict.judge("i", [ours[0] / limit[0] for limit, ours in rounds], 1.2), "-", "-",
            verdict.memory("i", max(ours[1] for _, ours in rounds), 40), "-"]


def settled_cpu(command, home):
    """CPU seconds of a program with a window, and its megabytes, once it has been idle for half a second after its start."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               env=dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=str(home), XDG_RUNTIME_DIR=str(home)))
    ticks, since = -1, time.monotonic()
    while time.monotonic() - since < 0.5 or ticks < 5:
        now = sum(map(int, Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()[11:13]))
        if now != ticks:
            ticks, since = now, time.monotonic()
        time.sleep(0.05)
    high = [int(line.split()[1]) for line in Path(f"/proc/{process.pid}/status").read_text().splitlines()
            if line.startswith("VmHWM")]
    process.kill()
    process.wait()
    return ticks / os.sysconf("SC_CLK_TCK"), high[0] / 1024


def start_rows(shop, verdict):
    empty, recipe = shop.folder / "empty.js", shop.folder / "start.quorlin"
    empty.write_text("")
    recipe.write_text(json.dumps(dict(TASKS["a"].recipe, quorlin=1)))

    def worker():
        said = subprocess.run([PROGRAMS / "bench-worker-start", PROGRAMS / "quorlin-worker", recipe], check=True,
                              capture_output=True, text=True).stdout.split()
        return float(said[0]) / 1000, float(said[1])

    starts = {"script runner": (lambda: cost([str(PROGRAMS / "quorlin-script"), str(empty)])[:2], 60, 45),
              "worker": (worker, 20, 25),
              "window, until it is idle": (lambda: settled_cpu([str(PROGRAMS / "quorlin")], shop.folder), 350, 90)}
    for name, (measure, most, most_memory) in starts.items():
        runs = [measure() for _ in range(3 * RUNS)]
        middle = 1000 * statistics.median(cpu for cpu, _ in runs)
        missed = HAS_BOUNDS and middle > most
        if missed:
            verdict.faults.append(f"start of the {name}: {middle:.0f} ms, the bound is {most}")
        yield [f"start: {name}", f"{middle:.0f}", f"({most} ms)" + (" NOT MET" if missed else ""), "-", "-",
               verdict.memory(f"start of the {name}", max(megabytes for _, megabytes in runs), most_memory), "-"]


def main():
    wanted = sys.argv[1:] or [*TASKS, "i", "start"]
    verdict = Verdict()
    print("| task | CPU ms | to the limit (at most) | to jpegtran (at most) | batch to script | MB (at most) | batch, all MB |")
    print("|---|--:|--:|--:|--:|--:|--:|")
    with tempfile.TemporaryDirectory(dir=os.environ.get("TMPDIR", "/var/tmp")) as folder:
        shop = Workshop(Path(folder))
        for name in wanted:
            if name == "start":
                rows = start_rows(shop, verdict)
            else:
                rows = [comment_row(shop, verdict) if name == "i" else row_of(shop, name, TASKS[name], verdict)]
            for row in rows:
                print("| " + " | ".join(row) + " |", flush=True)
    print("\n" + ("\n".join(f"NOT MET {fault}" for fault in verdict.faults) or "All bounds are met." if HAS_BOUNDS else ""))
    return 1 if verdict.faults else 0


if __name__ == "__main__":
    sys.exit(main())
