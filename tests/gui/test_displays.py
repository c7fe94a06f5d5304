#!/usr/bin/env python3
"""test_displays.py SHOW_WINDOW QUORLIN PICTURE: the window on X11, on Wayland and without a display, each at four scales.

SHOW_WINDOW is the window with a picture, which says how large it was drawn; QUORLIN is the program itself, which must stay there and
have nothing to complain of until it is ended. A display server that is not installed is said and left out; without any the test is
skipped.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SCALES = ("1", "1.25", "1.5", "2")
WINDOW = (1280, 720)
STAYS_SECONDS = 5
# What libraries say of the machine, and no fault of a window: there is no session bus, no sound and no login here.
HARMLESS = re.compile(r"dbus|D-Bus|XDG_RUNTIME_DIR|propagateSizeHints|libEGL|MESA|xkbcommon|Failed to create wl_display", re.I)


def x11(folder):
    """A server on a display of its own, and the environment in which a window is on it."""
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "2800x1700x24", "-nolisten", "tcp"],
                              pass_fds=(write,), stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as answer:
        display = answer.readline().strip()
    return server, {"DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb"}


def wayland(folder):
    server = subprocess.Popen(["weston", "--backend=headless-backend.so", "--socket=display", "--width=2800", "--height=1700",
                               "--idle-time=0", f"--log={folder}/weston.log"],
                              env=dict(os.environ, XDG_RUNTIME_DIR=str(folder)), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    until = time.monotonic() + 60
    while not (folder / "display").exists() and server.poll() is None and time.monotonic() < until:
        time.sleep(0.05)
    return server, {"WAYLAND_DISPLAY": "display", "QT_QPA_PLATFORM": "wayland"}


def has_wayland_windows():
    plugins = subprocess.run(["qmake6", "-query", "QT_INSTALL_PLUGINS"], capture_output=True, text=True).stdout.strip() \
        if shutil.which("qmake6") else ""
    folders = [Path(plugins), *Path("/usr/lib").glob("*/qt6/plugins")]
    return any((folder / "platforms/libqwayland-generic.so").exists() for folder in folders)


DISPLAYS = {
    "offscreen": (lambda folder: (None, {"QT_QPA_PLATFORM": "offscreen"}), lambda: True),
    "xcb": (x11, lambda: shutil.which("Xvfb") is not None),
    "wayland": (wayland, lambda: shutil.which("weston") is not None and has_wayland_windows()),
}


def check_drawn(program, picture, environment, platform, scale):
    ran = subprocess.run([program, picture, scale], env=environment, capture_output=True, text=True, timeout=180)
    assert ran.returncode == 0, (platform, scale, ran.stdout, ran.stderr)
    name, ratio, size = ran.stdout.split()[-3:]
    width, height = (int(number) for number in size.split("x"))
    print(name, ratio, size, flush=True)
    assert name == platform, ran.stdout
    assert abs(float(ratio) - float(scale)) < 0.005, ran.stdout
    for drawn, wanted in zip((width, height), WINDOW):
        # A compositor may give a window one of its own pixels more or less.
        assert abs(drawn - wanted * float(scale)) <= float(scale), (platform, scale, size)


def check_program(program, picture, environment, platform):
    running = subprocess.Popen([program, picture], env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    try:
        said = running.communicate(timeout=STAYS_SECONDS)[0]
        raise AssertionError(f"on {platform} the program ended with {running.returncode}: {said}")
    except subprocess.TimeoutExpired:
        running.terminate()
        said = running.communicate(timeout=60)[0]
    complaints = [line for line in said.splitlines() if line and not HARMLESS.search(line)]
    assert complaints == [], (platform, complaints)


def check_display(platform, programs, picture):
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        folder.chmod(0o700)
        server, display = DISPLAYS[platform][0](folder)
        try:
            base = {key: value for key, value in os.environ.items() if not key.startswith(("QT_", "DISPLAY", "WAYLAND"))}
            base.update(display, HOME=name, XDG_RUNTIME_DIR=name, XDG_CONFIG_HOME=f"{name}/config", XDG_DATA_HOME=f"{name}/data",
                        XDG_CACHE_HOME=f"{name}/cache", LC_ALL="C.UTF-8")
            for scale in SCALES:
                check_drawn(programs[0], picture, base, platform, scale)
            check_program(programs[1], picture, base, platform)
        finally:
            if server is not None:
                server.terminate()
                server.wait(60)


def main():
    *programs, picture = sys.argv[1:]
    there = [platform for platform, (_, is_there) in DISPLAYS.items() if is_there()]
    for platform in there:
        check_display(platform, programs, picture)
    missing = [platform for platform in DISPLAYS if platform not in there]
    if missing:
        print("not tried, since its server is not installed:", ", ".join(missing))
    return 0


if __name__ == "__main__":
    sys.exit(main())
