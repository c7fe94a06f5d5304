#!/usr/bin/env python3
"""test_lines.py [ROOT] [--least RATIO FOLDER...]: lines of unit test per line of product, folder by folder.

A test belongs to the folder of the source that it is named for (tst_move_plan to move_plan.h), otherwise to that of the
first header of the product that it includes. Blank lines do not count. With --least, fails when one of the folders has
fewer than RATIO lines of test per line, or when a folder holds no source at all.
"""
import argparse
import re
import sys
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests/checks"))
import source_tree as tree  # noqa: E402

INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)


def lines(path):
    return sum(1 for line in tree.read(path).split("\n") if line.strip())


def product_lines(root):
    counted = Counter()
    for room in tree.ROOMS:
        for path in tree.files(root / room, tree.CPP):
            counted[str(path.parent.relative_to(root))] += lines(path)
    return counted


def subject(path, root):
    """The folder of what a test is about, or None."""
    included = [Path(name) for name in INCLUDE.findall(tree.read(path))
                if name.split("/")[0] in tree.ROOMS and (root / name).exists()]
    named = [name for name in included if name.stem == path.stem.removeprefix("tst_")]
    return str((named or included)[0].parent) if included else None


def test_lines(root):
    counted = Counter()
    for path in tree.files(root / "tests/unit", {".cpp"}):
        counted[subject(path, root)] += lines(path)
    return counted


def main():
    arguments = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    arguments.add_argument("root", nargs="?", type=Path, default=Path(__file__).resolve().parent.parent)
    arguments.add_argument("--least", nargs="+", metavar=("RATIO", "FOLDER"), default=["0"])
    given = arguments.parse_args()
    root, least, wanted = given.root.resolve(), float(given.least[0]), given.least[1:]
    product, tests = product_lines(root), test_lines(root)
    problems = [f"{folder} holds no source" for folder in wanted if folder not in product]
    for folder in sorted(product):
        ratio = tests[folder] / product[folder]
        if not wanted or folder in wanted:
            print(f"{folder:32} {product[folder]:6} {tests[folder]:6} {ratio:6.2f}")
        if folder in wanted and ratio < least:
            problems.append(f"{folder} has {ratio:.2f} lines of unit test per line, wanted are {least}")
    return tree.report(problems, f"{sum(product.values())} lines of product, {sum(tests.values())} of unit tests")


if __name__ == "__main__":
    sys.exit(main())
