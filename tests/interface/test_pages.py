#!/usr/bin/env python3
"""test_pages.py QUORLIN_SCRIPT PICTURE: a script without windows makes pages, waits for them, and takes what came of it."""
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

RUNNER, PICTURE = sys.argv[1:]

SCRIPT = """
import { PageWork } from "quorlin/pages";

const [target, ...paths] = scriptArguments;
const work = new PageWork({ settings: { rows: 1, columns: 2, caption: "{name}" }, paths: paths });
const said = [work.pages];
work.begin(target, {});
work.wait();
for (let each = work.take(); Object.keys(each).length > 0; each = work.take()) {
    said.push(each);
}
print(JSON.stringify(said));
"""


def run(folder, target, paths):
    script = folder / "pages.js"
    script.write_text(SCRIPT, encoding="utf-8")
    environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen"}
    done = subprocess.run([RUNNER, script, target, *paths], capture_output=True, env=environment, timeout=100, check=False)
    assert done.returncode == 0, done
    return json.loads(done.stdout)


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        target = folder / "pages.pdf"
        pages, *events = run(folder, target, [PICTURE, PICTURE, folder / "missing.jpg"])
        assert pages == 2, pages
        end = events.pop()
        assert end["problem"] == "" and end["pages"] == 2 and end["bytes"] == target.stat().st_size, end
        assert sorted((each["picture"], each["status"]) for each in events) == [(0, "OK"), (1, "OK"), (2, "Failed")], events
        content = target.read_bytes()
        assert content.startswith(b"%PDF-") and content.count(b"/DCTDecode") == 2 and content.endswith(b"%%EOF\n")
        # Where it cannot be written nothing is left, and the reason is said.
        _, end = run(folder, folder / "nowhere" / "pages.pdf", [PICTURE])
        assert end["problem"] != "" and end["pages"] == 0, end
        assert sorted(path.name for path in folder.iterdir()) == ["pages.js", "pages.pdf"]
    print("ok")


main()
