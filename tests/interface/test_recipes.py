#!/usr/bin/env python3
"""test_recipes.py QUORLIN_BATCH SCHEMA PICTURES: what the command answers, writes and leaves alone, and that the schema knows
what the reader knows."""
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

BATCH, SCHEMA, PICTURES = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
PLAIN = {"quorlin": 1, "operations": [{"do": "resize", "longest": 20}], "outputs": [{"type": "jpeg", "folder": "out"}]}
KEYS = {"input", "output", "index", "status", "reason", "type", "width", "height", "bytes", "ms", "lossless", "losses", "recipe"}


def run(*arguments, cwd, stdin=b"", home=True):
    environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
    if home:
        environment["HOME"] = str(cwd)
    for name in ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "FONTCONFIG_FILE"):
        if name in os.environ:
            environment[name] = os.environ[name]
    return subprocess.run([BATCH, *map(str, arguments)], cwd=cwd, input=stdin, capture_output=True, env=environment, timeout=100,
                          check=False)


def lines(text):
    return [json.loads(line) for line in text.decode().splitlines()]


def world(base):
    shutil.rmtree(base, ignore_errors=True)
    (base / "in" / "sub").mkdir(parents=True)
    for name, place in (("formats/profile.png", "in/a.png"), ("metadata/every-group.jpg", "in/sub/b.jpg")):
        shutil.copy(PICTURES / name, base / place)
    (base / "r.quorlin").write_text(json.dumps(PLAIN))
    return sorted(str(path.relative_to(base)) for path in base.rglob("*"))


def check_answers(base):
    world(base)
    assert run("--help", cwd=base).returncode == 0
    assert run("--version", cwd=base).stdout.startswith(b"quorlin-batch ")
    for wrong in ([], ["r.quorlin"], ["none.quorlin", "in"], ["r.quorlin", "in", "--melt"], ["r.quorlin", "in", "--jobs", "0"],
                  ["r.quorlin", "in", "--keep-tree"], ["r.quorlin", "in", "--shard", "3/2"], ["r.quorlin", "in", "--to"],
                  ["r.quorlin", "in", "--report", "r.quorlin"], ["r.quorlin", "in", "--report", "in/a.png"],
                  ["r.quorlin", "in", "--plan", "none"], ["r.quorlin", "in", "-0"]):
        before = sorted(base.rglob("*"))
        done = run(*wrong, cwd=base)
        assert done.returncode == 2 and done.stderr.count(b"\n") == 1 and done.stdout == b"", (wrong, done)
        assert sorted(base.rglob("*")) == before, wrong


def check_batch(base):
    before = world(base)
    planned = run("r.quorlin", "in", "--dry-run", "--report", "-", cwd=base, home=False)
    assert planned.returncode == 0, planned
    assert sorted(str(path.relative_to(base)) for path in base.rglob("*")) == before
    rows = lines(planned.stdout)
    assert [row["status"] for row in rows[:-1]] == ["Planned"] * 2 and rows[-1]["summary"]["ok"] == 2, rows
    made = run("r.quorlin", "in", "--report", "report", "--to", "results", "--keep-tree", cwd=base, home=False)
    assert made.returncode == 0, made
    rows = lines((base / "report").read_bytes())
    for row in rows[:-1]:
        assert set(row) == KEYS and row["status"] == "OK", row
        assert Path(row["output"]).stat().st_size == row["bytes"] and len(row["recipe"]) == 12
    assert (base / "results/sub/out/b.jpg").exists() and (base / "results/out/a.jpg").exists()
    summary = rows[-1]["summary"]
    assert summary["inputs"] == summary["ok"] == 2 and summary["jobs"] >= 1, summary


def check_failures(base):
    world(base)
    (base / "in/broken.jpg").write_bytes(b"\xff\xd8\xff\xe0 nothing")
    done = run("r.quorlin", "in", "in/none.png", "--report", "-", "--quiet", cwd=base)
    rows = lines(done.stdout)
    assert done.returncode == 1 and [row["status"] for row in rows[:-1]].count("Failed") == 2, rows
    assert all(row["reason"] and row["output"] is None for row in rows[:-1] if row["status"] == "Failed")
    assert done.stderr.count(b"\n") == 2, done.stderr


