#!/usr/bin/env python3
"""test_web_page.py SCRIPT_RUNNER WEB_PAGE PICTURES: a page is whole, and nothing of anybody else's is touched."""
import hashlib
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

PICTURES = ["orientation/landscape_6.jpg", "orientation/portrait_1.jpg", "metadata/every-group.jpg"]
PLACES = ["{city}", "{state}", "{country}", "{sublocation}", "{coordinates}"]


class Page(HTMLParser):
    """The addresses, pictures and nesting of a page."""

    VOID = {"meta", "img", "br", "link", "input", "hr"}

    def __init__(self, text):
        super().__init__()
        self.open, self.addresses, self.pictures, self.ids = [], [], [], []
        self.feed(text)
        assert not self.open, self.open

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag not in self.VOID:
            self.open.append(tag)
        self.ids += [attributes["id"]] if "id" in attributes else []
        self.addresses += [attributes[name] for name in ("href", "src") if name in attributes]
        if tag == "img":
            self.pictures.append(attributes)
            self.addresses += [each.split()[0] for each in attributes["srcset"].split(", ")]

    def handle_endtag(self, tag):
        assert self.open.pop() == tag, tag


def digests(folder):
    return {str(path.relative_to(folder)): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in sorted(folder.rglob("*")) if path.is_file()}


class World:
    def __init__(self, runner, script, base, pictures):
        self.command, self.base = [runner, script], base
        self.source = base / "in"
        self.source.mkdir()
        for name in PICTURES:
            shutil.copy(pictures / name, self.source)
        self.files = sorted(self.source.iterdir())
        self.environment = dict(os.environ, HOME=str(base), XDG_DATA_HOME=str(base / "data"), LC_ALL="C.UTF-8",
                                XDG_CONFIG_HOME=str(base / "config"), QT_QPA_PLATFORM="offscreen")

    def arguments(self, out, settings, files=None):
        path = self.base / "settings.json"
        path.write_text(json.dumps(settings))
        return [*self.command, str(out), str(path), *map(str, files or self.files)]

    def run(self, out, settings, files=None):
        return subprocess.run(self.arguments(out, settings, files), capture_output=True, text=True,
                              env=self.environment, timeout=200, check=False)

    def make(self, out, settings, files=None):
        done = self.run(out, settings, files)
        assert done.returncode == 0, done.stdout + done.stderr
        return Page((out / "index.html").read_text(encoding="utf-8"))


def check_page(world):
    out = world.base / "a page #1"
    before = digests(world.source)
    page = world.make(out, {"title": "<Sea> & \"sky\"", "captionPattern": "{title}", "download": True})
    assert digests(world.source) == before, "the pictures are as they were"
    assert len(page.pictures) == 6, page.pictures
    for address in page.addresses:
        if address.startswith("#"):
            assert address[1:] in page.ids, address
        else:
            assert re.match(r"pictures/[^:]+$", address), address
            assert (out / unquote(address)).is_file(), address
    for picture in page.pictures:
        assert picture["alt"] and int(picture["width"]) > 0 and int(picture["height"]) > 0, picture
    text = (out / "index.html").read_text(encoding="utf-8")
    assert "&lt;Sea&gt; &amp; &quot;sky&quot;" in text and "<Sea>" not in text
    assert "A small picture" in text, "a title from the metadata"
    assert sorted(path.name for path in out.iterdir()) == ["index.html", "pictures", "quorlin-page.json"]
    assert len(list((out / "pictures").iterdir())) == 9
    again = world.run(out, {})
    assert again.returncode == 0 and (world.base / "a page #1 (2)" / "index.html").is_file(), again.stdout
    assert "<Sea>" not in text and (out / "index.html").read_text(encoding="utf-8") == text, "the first one stays"


def check_metadata(world):
    out = world.base / "private"
    world.make(out, {}, [world.source / "every-group.jpg"])
    if shutil.which("exiftool") is None:
        print("the metadata of the pictures was not looked at: there is no exiftool")
        return
    told = subprocess.run(["exiftool", "-G1", "-a", "-s", *map(str, (out / "pictures").iterdir())],
                          capture_output=True, text=True, check=True).stdout
    assert "Copyright" in told and "[GPS]" not in told and "City" not in told and "[ExifIFD]" not in told, told


