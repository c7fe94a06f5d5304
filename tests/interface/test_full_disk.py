#!/usr/bin/env python3
"""test_full_disk.py SCRIPT_RUNNER SCRIPT PICTURE: a conversion that did not fit on the disk does not say that all is well.

A limit on the size of files simulates a full disk: the picture alone fits, the picture with its metadata does not. No
partial file remains.
"""
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path


def run(command, home, most=None):
    def limit():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        if most is not None:
            resource.setrlimit(resource.RLIMIT_FSIZE, (most, most))
    environment = dict(os.environ, HOME=str(home), XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "config"),
                       QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, env=environment, timeout=100, check=True,
                          preexec_fn=limit)
    return json.loads(done.stdout) if done.stdout.strip() else None


def check(runner, script, picture, base, target, extension):
    out = base / target
    out.mkdir()
    written = out / (picture.stem + extension)
    command = [runner, script, picture, out, target]
    good = run(command, base)
    assert good["status"] == "OK" and good["outputs"] == [str(written)], good
    whole = written.stat().st_size
    written.unlink()
    comment = 60000
    bad = run(command, base, whole - comment // 2)
    assert bad["status"] == "Failed" and bad["outputs"] == [], bad
    assert "Cannot write" in bad["reason"] and not any(out.iterdir()), bad
    none = run(command, base, 100)
    assert none["status"] == "Failed" and not any(out.iterdir()), none


def main():
    runner, script, source = sys.argv[1:4]
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        picture = base / "a.jpg"
        shutil.copy(source, picture)
        picture.chmod(0o644)
        run([runner, script, picture, base, "comment"], base)
        check(runner, script, picture, base, "png", ".png")
        check(runner, script, picture, base, "tiff", ".tiff")
    return 0


if __name__ == "__main__":
    sys.exit(main())
