#!/usr/bin/env python3
"""manual.py ROOT: the manual in docs/manual against the actions and against itself.

Every action of the sidebar has a page of its name, every page can be reached from index.md, and every link leads to a page, a
heading or a picture that is there; a picture that is light has its dark one too.
"""
import re
import sys
from pathlib import Path

ACTIONS = "interface/actions"
LINK = re.compile(r"(!?)\[[^\]]*\]\(([^)\s]+)[^)]*\)")


def action_names(folder):
    """Every action is a folder with a file that says what it is: resize/resize-action.js."""
    return sorted(path.parent.name for path in folder.glob("*/*-action.js") if path.name == f"{path.parent.name}-action.js")


def anchor(heading):
    """As the window of the manual makes it: small letters and digits, hyphens for blanks."""
    kept = re.sub(r"[^\w\s-]", "", re.sub(r"[*`]", "", heading).lower())
    return re.sub(r"\s", "-", kept.strip())


def anchors(text):
    return {anchor(heading) for heading in re.findall(r"^#+ +(.+?)\s*$", text, re.M)}


def check_link(page, target, pages):
    """What is wrong with a link of a page; None if nothing is."""
    path, _, place = target.partition("#")
    if path and path.removesuffix(".md") not in pages:
        return f"{page}.md: leads to {target}, which is not there"
    if place and place not in anchors(pages[path.removesuffix(".md") or page]):
        return f"{page}.md: leads to {target}, where no heading is called so"
    return None


def check_picture(folder, page, target):
    path = (folder / target).resolve()
    wanted = [path] + ([path.with_name(path.name.replace("-light.", "-dark."))] if "-light." in path.name else [])
    return [f"{page}.md: shows {target}, but {each.name} is not there" for each in wanted if not each.exists()]


def check(root):
    folder = root / "docs/manual"
    pages = {path.stem: path.read_text(encoding="utf-8") for path in sorted(folder.glob("*.md"))}
    names = action_names(root / ACTIONS)
    problems = [] if names else [f"{ACTIONS}: no action found"]
    problems += [f"the action {name} has no page" for name in names if name not in pages]
    links = 0
    for page, text in pages.items():
        for is_picture, target in LINK.findall(text):
            links += 1
            if is_picture:
                problems += check_picture(folder, page, target)
            elif not re.match(r"https?:", target):
                problem = check_link(page, target, pages)
                problems += [problem] if problem else []
    linked = {target.partition("#")[0].removesuffix(".md") for picture, target in LINK.findall(pages.get("index", "")) if not picture}
    problems += [f"index.md: does not lead to {page}.md" for page in pages if page != "index" and page not in linked]
    return problems, f"{len(pages)} pages, {links} links and pictures, {len(names)} actions"


def main():
    problems, figures = check(Path(sys.argv[1]).resolve())
    for problem in problems:
        print(problem)
    print(f"{len(problems)} problems" if problems else figures)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
