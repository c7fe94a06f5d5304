#!/usr/bin/env python3
"""table.py [TASK...]: how near Quorlin is to programs that do nothing else, task by task, and whether that is near enough.

CPU time for a picture is the user and system time of the process and of the children that it waited for, its start included, divided
by the number of pictures. It is taken on two roads, the services of quorlin-script and quorlin-batch with one worker, in rounds with
the program that it is compared with, which has one thread too; ratios are taken round by round. Memory is that of the largest process,
and for quorlin-batch, without a bound, also what all of its processes have together. What each program makes is counted, and of ours
the sizes are looked at.

A bound is missed where the median of the ratios is above it by more than half of their interquartile range, or by more than 5 %. Where
the interquartile range is above 10 % of the median the task is measured once more, and then is too noisy to be passed.

  PROGRAMS  folder of quorlin-script, quorlin-batch, quorlin-worker, quorlin
  PEERS     folder of the program "limit"; without it there are no ratios to it
  CORPUS    folder of photographs of 12 megapixels
  RUNS=7    rounds        COUNT=40  photographs of a round (16 for h and png)
  BOUNDS=no  measures only: nothing is held against a bound, and what takes long is made smaller

Besides the tasks over photographs there are i, jp2, recipe, names, walk, start and batch; see table_rows.py.
"""
import math
import os
import shutil
import statistics
import sys
import tempfile
from pathlib import Path

from table_parts import COUNT, FEW, HAS_BOUNDS, LIMIT, RUNS, Verdict, Workshop, spread
from table_parts import script as script_of
from table_rows import ROWS


def jpeg(quality, *operations):
    return {"operations": list(operations), "outputs": [{"type": "jpeg", "quality": quality}]}


def each(command):
    return ["sh", "-c", f'in=$1; out=$2; for f in "$in"/*; do {command}; done', "sh", "{in}", "{out}"]


class Task:
    """One row: what the limit program and the script are called with, the recipe of the other road, and the bounds."""

    def __init__(self, limit, script, recipe, most, memory, **more):
        self.limit = [str(LIMIT), *limit.format(i="{in}", o="{out}").split(), "-t", "1"]
        self.script = [*script_of(script[0]), *script[1:], "{out}", "{files}"]
        self.recipe, self.most, self.memory = recipe, most, memory
        self.count = more.get("count", COUNT)
        self.made = (more.get("kind", "jpg"), more.get("size", lambda width, height: (width, height)))  # of a picture's own
        self.others = more.get("others", {})  # {name: (command, at most)}


def within(width, height):
    """The size that fits into that box."""
    def size(had_width, had_height):
        scale = min(width / had_width, height / had_height)
        return math.floor(had_width * scale + 0.5), math.floor(had_height * scale + 0.5)
    return size


