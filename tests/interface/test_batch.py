#!/usr/bin/env python3
"""test_batch.py SCRIPT_RUNNER BATCH PICTURES: a batch without windows writes what it says and touches nothing else."""
import hashlib
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

PICTURES = ["orientation/landscape_6.jpg", "orientation/portrait_1.jpg", "metadata/every-group.jpg"]


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def run(runner, batch, out, files, home):
    environment = dict(os.environ, HOME=str(home), XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "config"),
                       QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    command = runner if isinstance(runner, list) else [runner]
    return subprocess.run([*command, batch, str(out), *map(str, files)], capture_output=True, text=True, env=environment,
                          timeout=200, check=False)


def main():
    runner, batch, pictures = sys.argv[1], sys.argv[2], Path(sys.argv[3])
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        source, out = base / "in", base / "out"
        source.mkdir()
        for name in PICTURES:
            shutil.copy(pictures / name, source)
        files = sorted(source.iterdir())
        before = [digest(path) for path in files]

        good = run(runner, batch, out, files, base)
        assert good.returncode == 0, good.stderr + good.stdout
        assert sorted(path.name for path in out.iterdir()) == [path.name for path in files], list(out.iterdir())
        assert f"{len(files)} done, 0 failed" in good.stdout, good.stdout
        assert str(out / files[0].name) in good.stdout, good.stdout

        again = run(runner, batch, out, files[:1], base)
        assert again.returncode == 0, again.stderr
        assert (out / (files[0].stem + " (2)" + files[0].suffix)).exists(), "a name that is taken is numbered"

        broken = source / "broken.jpg"
        broken.write_bytes(b"no picture at all")
        bad = run(runner, batch, base / "out2", [broken], base)
        assert bad.returncode == 1, bad.stdout
        assert "Failed: not a readable picture" in bad.stdout, bad.stdout
        assert not (base / "out2").exists(), "a folder in which nothing came to be is taken away"

        large = source / "large.png"
        subprocess.run(["convert", "-size", "8000x6000", "xc:white", "-interlace", "PNG", "-define", "png:color-type=2", str(large)], check=True)
        limited = ["prlimit", "--as=400000000", runner]
        short = run(limited, batch, base / "out3", [large, files[0]], base)
        large.unlink()
        if not os.environ.get("QUORLIN_SANITIZED"):
            assert "Failed: needs about " in short.stdout and "1 done, 1 failed" in short.stdout, short.stdout + short.stderr

        assert run(runner, batch, out, [], base).returncode == 2
        assert [digest(path) for path in files] == before, "the originals were touched"
        assert not [path for path in out.iterdir() if path.name.startswith(".")], "something unfinished is left"
    return 0


sys.exit(main())
