#!/usr/bin/env python3
"""test_preset_recipes.py QUORLIN_BATCH QUORLIN_SCRIPT SCRIPT PICTURE: presets are the same recipes on the command line as in the
window: each supplied one is compared with the row that the window writes for it."""
import json
import os
import sqlite3
import subprocess
import sys
import tempfile
from pathlib import Path

BATCH, SCRIPT_RUNNER, SCRIPT, PICTURE = sys.argv[1:]
WITHOUT_PICTURES = ("Rename", "Sort into Folders", "Sorting", "Contact Sheet", "Web Page")


def run(command, home, check=True):
    environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
    if home:
        environment.update(HOME=str(home), XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "config"))
    done = subprocess.run(list(map(str, command)), capture_output=True, env=environment, cwd="/", timeout=60, check=False)
    assert done.returncode == 0 or not check, done
    return done


def database(home, rows):
    folder = home / "data" / "BrelmarkCom"
    folder.mkdir(parents=True)
    names = ["NameOfPreset", "Process", "Action"] + [f"StrField{i}" for i in range(3, 62)]
    with sqlite3.connect(folder / "QuorlinPS.sql") as base:
        base.execute("CREATE TABLE Presets (ID INTEGER PRIMARY KEY AUTOINCREMENT, %s)" % ", ".join(f"{name} TEXT" for name in names))
        for row in rows:
            base.execute("INSERT INTO Presets (%s) VALUES (%s)" % (", ".join(names), ", ".join("?" * 62)), row)


def recipe_of(name, home):
    done = run([BATCH, "--preset", name, "--dry-run", "--report", "-", PICTURE], home, False)
    if done.returncode == 2:
        return done.stderr.decode()
    return json.loads(done.stdout.splitlines()[0])["recipe"]


def main():
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        rows = json.loads(run([SCRIPT_RUNNER, SCRIPT], base).stdout)
        listed = run([BATCH, "--list-presets"], None).stdout.decode().splitlines()
        seen = [f"{row[1]}/{row[0]}" for row in rows if row[1] not in WITHOUT_PICTURES]
        missing = [name for name in seen if name not in listed]
        assert not missing and len(listed) > 20, missing
        database(base, rows)
        for name in listed:
            assert recipe_of(name, base) == recipe_of(name, None), name
        # A row of the user counts in place of a supplied one, and a damaged one not at all.
        changed = next(row for row in rows if row[0] == "Web 1600")
        other = base / "other"
        database(other, [changed[:13] + ["77"] + changed[14:], ["Broken"] + changed[1:13] + ["x"] + changed[14:]])
        assert recipe_of("Resize/Web 1600", other) != recipe_of("Resize/Web 1600", None)
        assert "no preset" in recipe_of("Resize/Broken", other)
        renaming = next(row for row in rows if row[1] == "Rename")
        assert "makes no pictures" in recipe_of(f"Rename/{renaming[0]}", base)
        assert sorted(path.name for path in (base / "data").iterdir()) == ["BrelmarkCom"]


main()
