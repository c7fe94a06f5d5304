#!/usr/bin/env python3
"""test_command_line.py PROGRAM: what the program answers without a display, and that it never aborts."""
import os
import subprocess
import sys
import tempfile

DISPLAYS = ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")


def run(program, home, arguments, **named):
    environment = {name: value for name, value in os.environ.items() if name not in DISPLAYS}
    environment.update(HOME=home, XDG_DATA_HOME=home + "/data", XDG_CONFIG_HOME=home + "/config", XDG_RUNTIME_DIR=home, **named)
    done = subprocess.run([program, *arguments], capture_output=True, text=True, env=environment, timeout=60, check=False)
    return done.returncode, done.stdout, done.stderr


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as home:
        for arguments in (["--help"], ["-h"], ["a.jpg", "--help"]):
            status, out, err = run(program, home, arguments)
            assert status == 0 and out.startswith("Usage: quorlin ") and "--version" in out and not err, (arguments, status, out, err)
        status, out, err = run(program, home, ["--version"])
        assert status == 0 and out.startswith("Quorlin ") and "\nlibvips 8." in out and not err, (status, out, err)
        for option in ("--nonsense", "-x"):
            status, out, err = run(program, home, [option])
            assert status == 2 and not out and err.count("\n") == 1 and option in err, (status, out, err)
        for named, word in (({}, "there is no display"), ({"DISPLAY": ":4711"}, "DISPLAY=:4711"),
                            ({"WAYLAND_DISPLAY": "wayland-gone"}, "WAYLAND_DISPLAY=wayland-gone"),
                            ({"QT_QPA_PLATFORM": "xcb"}, '"xcb"'), ({"QT_QPA_PLATFORM": "nonsense"}, '"nonsense"')):
            status, out, err = run(program, home, ["a.jpg"], **named)
            assert status == 1 and not out and err.count("\n") == 1 and word in err, (named, status, out, err)
            assert err.startswith("Quorlin cannot open its window: "), err
        status, out, err = run(program, home, ["-platform", "nonsense"])
        assert status == 1 and err.count("\n") == 1 and '"nonsense"' in err, (status, out, err)
        assert not os.listdir(home), os.listdir(home)


main()