def check_refusals(world):
    out = world.base / "refused"
    for place in PLACES:
        done = world.run(out, {"captionPattern": "by " + place})
        assert done.returncode == 2 and place in done.stderr, done.stderr
    own = world.base / "own.html"
    for text, said in (("<p>\n{{titel}}", "line 2: there is no field {{titel}}"), ("{{#text}}", "line 1: {{#text}}")):
        own.write_text(text)
        done = world.run(out, {"template": str(own)})
        assert done.returncode == 2 and said in done.stderr, done.stderr
    for wrong in ({"template": str(world.base / "none.html")}, {"small": 3000}, {"quality": 0}, {"language": "a b"}):
        assert world.run(out, wrong).returncode == 2, wrong
    assert not out.exists()
    own.write_text("<title>{{title}}</title>{{#pictures}}{{pictureFile}};{{/pictures}}")
    done = world.run(out, {"template": str(own), "title": "Mine"}, world.files[:1])
    assert done.returncode == 0, done.stderr
    assert (out / "index.html").read_text().startswith("<title>Mine</title>pictures/001-"), "a template of one's own"


def check_update(world):
    out = world.base / "kept"
    world.make(out, {"title": "One"})
    old = set(digests(out))
    (out / "notes.txt").write_text("mine")
    (out / "pictures" / "mine.jpg").write_text("mine too")
    changed = next((out / "pictures").glob("001-*-large.jpg"))
    changed.write_bytes(changed.read_bytes() + b"changed")
    page = world.make(out, {"title": "Two", "ifTaken": "update"}, world.files[:2])
    assert len(page.pictures) == 4 and "Two" in (out / "index.html").read_text()
    left = set(digests(out))
    assert {"notes.txt", "pictures/mine.jpg", str(changed.relative_to(out))} <= left, left
    pictures = {name for name in old if name.startswith("pictures/")} - {str(changed.relative_to(out))}
    assert not pictures & left, pictures & left
    for address in page.addresses:
        assert address.startswith("#") or (out / unquote(address)).is_file(), address
    # What somebody wrote on, and what is no page of ours, stays.
    (out / "index.html").write_text("written by hand")
    before = digests(out)
    assert world.run(out, {"ifTaken": "update"}).returncode == 1
    assert digests(out) == before
    other = world.base / "other"
    other.mkdir()
    (other / "index.html").write_text("somebody else's")
    assert world.run(other, {"ifTaken": "update"}).returncode == 1
    assert digests(other) == {"index.html": hashlib.sha256(b"somebody else's").hexdigest()}
    # No marker gets a file removed elsewhere.
    (other / "quorlin-page.json").write_text(json.dumps({"quorlinPage": 1, "files": {"../settings.json": ["x"]}}))
    assert world.run(other, {"ifTaken": "update"}).returncode == 1
    assert (world.base / "settings.json").exists()


def check_kills(world):
    """Killed at any moment, a page is whole or not there, and the next one clears up."""
    parent = world.base / "killed"
    parent.mkdir()
    begun = time.monotonic()
    world.make(parent / "whole", {})
    lasted = time.monotonic() - begun
    for i in range(12):
        out = parent / f"page {i}"
        process = subprocess.Popen(world.arguments(out, {}), env=world.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        time.sleep(lasted * (i + 1) / 12)
        process.send_signal(signal.SIGKILL)
        process.wait()
        if out.exists():
            page = Page((out / "index.html").read_text(encoding="utf-8"))
            assert all(address.startswith("#") or (out / unquote(address)).is_file() for address in page.addresses)
    world.make(parent / "last", {})
    assert not [path for path in parent.iterdir() if path.name.startswith(".")], list(parent.iterdir())


def main():
    runner, script, pictures = sys.argv[1], sys.argv[2], Path(sys.argv[3])
    for check in (check_page, check_metadata, check_refusals, check_update, check_kills):
        with tempfile.TemporaryDirectory() as folder:
            check(World(runner, script, Path(folder), pictures))
    print("ok")


main()
