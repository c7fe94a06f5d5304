#!/usr/bin/env python3
"""test_preset_results.py QUORLIN_BATCH QUORLIN_SCRIPT SCRIPT PICTURES: a preset makes the same files on the command line as in the
window, byte for byte."""
import json
import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
from pathlib import Path

BEFORE = 1_000_000_000
BATCH, SCRIPT_RUNNER, SCRIPT, PICTURES = sys.argv[1:]
NAMES = ("formats/photo.jpg", "formats/rgba8.png", "dpi/exif300-jfif72.jpg", "orientation/landscape_6.jpg")


def run(*command, home):
    environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "HOME": str(home), "XDG_DATA_HOME": str(home / "data"),
                   "XDG_CONFIG_HOME": str(home / "config")}
    done = subprocess.run(list(map(str, command)), capture_output=True, env=environment, cwd="/", timeout=100, check=False)
    assert done.returncode == 0, done
    return done.stdout


def keep(rows, home):
    folder = home / "data" / "BrelmarkCom"
    folder.mkdir(parents=True)
    names = ["NameOfPreset", "Process", "Action"] + [f"StrField{i}" for i in range(3, 62)]
    with sqlite3.connect(folder / "QuorlinPS.sql") as base:
        base.execute("CREATE TABLE Presets (ID INTEGER PRIMARY KEY AUTOINCREMENT, %s)" % ", ".join(f"{name} TEXT" for name in names))
        for row in rows:
            base.execute("INSERT INTO Presets (%s) VALUES (%s)" % (", ".join(names), ", ".join("?" * 62)), row)


def copies(folder):
    for name in NAMES:
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(Path(PICTURES) / name, folder / name)
        os.utime(folder / name, (BEFORE, BEFORE))
    return [folder / name for name in NAMES]


def contents(*folders):
    """By their paths, the bytes of all files and whether they are as old as the pictures."""
    return {str(path.relative_to(folder)) + str(i): (path.read_bytes(), path.stat().st_mtime == BEFORE)
            for i, folder in enumerate(folders) for path in folder.rglob("*") if path.is_file()}


def main():
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        window, command = base / "window", base / "command"
        rows = json.loads(run(SCRIPT_RUNNER, SCRIPT, window, *copies(window), home=base / "a"))
        keep([[text.replace(str(window), str(command)) for text in row] for row in rows], base / "b")
        pictures = copies(command)
        for row in rows:
            # A tree is that of a folder that is named; it comes before there are results in it.
            inputs = [command] if row[0] == "Tree" else pictures
            run(BATCH, "--quiet", "--preset", f"{row[1]}/{row[0]}", *inputs, home=base / "b")
        trees = [contents(folder, folder.with_name(folder.name + "-tree")) for folder in (window, command)]
        one, other = trees
        assert sorted(one) == sorted(other), (sorted(one), sorted(other))
        differing = [name for name in one if one[name] != other[name]]
        assert not differing, differing
        assert len(one) == len(NAMES) * (len(rows) + 1), sorted(one)
        assert "dpi/exif300-jfif72.jpg1" in one and one["formats/Matte/photo.jpg0"][1] and not one["formats/Pad/photo.jpg0"][1], sorted(one)


main()
