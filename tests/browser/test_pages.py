#!/usr/bin/env python3
"""test_pages.py SCRIPT_RUNNER WEB_PAGE PICTURES SAMPLES CACHE: web pages as a browser shows them, and as people reach them.

Skipped, with status 77, if there is no browser. The rules of axe-core are checked too if the package registry can be
reached.
"""
import base64
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
from pathlib import Path
from urllib.parse import unquote

import browser

SKIPPED = 77
WIDTHS = (360, 768, 1440)
HEIGHT = 900
AXE = ("axe-core@4.10.3", "0f2b4d7dcdf7d1219df8d1959ad68e565f51d14c3f0d88bb71cd59abeb956292")
TAGS = ["wcag2a", "wcag2aa", "wcag21aa", "wcag22aa"]
PAGES = {
    "grid": {"style": "grid", "captionPattern": "{name}", "download": True},
    "rows": {"style": "rows", "captionPattern": "{name}\n{title}", "download": True, "accent": "#ffee00"},
    "story": {"style": "story", "captionPattern": "{name}", "lightPaper": "#f4ecd8", "threeSizes": False},
    "rtl": {"style": "rows", "language": "ar", "title": "يوم على البحر", "text": "صديقان وقارب.",
            "captionPattern": "{name}", "download": True},
}
LONG = "An unbreakableunbreakableunbreakableunbreakableunbreakableunbreakableunbreakable word and much to tell. " * 4


def axe(cache):
    """The source of axe-core, fetched once; None if it is not available."""
    kept = cache / "axe.min.js"
    if kept.exists():
        return kept.read_text()
    cache.mkdir(parents=True, exist_ok=True)
    if shutil.which("npm") is None:
        return None
    try:
        packed = subprocess.run(["npm", "pack", AXE[0], "--silent"], cwd=cache, capture_output=True, text=True,
                                timeout=100, check=True).stdout.split()[-1]
    except (subprocess.SubprocessError, IndexError):
        return None
    archive = cache / packed
    assert hashlib.sha256(archive.read_bytes()).hexdigest() == AXE[1], "the package is another one"
    with tarfile.open(archive) as files:
        kept.write_bytes(files.extractfile("package/axe.min.js").read())
    return kept.read_text()


def make_pages(runner, script, pictures, base):
    environment = dict(os.environ, HOME=str(base), XDG_DATA_HOME=str(base / "data"), LC_ALL="C.UTF-8",
                       XDG_CONFIG_HOME=str(base / "config"), QT_QPA_PLATFORM="offscreen")
    pages = {}
    for name, settings in PAGES.items():
        typed = [[str(pictures[1]), LONG], [str(pictures[2]), "سطر بالعربية"]]
        given = {"title": "A day at the sea", "text": "Two friends.\n\nOne boat, no wind.", "captions": typed}
        (base / "settings.json").write_text(json.dumps({**given, **settings}))
        done = subprocess.run([runner, script, str(base / name), str(base / "settings.json"), *map(str, pictures)],
                              capture_output=True, text=True, env=environment, timeout=200, check=False)
        assert done.returncode == 0, done.stdout + done.stderr
        pages[name] = base / name / "index.html"
    return pages


def check_addresses(page):
    text = page.read_text(encoding="utf-8")
    addresses = re.findall(r'\s(?:href|src)="([^"]*)"', text)
    addresses += [each.split()[0] for sources in re.findall(r'srcset="([^"]*)"', text) for each in sources.split(", ")]
    assert len(addresses) > 20
    for address in addresses:
        assert not re.match(r"[a-zA-Z][\w+.-]*:|//|/", address), address
        if address.startswith("#"):
            assert f'id="{address[1:]}"' in text, address
        else:
            assert (page.parent / unquote(address)).is_file(), address
    assert "://" not in text and "http-equiv" not in text