def check_lists(base):
    world(base)
    for separator, flags in ((b"\n", []), (b"\0", ["-0"])):
        done = run("r.quorlin", "--from", "-", *flags, "--report", "-", "--dry-run", cwd=base,
                   stdin=b"in/a.png" + separator + b"in/sub/b.jpg" + separator)
        assert done.returncode == 0 and len(lines(done.stdout)) == 3, done


def check_resume(base):
    world(base)
    run("r.quorlin", "in/a.png", "--report", "report", "--to", "results", cwd=base)
    done = run("r.quorlin", "in", "--report", "report", "--resume", "report", "--to", "results", cwd=base)
    rows = lines((base / "report").read_bytes())
    assert done.returncode == 0 and len(rows) == 4 and len(list((base / "results").rglob("*.jpg"))) == 2, rows
    (base / "r.quorlin").write_text(json.dumps(dict(PLAIN, name="another")))
    done = run("r.quorlin", "in", "--report", "second", "--resume", "report", "--to", "results", cwd=base)
    assert len(lines((base / "second").read_bytes())) == 3  # nothing is done of this recipe
    assert run("r.quorlin", "in", "--plan", "report", cwd=base).returncode == 2


def check_signal(base):
    world(base)
    for number in range(400):
        shutil.copy(base / "in/sub/b.jpg", base / f"in/{number}.jpg")
    recipe = dict(PLAIN, operations=[{"do": "resize", "longest": 3000, "enlarge": True}])
    (base / "r.quorlin").write_text(json.dumps(recipe))
    process = subprocess.Popen([BATCH, "r.quorlin", "in", "--report", "report", "--quiet"], cwd=base)
    while not (base / "report").exists() or (base / "report").stat().st_size == 0:
        time.sleep(0.02)
    process.send_signal(signal.SIGTERM)
    assert process.wait(10) == 3
    rows = lines((base / "report").read_bytes())
    made = list(base.rglob("out/*"))
    assert "summary" in rows[-1] and 0 < len(rows) - 1 < 400, len(rows)
    assert len(made) == len(rows) - 1 and not [path for path in base.rglob(".*")], (len(made), len(rows))


def check_schema():
    """Every key and word of the schema is one of the reader: a recipe that has it is not refused for its name."""
    schema = json.loads(SCHEMA.read_text())
    known = {part["properties"]["do"]["const"]: part for part in schema["definitions"]["operation"]["oneOf"]}
    with tempfile.TemporaryDirectory() as folder:
        base = Path(folder)
        world(base)

        def refusal(recipe):
            (base / "s.quorlin").write_text(json.dumps(recipe))
            return run("s.quorlin", "in/a.png", "--dry-run", cwd=base).stderr.decode()
        for name, part in known.items():
            for key, kind in part["properties"].items():
                for value in kind.get("enum", [None]):
                    said = refusal(dict(PLAIN, operations=[{"do": name, key: value if value is not None else {}}]))
                    assert "unknown key" not in said, (name, key, said)
                    if value is not None and key not in ("position", "fit"):
                        assert f".{key}: " not in said, (name, key, value, said)
            said = refusal(dict(PLAIN, operations=[{"do": name, "melted": 1}]))
            assert "operations[0]" in said, said
        for key, kind in schema["definitions"]["output"]["properties"].items():
            for value in kind.get("enum", [None]):
                said = refusal(dict(PLAIN, outputs=[{key: value if value is not None else {}}]))
                assert "unknown key" not in said and (value is None or "outputs[0]" not in said), (key, value, said)


def main():
    with tempfile.TemporaryDirectory() as folder:
        for check in (check_answers, check_batch, check_failures, check_lists, check_resume, check_signal):
            check(Path(folder) / "world")
    check_schema()


main()
