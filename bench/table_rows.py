"""The rows of table.py that are not a script and a recipe over photographs."""
import math
import os
import re
import shutil
import statistics
import struct
import subprocess
import sys
from importlib.machinery import SourceFileLoader

from measure import cost, measure, thumbnails
from table_parts import CORPUS, COUNT, HAS_BOUNDS, LIMIT, PROGRAMS, ROOT, RUNS, script, spread

# The program that does nothing else, made for 1600 pixels; see bench/run.
LIMIT_1600 = LIMIT.with_name("limit-1600")


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
        limit = cost([str(LIMIT), "ik", str(place), "x", "-t", "1"]) if LIMIT.exists() else None
        rounds.append((limit, cost([*script("comment.js"), *files()])))
    shutil.rmtree(place)
    milliseconds = 1000 * statistics.median(ours[0] for _, ours in rounds) / count
    ratios = [ours[0] / limit[0] for limit, ours in rounds if limit]
    yield ["i", f"{milliseconds:.2f}", verdict.judge("i", ratios, 1.2), "-", "-",
           verdict.memory("i", max(ours[1] for _, ours in rounds), 40), "-"]


def start_rows(shop, verdict):
    """What it costs until a program can do something: medians of 21, as long as there are seven rounds."""
    empty, recipe = shop.folder / "empty.js", shop.folder / "start.quorlin"
    empty.write_text("")
    recipe.write_text('{"quorlin": 1, "operations": [{"do": "resize", "longest": 1000}], "outputs": [{"type": "jpeg"}]}')

    def told(*command):
        environment = dict(os.environ, HOME=str(shop.folder), XDG_RUNTIME_DIR=str(shop.folder))
        said = subprocess.run(command, check=True, capture_output=True, text=True, env=environment).stdout.split()
        return float(said[0]) / 1000, float(said[1])

    starts = {"script runner": (lambda: cost([str(PROGRAMS / "quorlin-script"), str(empty)])[:2], 60, 45),
              "worker": (lambda: told(PROGRAMS / "bench-worker-start", PROGRAMS / "quorlin-worker", recipe), 20, 25),
              "window, to its first frame": (lambda: told(PROGRAMS / "bench-window-start"), 350, 90)}
    for name, (measured, most, most_memory) in starts.items():
        runs = [measured() for _ in range(3 * RUNS)]
        yield [f"start: {name}", "-", verdict.at_most(f"start of the {name}", 1000 * statistics.median(cpu for cpu, _ in runs), most, "ms"),
               "-", "-", verdict.memory(f"start of the {name}", max(megabytes for _, megabytes in runs), most_memory), "-"]


def recipe_row(shop, verdict):
    """A recipe with two files of each picture beside the best of the other ways to them."""
    recipes = SourceFileLoader("recipes", str(ROOT / "bench/recipes")).load_module()
    recipe, out = shop.folder / "two.quorlin", shop.folder / "two"
    pictures = sorted(map(str, shop.pictures(min(COUNT, 10)).iterdir()))
    ways = recipes.ways(recipe, out, pictures)
    rounds = [{name: recipes.costs_of(name, command, out, len(pictures)) for name, command in ways.items()} for _ in range(RUNS)]
    ratios = [one["Quorlin"][0] / min(cpu for name, (cpu, _) in one.items() if name != "Quorlin") for one in rounds if len(one) > 1]
    milliseconds = 1000 * statistics.median(one["Quorlin"][0] for one in rounds) / len(pictures)
    yield ["recipe, to the best other", f"{milliseconds:.1f}", verdict.judge("recipe", ratios, 0.7), "-", "-",
           verdict.memory("recipe", max(one["Quorlin"][1] for one in rounds), 200), "-"]


def vips(*words):
    return subprocess.run(["vips", *map(str, words)], check=True, capture_output=True, text=True).stdout


