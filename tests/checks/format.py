#!/usr/bin/env python3
"""format.py ROOT: every C++ file as clang-format 14 writes it. Ends with status 77 if that is not installed."""
import re
import shutil
import subprocess
import sys
from pathlib import Path

import source_tree as tree

SKIPPED = 77


def formatter():
    """Version 14 only: another version formats otherwise."""
    for name in ("clang-format-14", "clang-format"):
        if shutil.which(name):
            version = subprocess.run([name, "--version"], capture_output=True, text=True).stdout
            if re.search(r"version 14\.", version):
                return name
    return None


def main():
    root = Path(sys.argv[1]).resolve()
    command = formatter()
    if not command:
        print("clang-format 14 is not installed")
        return SKIPPED
    paths = [str(path) for path in tree.files(root, tree.CPP)]
    if not paths:
        return tree.report([f"no source file found below {root}"], "")
    result = subprocess.run([command, "--dry-run", "--Werror", "--ferror-limit=1", *paths], capture_output=True, text=True,
                            cwd=root)
    problems = re.findall(r"^(\S+?:\d+):\d+: error: ", result.stderr, re.M)
    if result.returncode != 0 and not problems:
        problems = [result.stderr.strip()]
    return tree.report([f"{p}: {command} -i would change this" for p in problems], f"{len(paths)} files are formatted")


if __name__ == "__main__":
    sys.exit(main())