def check_look(asked, look, page, what):
    for place in ("", "#view-2", "#view-1"):
        asked.value(f"location.hash = {json.dumps(place)}; 0")
        asked.value("new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)))", wait=True)
        found = asked.value(look)
        assert not found, (*what, place, found)


def check_axe(asked, source, what):
    if source is None:
        return
    asked.value(source + "; 0")
    for place in ("", "#view-2"):
        asked.value(f"location.hash = {json.dumps(place)}; 0")
        rules = json.dumps({"runOnly": {"type": "tag", "values": TAGS}})
        found = asked.value(f"axe.run(document, {rules}).then((told) => told.violations.map((each) => "
                            "each.id + ': ' + each.nodes.map((node) => node.html + ' ' + node.failureSummary)"
                            ".slice(0, 3).join(' | ')))",
                            wait=True)
        assert not found, (*what, place, found)


def focused(asked):
    return asked.value("document.activeElement.getAttribute('href') || document.activeElement.id")


def wait_for(asked, condition):
    """What follows a change of the address comes a moment later."""
    wait = ("new Promise((done) => { const look = () => (" + condition + " ? done(true) : setTimeout(look, 10)); look(); "
            "setTimeout(() => done(false), 20000); })")
    assert asked.value(wait, wait=True), condition + " never came; there is " + str(focused(asked))


def check_keys(asked, is_from_right, has_download):
    links = asked.value("Array.from(document.querySelectorAll('main a')).map((each) => each.getAttribute('href'))")
    reached = []
    for _ in links:
        asked.press("Tab", 9)
        reached.append(focused(asked))
    assert reached == links, (reached, links)
    asked.value("document.querySelector('main a').focus(); 0")
    asked.press("Enter", 13)
    hash_is = "location.hash"
    wait_for(asked, "document.activeElement.id === 'view-1'")
    forward, back = (("ArrowLeft", 37), ("ArrowRight", 39)) if is_from_right else (("ArrowRight", 39), ("ArrowLeft", 37))
    for key, place in ((forward, 2), (forward, 3), (back, 2)):
        asked.press(*key)
        wait_for(asked, f"document.activeElement.id === 'view-{place}'")
    reached = []
    for _ in range(4 if has_download else 3):
        asked.press("Tab", 9)
        reached.append(focused(asked))
    assert len(reached) == 3 or reached[0].endswith("-large.jpg"), reached
    assert reached[-3:] == ["#picture-2", "#view-1", "#view-3"], reached
    asked.press("Escape", 27)
    assert asked.value(hash_is) == "#picture-2" and focused(asked) == "#view-2", focused(asked)
    asked.press("Escape", 27)
    assert asked.value(hash_is) == "#picture-2", "there is nothing more to close"


def place_after(asked, gesture):
    """Where the page is after a gesture that may do nothing: touches have been handled once two frames are drawn."""
    gesture()
    asked.value("new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done)))", wait=True)
    return asked.value("location.hash")


def check_swipes(asked, is_from_right, width):
    """A swipe turns the large view, one downwards closes it; short and slanting ones, and two fingers, do nothing."""
    asked.ask("Emulation.setTouchEmulationEnabled", enabled=True)
    asked.value("document.querySelector('main a').click(); 0")
    wait_for(asked, "document.activeElement.id === 'view-1'")
    middle, down = HEIGHT / 2, HEIGHT / 2 + 150
    left, right = (width * 0.25, middle), (width * 0.75, middle)
    on, back = ((left, right), (right, left)) if is_from_right else ((right, left), (left, right))
    for way, place in ((on, 2), (on, 3), (back, 2)):
        asked.swipe(*way)
        wait_for(asked, f"document.activeElement.id === 'view-{place}'")
    short = (right[0] - 40, middle)
    slanting = (right[0] - 100, middle - 100)
    for end in (short, slanting, (right[0], middle - 150)):
        assert place_after(asked, lambda: asked.swipe(right, end)) == "#view-2", end

    def pinch():
        asked.touch("touchStart", left, right)
        asked.touch("touchMove", (left[0] + 60, middle), (right[0] - 60, middle))
        asked.touch("touchEnd")
    assert place_after(asked, pinch) == "#view-2"
    # Somebody who has enlarged the page moves about in it.
    asked.ask("Emulation.setPageScaleFactor", pageScaleFactor=2)
    assert place_after(asked, lambda: asked.swipe(*on)) == "#view-2"
    asked.ask("Emulation.setPageScaleFactor", pageScaleFactor=1)
    asked.swipe((width / 2, middle), (width / 2, down))
    wait_for(asked, "location.hash === '#picture-2'")
    assert focused(asked) == "#view-2", focused(asked)
    assert place_after(asked, lambda: asked.swipe(*on)) == "#picture-2", "there is nothing to turn"
    asked.ask("Emulation.setTouchEmulationEnabled", enabled=False)