def decibels(picture, file, work):
    vips("subtract", picture, file, work / "apart.v")
    vips("multiply", work / "apart.v", work / "apart.v", work / "squares.v")
    return 10 * math.log10(255 * 255 / max(float(vips("avg", work / "squares.v")), 1e-9))


def coded_bytes(file):
    """The bytes of the pixels of a JPEG 2000: those of its code stream, without boxes of metadata, which libvips does not write."""
    with file.open("rb") as stream:
        while head := stream.read(8):
            length, kind = struct.unpack(">I4s", head)
            begin = stream.tell() - 8
            if kind == b"jp2c":
                return length or file.stat().st_size - begin
            stream.seek(begin + (length if length != 1 else struct.unpack(">Q", stream.read(8))[0]))
    sys.exit(f"bench: {file.name} holds no code stream")


def quality_of_bytes(picture, wanted, work):
    """The quality at which libvips makes a JPEG 2000 with a code stream of at least so many bytes, the least such."""
    low, high = 1, 100
    while low < high:
        middle = (low + high) // 2
        vips("jp2ksave", picture, work / "try.jp2", "--Q", middle)
        low, high = (low, middle) if coded_bytes(work / "try.jp2") >= wanted else (middle + 1, high)
    return low


def decibels_at(picture, wanted, quality, work):
    """How near libvips comes at so many bytes, on the line between that quality and the next lower one, whose file is smaller."""
    points = []
    for each in (max(1, quality - 1), quality):
        file = work / f"theirs{each}.jp2"
        vips("jp2ksave", picture, file, "--Q", each)
        points.append((math.log(coded_bytes(file)), decibels(picture, file, work)))
    (low, low_decibels), (high, high_decibels) = points
    share = min(1, (math.log(wanted) - low) / (high - low)) if high > low else 1
    return low_decibels + share * (high_decibels - low_decibels)


def jp2_row(shop, verdict):
    """JPEG 2000 beside libvips at the same number of bytes, and how far both are from the picture."""
    count = min(COUNT, 4)
    picture = min(shop.pictures(count).iterdir())
    ours = [*script("convert.js"), "jp2", "{out}", "{files}"]
    shop.run(ours, count, only=("jp2", None))
    file = shop.folder / "ours.jp2"
    shutil.copy(shop.folder / "out" / f"{picture.stem}.jp2", file)
    if not shutil.which("vips"):
        return
    coded = coded_bytes(file)
    quality = quality_of_bytes(picture, coded, shop.folder)
    near = decibels(picture, file, shop.folder)
    theirs = decibels_at(picture, coded, quality, shop.folder)
    if HAS_BOUNDS and near < theirs:
        verdict.faults.append(f"jp2: {near:.2f} dB at {coded} bytes, libvips has {theirs:.2f} dB")
    other = ["sh", "-c", f'in=$1; out=$2; for f in "$in"/*; do vips jp2ksave "$f" "$out/${{f##*/}}.jp2" --Q {quality}; done', "sh", "{in}",
             "{out}"]
    rounds = [(shop.run(ours, count), shop.run(other, count)) for _ in range(RUNS)]
    milliseconds = 1000 * statistics.median(mine[0] for mine, _ in rounds) / count
    yield [f"jp2, to vips Q={quality}; {near:.1f} and {theirs:.1f} dB", f"{milliseconds:.0f}",
           verdict.judge("jp2", [mine[0] / other_[0] for mine, other_ in rounds], 1.0), "-", "-",
           verdict.memory("jp2", max(mine[1] for mine, _ in rounds), 140), "-"]


def names_row(_shop, verdict):
    """10,000 names after a key, in the window: what the test of the action prints."""
    test = ROOT / "build/tests/tst_rename_action"
    if not test.exists():
        return
    found = []
    for _ in range(min(RUNS, 5)):
        done = subprocess.run([test, "tenThousandNamesFollowEveryKeystroke"], capture_output=True, text=True,
                              check=False)
        said = re.search(r"(\d+) ms of processor time", done.stdout + done.stderr)
        if done.returncode != 0 or not said:
            sys.exit(f"bench: the names were not planned: {done.stdout[-300:]}")
        found.append(int(said.group(1)))
    yield ["10,000 names after a key", "-", verdict.at_most("names", statistics.median(found), 250, "ms"), "-", "-", "-", "-"]


