#!/usr/bin/env python3
"""manual.py ROOT [LANGUAGE]: the manual in docs/manual against the actions and against itself, in four languages.

Every action of the sidebar has a page of its name, every page can be reached from index.md, and every link leads to a page, a
heading or a picture that is there; a picture that is light has its dark one too. The folders de, fr and nl hold the same pages with
the same levels of headings, links to the same headings, and the figures of their language in the same order.

A language is compared with English as soon as it has its index.md, which is written last, or if it is named as
LANGUAGE; its pictures as soon as docs/screenshots has its folder, since the window shows English ones until then.
"""
import re
import sys
from collections import Counter
from pathlib import Path

ACTIONS = "interface/actions"
MANUAL = "docs/manual"
SCREENSHOTS = "docs/screenshots"
LANGUAGES = ("de", "fr", "nl")
LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)\s]+)[^)]*\)")
HEADING = re.compile(r"^(#+) +(.+?)\s*$", re.M)


def action_names(folder):
    """Every action is a folder with a file that says what it is: resize/resize-action.js."""
    return sorted(path.parent.name for path in folder.glob("*/*-action.js") if path.name == f"{path.parent.name}-action.js")


def anchor(heading):
    """As in the window of the manual: lower-case letters and digits, hyphens for spaces."""
    kept = re.sub(r"[^\w\s-]", "", re.sub(r"[*`]", "", heading).lower())
    return re.sub(r"\s", "-", kept.strip())


def anchors(text):
    return [anchor(heading) for _, heading in HEADING.findall(text)]


def links_of(text):
    return [target for picture, _, target in LINK.findall(text) if not picture and not re.match(r"https?:", target)]


def figures_of(text):
    return [(words, target) for picture, words, target in LINK.findall(text) if picture]


def place_of(page, target, pages):
    """The page and the number of the heading that a link leads to; None if there is no such place."""
    path, _, name = target.partition("#")
    to = path.removesuffix(".md") or page
    if to not in pages or path and not path.endswith(".md"):
        return None
    if not name:
        return to, -1
    known = anchors(pages[to])
    return (to, known.index(name)) if name in known else None


def check_link(page, target, pages):
    """What is wrong with a link of a page; None if nothing is."""
    if place_of(page, target, pages) is not None:
        return None
    path = target.partition("#")[0]
    is_there = (path.removesuffix(".md") or page) in pages
    return f"{page}.md: leads to {target}, " + ("where no heading is called so" if is_there else "which is not there")


def check_picture(folder, page, target):
    path = (folder / target).resolve()
    wanted = [path] + ([path.with_name(path.name.replace("-light.", "-dark."))] if "-light." in path.name else [])
    return [f"{page}.md: shows {target}, but {each.name} is not there" for each in wanted if not each.exists()]


def check_pages(folder, pages, has_pictures=True):
    """What is wrong with the links and pictures of the pages of one language."""
    problems = []
    for page, text in pages.items():
        problems += filter(None, (check_link(page, target, pages) for target in links_of(text)))
        for words, target in figures_of(text):
            problems += check_picture(folder, page, target) if has_pictures else []
            problems += [] if words else [f"{page}.md: does not say what {target} shows"]
    linked = {target.partition("#")[0].removesuffix(".md") for target in links_of(pages.get("index", ""))}
    return problems + [f"index.md: does not lead to {page}.md" for page in pages if page != "index" and page not in linked]


def compare_pages(language, page, english, other):
    """What is wrong with a page beside the English one: {page: text} of both languages."""
    problems = []
    levels = [[len(marks) for marks, _ in HEADING.findall(pages[page])] for pages in (english, other)]
    if levels[0] != levels[1]:
        problems.append(f"{page}.md: its headings have the levels {levels[1]}, those in English {levels[0]}")
    names = anchors(other[page])
    problems += [f"{page}.md: two headings have the anchor {name}" for name, count in Counter(names).items()
                 if count > 1 and len(set(anchors(english[page]))) == len(levels[0])]
    shown = [target.replace("../", "../../", 1).replace("/screenshots/", f"/screenshots/{language}/")
             for _, target in figures_of(english[page])]
    if shown != [target for _, target in figures_of(other[page])]:
        problems.append(f"{page}.md: its figures are not {', '.join(shown) or 'none'}")
    places = [Counter(place_of(page, target, pages) for target in links_of(pages[page])) for pages in (english, other)]
    for says, there, here in (("lacks a link", *places), ("has a link too many", *reversed(places))):
        problems += [f"{page}.md: {says} to {to}.md, heading {number + 1}" for to, number in sorted(filter(None, there - here))]
    return problems


def pages_in(folder):
    return {path.stem: path.read_text(encoding="utf-8") for path in sorted(folder.glob("*.md"))}


def check_language(root, language, english):
    folder = root / MANUAL / language
    pages = pages_in(folder)
    problems = [f"{page}.md is missing" for page in english if page not in pages]
    problems += [f"{page}.md: English has no such page" for page in pages if page not in english]
    for page in english:
        if page in pages:
            problems += compare_pages(language, page, english, pages)
    problems += check_pages(folder, pages, (root / SCREENSHOTS / language).exists())
    return [f"{language}/{problem}" for problem in problems]


def check(root, asked=()):
    folder = root / MANUAL
    english = pages_in(folder)
    names = action_names(root / ACTIONS)
    problems = [] if names else [f"{ACTIONS}: no action found"]
    problems += [f"the action {name} has no page" for name in names if name not in english]
    problems += check_pages(folder, english)
    languages = [each for each in LANGUAGES if each in asked or (folder / each / "index.md").exists()]
    for language in languages:
        problems += check_language(root, language, english)
    links = sum(len(LINK.findall(text)) for text in english.values())
    return problems, f"{len(english)} pages, {links} links and pictures, {len(names)} actions; {' '.join(['en', *languages])}"


def main():
    problems, figures = check(Path(sys.argv[1]).resolve(), sys.argv[2:])
    for problem in problems:
        print(problem)
    print(f"{len(problems)} problems" if problems else figures)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
