#!/usr/bin/env python3
"""test_terminal.py WINDOW RUNNER: what services log stays out of the terminal that a window was started from; the runner keeps it."""
import os
import pty
import select
import signal
import subprocess
import sys
import tempfile
import time

# What the preview views log when they are made.
LOGGED = "awakeFromNib"
SCRIPT = """
import { myMainPhotoView } from "quorlin";
const view = new myMainPhotoView();
view.awakeFromNib();
quit(0);
"""


def environment(home):
    named = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "DISPLAY", "WAYLAND"))}
    return {**named, "HOME": home, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": home}


def shownBy(window, home):
    """All that a window prints to its terminal, from the start to a second after it was ended."""
    ours, theirs = pty.openpty()
    with subprocess.Popen([window], stdin=theirs, stdout=theirs, stderr=theirs, env=environment(home)) as process:
        os.close(theirs)
        shown = b""
        end = time.monotonic() + 15
        while time.monotonic() < end and process.poll() is None:
            if select.select([ours], [], [], 0.2)[0]:
                shown += os.read(ours, 4096)
        assert process.poll() is None, (process.returncode, shown)
        process.send_signal(signal.SIGTERM)
        process.wait()
    return shown.decode(errors="replace")


def main():
    window, runner = sys.argv[1:]
    with tempfile.TemporaryDirectory() as home:
        script = os.path.join(home, "views.js")
        with open(script, "w", encoding="utf-8") as file:
            file.write(SCRIPT)
        done = subprocess.run([runner, script], capture_output=True, text=True, env=environment(home), timeout=60, check=True)
        assert LOGGED in done.stderr, done.stderr
        shown = shownBy(window, home)
        assert LOGGED not in shown, shown


main()