def walk_row(shop, verdict):
    """100,000 files in 1,100 folders beside find, CPU time; a tenth of them where few photographs are asked for."""
    walk = SourceFileLoader("walk", str(ROOT / "bench/walk")).load_module()
    top = shop.folder / "tree"
    walk.make_tree(top, 100 if HAS_BOUNDS else 2)
    rounds = []
    for _ in range(RUNS):
        ours = walk.timed([str(PROGRAMS / "bench-walk"), str(top)])
        find = walk.timed(["find", str(top), "-type", "f", "-name", "*.jpg"])
        if ours[2] != find[2]:
            sys.exit(f"bench: {ours[2]} files were found, find has {find[2]}")
        rounds.append((ours[0] / find[0], ours[1] / find[1]))
    shutil.rmtree(top)
    yield ["walk, to find, wall", "-", verdict.judge("walk, wall time", [wall for wall, _ in rounds], 0.6), "-", "-", "-", "-"]
    yield ["walk, to find", "-", verdict.judge("walk", [cpu for _, cpu in rounds], 0.6), "-", "-", "-", "-"]


def batch_rows(shop, verdict):
    """100 photographs to 1600 pixels with all processors, wall time."""
    count = 100 if HAS_BOUNDS else min(COUNT, 4)
    pictures, out = sorted(shop.pictures(count).iterdir()), shop.folder / "out"
    recipe = shop.folder / "all.quorlin"
    recipe.write_text('{"quorlin": 1, "operations": [{"do": "resize", "longest": 1600}], "outputs": [{"type": "jpeg", "quality": 80}]}')
    ways = {"Quorlin": [[PROGRAMS / "quorlin-batch", recipe, *pictures, "--to", out, "--quiet"]]}
    if LIMIT_1600.exists():
        ways["limit"] = [[LIMIT_1600, "a", pictures[0].parent, out, "-t", os.cpu_count(), "-T", "fast"]]
    if shutil.which("vipsthumbnail"):
        ways["one vipsthumbnail"] = [thumbnails(pictures, out)]
        parts = [pictures[i::os.cpu_count()] for i in range(os.cpu_count())]
        ways["a vipsthumbnail for each processor"] = [thumbnails(part, out) for part in parts if part]
    rounds = []
    for _ in range(RUNS):
        walls = {}
        for name, commands in ways.items():
            shutil.rmtree(out, ignore_errors=True)
            out.mkdir()
            walls[name] = measure(commands)[0]
            if len([each for each in out.iterdir() if not each.name.startswith(".")]) != count:
                sys.exit(f"bench: {name} did not make a file of each picture")
        rounds.append(walls)
    peers = [name for name in ways if "vips" in name]
    seconds = spread([one["Quorlin"] for one in rounds])[0]
    to_peer = verdict.judge("batch to vipsthumbnail", [one["Quorlin"] / min(one[peer] for peer in peers) for one in rounds if peers], 0.55)
    to_limit = verdict.judge("batch to the limit", [one["Quorlin"] / one["limit"] for one in rounds if "limit" in ways], 1.35)
    yield [f"batch of {count}, wall, to the best other", f"{1000 * seconds / count:.1f}", to_peer, "-", "-", "-", "-"]
    yield [f"batch of {count}, wall, to the limit", f"{1000 * seconds / count:.1f}", to_limit, "-", "-", "-", "-"]


ROWS = {"i": comment_row, "jp2": jp2_row, "recipe": recipe_row, "names": names_row, "walk": walk_row, "start": start_rows, "batch": batch_rows}
