#!/usr/bin/env python3
"""script_check.py SCRIPT ROOT: runs a check of the scripts, lint.js or types.js, with the packages that Debian has for node.

Ends with 77 where node is not installed, and as the check does otherwise.
"""
import os
import shutil
import subprocess
import sys
from pathlib import Path

# A node that is not Debian's does not look there by itself.
PACKAGES = "/usr/share/nodejs"


def main():
    node = shutil.which("node")
    if node is None:
        print("skipped: node is not installed (package nodejs)")
        return 77
    paths = [path for path in (os.environ.get("NODE_PATH"), PACKAGES) if path]
    environment = dict(os.environ, NODE_PATH=os.pathsep.join(paths))
    return subprocess.run([node, Path(__file__).parent / sys.argv[1], sys.argv[2]], env=environment).returncode


if __name__ == "__main__":
    sys.exit(main())
