"""What the rows of table.py are made of: commands and what they cost, pictures that they work on, and verdicts."""
import json
import os
import shutil
import statistics
import sys
from pathlib import Path

from measure import copies, cost
from picture_size import size_of

ROOT = Path(__file__).resolve().parent.parent
PROGRAMS = Path(os.environ.get("PROGRAMS", ROOT / "build/bin"))
LIMIT = Path(os.environ.get("PEERS", ROOT / "build/bench/build")) / "limit"
CORPUS = Path(os.environ.get("CORPUS", ROOT / "build/bench/corpus/jpeg12"))
RUNS = int(os.environ.get("RUNS", "7"))
COUNT = int(os.environ.get("COUNT", "40"))
HAS_BOUNDS = os.environ.get("BOUNDS") != "no"
FEW = min(COUNT, 16)
os.environ["QT_QPA_PLATFORM"] = "offscreen"


def script(name):
    return [str(PROGRAMS / "quorlin-script"), str(ROOT / "bench" / name)]


class Workshop:
    """A folder with photographs, copies of each other if there are too few."""

    def __init__(self, folder):
        self.folder = folder

    def pictures(self, count):
        place = self.folder / f"in{count}"
        if not place.exists():
            place.mkdir()
            copies(CORPUS, place, count)
        return place

    def run(self, command, count, watches=False, only=None):
        """Costs of a command, which must make a file of each picture; @p only names their kind and size."""
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
        if only:
            self.check(pictures, out, *only)
        return found

    def check(self, pictures, out, kind, size):
        """Each file has the ending and the size that it should have, which services cut off and recipes round; without a size any will do."""
        for picture in sorted(pictures.iterdir()):
            file = out / f"{picture.stem}.{kind}"
            if not file.exists():
                sys.exit(f"bench: nothing was made of {picture.name}")
            made, wanted = size_of(file), size(*size_of(picture)) if size else size_of(file)
            if any(abs(one - other) > 1 for one, other in zip(made, wanted)):
                sys.exit(f"bench: {file.name} has {made} pixels and not {wanted}")

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
        if not ratios:
            return "-"
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

    def at_most(self, what, value, most, unit):
        text = f"{value:.0f} ({most} {unit})"
        if HAS_BOUNDS and value > most:
            self.faults.append(f"{what}: {value:.0f} {unit}, the bound is {most}")
            return text + " NOT MET"
        return text

    def memory(self, what, megabytes, most):
        text = f"{megabytes:.0f} ({most})"
        if HAS_BOUNDS and megabytes > most:
            self.faults.append(f"{what}: {megabytes:.0f} MB, the bound is {most}")
            return text + " NOT MET"
        return text