TASKS = {
    "a": Task("a {i} {o} -T fast", ("resize.js", "a"), jpeg(80, {"do": "resize", "longest": 1000}), 1.3, 50,
              size=within(1000, 1000)),
    "b": Task("b {i} {o} -T fast", ("resize.js", "b"), jpeg(80, {"do": "resize", "percent": 50}), 1.3, 60,
              size=lambda width, height: (width // 2, height // 2)),
    "c": Task("c {i} {o} -T fast", ("resize.js", "c"),
              jpeg(80, {"do": "resize", "box": [1000, 1000], "fit": "fill"}), 1.4, 60, size=lambda *_: (1000, 1000)),
    "d90": Task("r90 {i} {o}", ("turn.js", "d90"),
                {"operations": [{"do": "turn", "degrees": -90}], "outputs": [{}]}, 0.95, 120,
                size=lambda width, height: (height, width),
                others={"jpegtran": (each('jpegtran -rotate 270 -trim -copy all -outfile "$out/${f##*/}" "$f"'), 0.85)}),
    "e": Task("e {i} {o}", ("turn.js", "e"),
              {"operations": [{"do": "flip", "direction": "horizontal"}], "outputs": [{}]}, 1.0, 120,
              others={"jpegtran": (each('jpegtran -flip horizontal -copy all -outfile "$out/${f##*/}" "$f"'), 0.85)}),
    "d7": Task("full {i} {o} -q 92", ("turn.js", "d7"),
               {"operations": [{"do": "turn", "degrees": -7.5, "color": "#000000"}], "outputs": [{}]}, 2.7, 140, size=None),
    "f": Task("crop {i} {o}", ("mask.js", "f"), jpeg(90, {"do": "crop", "width": 3000, "height": 2250}), 1.15, 80,
              size=lambda width, height: (min(width, 3000), min(height, 2250)),
              others={"jpegtran": (each('jpegtran -crop 3000x2250+496+368 -copy all -outfile "$out/${f##*/}" "$f"'), 1.05)}),
    "h": Task("round {i} {o} -q 1", ("mask.js", "h"),
              {"operations": [{"do": "round", "radius": 200}], "outputs": [{"type": "png"}]}, 1.2, 120, count=FEW, kind="png"),
    "png": Task("png {i} {o} -q 1", ("convert.js", "png"), {"outputs": [{"type": "png"}]}, 1.05, 80, count=FEW, kind="png"),
    "j": Task("j {i} {o} -T fast", ("preview.js", "j"), None, 1.2, 50, kind="tiff", size=lambda *_: (1200, 800)),
}


def measured(shop, name, task):
    commands = {"limit": task.limit} if LIMIT.exists() else {}
    commands["script"] = task.script
    if task.recipe:
        commands["batch"] = shop.batch(name, task.recipe)
    commands.update({other: command for other, (command, _) in task.others.items() if shutil.which(other)})
    ours = ("script", "batch")
    rounds = [{way: shop.run(command, task.count, only=task.made if way in ours else None) for way, command in commands.items()}
              for _ in range(RUNS)]
    together = shop.run(commands["batch"], task.count, True)[2] if task.recipe else None
    return rounds, together


def row_of(shop, name, task, verdict):
    for attempt in (1, 2):
        rounds, together = measured(shop, name, task)
        ratios = {way: [one["script"][0] / one[way][0] for one in rounds] for way in rounds[0] if way != "script"}
        middle, range_ = spread(ratios.get("limit", [0]))
        if range_ <= 0.1 * middle or not HAS_BOUNDS or attempt == 2:
            break
    others = [verdict.judge(f"{name} to {other}", ratios[other], most)
              for other, (_, most) in task.others.items() if other in ratios]
    milliseconds = 1000 * statistics.median(one["script"][0] for one in rounds) / task.count
    batch = "-"
    if task.recipe:
        batch = verdict.judge(f"{name}, quorlin-batch to the services", [one["batch"][0] / one["script"][0] for one in rounds], 1.1)
    megabytes = max(one["script"][1] for one in rounds)
    return [name, f"{milliseconds:.1f}", verdict.judge(name, ratios.get("limit", []), task.most), ", ".join(others) or "-", batch,
            verdict.memory(name, megabytes, task.memory), f"{together:.0f}" if together else "-"]


def main():
    wanted = sys.argv[1:] or [*TASKS, *ROWS]
    verdict = Verdict()
    print("| task | CPU ms | to the limit (at most) | to jpegtran (at most) | batch to script (at most) | MB (at most) | batch, all MB |")
    print("|---|--:|--:|--:|--:|--:|--:|")
    with tempfile.TemporaryDirectory(dir=os.environ.get("TMPDIR", "/var/tmp")) as folder:
        shop = Workshop(Path(folder))
        for name in wanted:
            rows = ROWS[name](shop, verdict) if name in ROWS else [row_of(shop, name, TASKS[name], verdict)]
            for row in rows:
                print("| " + " | ".join(row) + " |", flush=True)
    print("\n" + ("\n".join(f"NOT MET {fault}" for fault in verdict.faults) or "All bounds are met." if HAS_BOUNDS else ""))
    return 1 if verdict.faults else 0


if __name__ == "__main__":
    sys.exit(main())