def without_script(page):
    copy = page.with_name("without-script.html")
    copy.write_text(re.sub(r"<script>.*?</script>", "", page.read_text(encoding="utf-8"), flags=re.S), encoding="utf-8")
    return copy


def check_links(asked):
    """The large view without script: links lead into it, through it and out of it."""
    for selector, place in (("main a", "#view-1"), ("#view-1 .next", "#view-2"), ("#view-2 .close", "#picture-2")):
        asked.value(f"document.querySelector({json.dumps(selector)}).click(); 0")
        assert asked.value("location.hash") == place
        seen = asked.value("Array.from(document.querySelectorAll('.view')).filter((each) => "
                           "getComputedStyle(each).display !== 'none').map((each) => '#' + each.id)")
        assert seen == ([place] if place.startswith("#view") else []), seen


def shots(asked, name, folder):
    for width in WIDTHS:
        for scheme in ("light", "dark"):
            asked.look(width, HEIGHT, scheme)
            for place in ("", "#view-2"):
                asked.value(f"location.hash = {json.dumps(place)}; 0")
                asked.value("new Promise((done) => setTimeout(done, 300))", wait=True)
                data = asked.ask("Page.captureScreenshot", format="png")["data"]
                (folder / f"{name}-{width}-{scheme}{'-view' if place else ''}.png").write_bytes(base64.b64decode(data))


def main():
    runner, script, pictures, samples, cache = sys.argv[1], sys.argv[2], *map(Path, sys.argv[3:6])
    program = browser.find()
    if program is None:
        print("skipped: there is no headless browser")
        return SKIPPED
    source = axe(cache)
    look = Path(__file__).with_name("look.js").read_text()
    inputs = sorted(samples.glob("*.jpg")) + sorted(samples.glob("*.png")) + sorted((pictures / "orientation").glob("*.jpg"))[:6]
    asked = browser.Browser(program)
    try:
        with tempfile.TemporaryDirectory() as folder:
            pages = make_pages(runner, script, inputs, Path(folder))
            for name, page in pages.items():
                check_addresses(page)
                bare = without_script(page)
                for width in WIDTHS:
                    for scheme in ("light", "dark"):
                        asked.look(width, HEIGHT, scheme)
                        for file in (page, bare):
                            what = (name, width, scheme, file.name)
                            asked.open(file.as_uri())
                            assert all(each.startswith(page.parent.as_uri()) for each in asked.requests()), what
                            check_look(asked, look, page, what)
                            check_axe(asked, source, what)
                        asked.open(page.as_uri())
                        check_keys(asked, name == "rtl", "download" in PAGES[name])
                        check_swipes(asked, name == "rtl", width)
                        asked.open(bare.as_uri())
                        check_links(asked)
                if os.environ.get("QUORLIN_SHOTS"):
                    asked.open(page.as_uri())
                    shots(asked, name, Path(os.environ["QUORLIN_SHOTS"]))
    finally:
        asked.close()
    print("ok" if source is not None else "ok, but axe-core could not be fetched and was not asked")
    return 0


sys.exit(main())
