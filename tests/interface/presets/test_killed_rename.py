#!/usr/bin/env python3
"""test_killed_rename.py SCRIPT_RUNNER SCRIPT: a preset whose rename is killed is there once, with all its settings."""
import json
import os
import random
import sqlite3
import subprocess
import sys
import tempfile
import time
from pathlib import Path

TRIES = 25
ENOUGH = 1 # kills between the two rows


def rows(home):
    database = home / "data" / "BrelmarkCom" / "QuorlinPS.sql"
    with sqlite3.connect(database) as connection:
        return connection.execute("SELECT NameOfPreset FROM Presets WHERE Process = 'Resize'").fetchall()


def main():
    runner, script = sys.argv[1:3]
    chance = random.Random(5)
    cut = 0
    with tempfile.TemporaryDirectory() as folder:
        home = Path(folder)
        environment = dict(os.environ, HOME=str(home), XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "config"),
                           QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
        command = [runner, script]

        def told(work):
            done = subprocess.run([*command, work], capture_output=True, text=True, env=environment, timeout=60, check=True)
            return json.loads(done.stdout)

        assert told("make") == [["Name 0", 77]]
        for _ in range(TRIES):
            begun = home / "begun"
            begun.unlink(missing_ok=True)
            work = subprocess.Popen([*command, "rename", str(begun)], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            while not begun.exists() and work.poll() is None:
                time.sleep(0.002)
            time.sleep(chance.random() * 0.05)
            assert work.poll() is None, "the renaming ended by itself"
            work.kill()
            work.wait()
            cut += len(rows(home)) == 2
            left = told("list")
            assert len(left) == 1 and left[0][1] == 77, left
            assert len(rows(home)) == 1, rows(home)
    print(f"{cut} of {TRIES} renames were cut between their two rows")
    assert cut >= ENOUGH, "no kill came between the two rows"
    return 0


if __name__ == "__main__":
    sys.exit(main())
