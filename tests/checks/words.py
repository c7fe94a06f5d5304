#!/usr/bin/env python3
"""words.py ROOT: words and paths that have no place in the product's files.

Quorlin speaks as its own developer: nothing cites the papers that it was planned with, and nothing points into the
machine it was written on. The patterns are put together from halves, so that this file passes its own check.
"""
import re
import subprocess
import sys
from pathlib import Path

import source_tree as tree

TEXT = {".h", ".cpp", ".js", ".ui", ".py", ".sh", ".txt", ".md", ".cmake", ".json", ".ts", ".xml", ".desktop", ".in",
        ".tsv", ".csv", ".supp", ".svg", ".qrc", ".strings", ""}
PAPERS = "|".join((r"sp" + r"ecs?", r"specific" + r"ations?"))
PATTERNS = [
    ("speaks of the papers", re.compile(rf"\b({PAPERS})\b|\bPar" + r"ts? [1-7]\.[0-9]\b", re.I)),
    ("names a place of one machine", re.compile(r"/wo" + r"rk/|/ho" + r"me/[a-z]+/|/ro" + r"ot/|/tmp/bash" + r"_jobs")),
    ("names a tool of one machine", re.compile(r"\bfa" + r"rm[-/][a-z]", re.I)),
    ("names a package mirror", re.compile(r"https?://[^\s\"'>)]*(snap" + r"shot\.debian|nexus|arti" + r"factory)", re.I)),
]
# Comments, too, are in the words of people who speak English.
CODE = {".h", ".cpp", ".js", ".ts"}
TURNS = [("reads as translated", re.compile(r"\b(an" + r"ew|dee" + r"ds?|(go|goes|going) alo" + r"ng|the affair of)\b", re.I))]


def faults(text, patterns=None):
    for number, line in enumerate(text.split("\n"), 1):
        for what, pattern in patterns or PATTERNS:
            match = pattern.search(line)
            if match:
                yield number, f'{what}: "{match.group()}"'


def check_files(root):
    problems, seen = [], 0
    for path in tree.files(root):
        if path.suffix not in TEXT:
            continue
        where = path.relative_to(root)
        problems += [f"{where}: its name {fault}" for _, fault in faults(str(where))]
        if path.name == "LICENSE":
            continue
        seen += 1
        patterns = PATTERNS + (TURNS if path.suffix in CODE and "texts" not in where.parts else [])
        problems += [f"{where}:{number}: {fault}" for number, fault in faults(tree.read(path), patterns)]
    return problems, seen


def check_messages(root):
    """What the commits say; a tree without its history has none to check."""
    log = subprocess.run(["git", "-C", str(root), "log", "--format=%h %s%n%b"], capture_output=True, text=True)
    return [f"commit message: {fault}: {log.stdout.splitlines()[number - 1]}" for number, fault in faults(log.stdout)]


def main():
    root = Path(sys.argv[1]).resolve()
    problems, seen = check_files(root)
    problems += check_messages(root)
    if seen == 0:
        problems.append(f"no file found below {root}")
    return tree.report(problems, f"{seen} files say nothing that they should not")


if __name__ == "__main__":
    sys.exit(main())
