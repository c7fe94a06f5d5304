#!/usr/bin/env python3
"""test_man_pages.py PAGES COMPLETION PROGRAM...: each program's manual page and what completes its options name exactly the
options that --help names, with the same arguments. Faults in the markup of pages are found by man, if it is installed.
"""
import re
import shutil
import subprocess
import sys
from pathlib import Path

OPTION = r"(?<![\w-])(--[a-z][a-z-]*|-[a-z0-9])(?![\w-])"


def of_help(text):
    """{option: argument} of lines that begin with one; several may share a line. None as the argument of those that only the
    synopsis shows, in an example."""
    found = {}
    for line in text.splitlines():
        match = re.match(rf"  (?P<options>(?:{OPTION}(?:, )?)+)(?: (?P<argument>[A-Z][A-Z/]*))?(?:  |$)", line)
        for option in re.findall(OPTION, match["options"]) if match else []:
            found[option] = match["argument"] or ""
        for option in re.findall(rf"^quorlin\S* {OPTION}", line):
            found[option] = None
    return found


def agree(helped, described):
    return set(helped) == set(described) and all(argument in (None, described[option]) for option, argument in helped.items())


def of_page(text):
    """{option: argument} of the headings of the section OPTIONS, and of none other."""
    section = re.search(r"^\.SH OPTIONS$(.*?)^\.SH", text, re.M | re.S).group(1)
    found = {}
    for heading in re.findall(r"^\.TP\n(.*)$", section, re.M):
        words = re.sub(r"\\f.|\\&", "", heading).replace("\\-", "-")
        match = re.match(rf'\.B[IR]? {OPTION}(?: "? ?([A-Z][A-Z/]*)"?)?$', words)
        if match:
            found[match.group(1)] = match.group(2) or ""
    return found


def of_completion(text, name):
    """The options of a program that the completion for bash offers: by its function, or in one line."""
    function = re.search(rf"^_{name.replace('-', '_')}\(\) \{{$(.*?)^\}}$", text, re.M | re.S)
    if function is None:
        return set(re.search(rf"^complete .*-W '([^']*)' {name}$", text, re.M).group(1).split())
    offered = re.findall(r"compgen -W \$'((?:--?[a-z0-9-]+(?:\\n)?)+)'", function.group(1))
    return {option for each in offered for option in each.split("\\n")}


def main():
    pages, completion, programs = Path(sys.argv[1]), Path(sys.argv[2]).read_text(encoding="utf-8"), sys.argv[3:]
    problems = []
    for program in programs:
        name = Path(program).name
        page = pages / f"{name}.1"
        helped = of_help(subprocess.run([program, "--help"], capture_output=True, text=True, timeout=60, check=True).stdout)
        described = of_page(page.read_text(encoding="utf-8"))
        if len(helped) < 2:
            problems.append(f"{name}: --help names only {sorted(helped)}")
        if not agree(helped, described):
            problems.append(f"{name}: --help has {helped}, {page.name} has {described}")
        completed = of_completion(completion, name)
        if completed != set(helped):
            problems.append(f"{name}: --help has {sorted(helped)}, completion has {sorted(completed)}")
        if shutil.which("man"):
            told = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", str(page)], capture_output=True,
                                  text=True, check=False, env={"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "MANROFFSEQ": ""})
            problems += [f"{page.name}: {line}" for line in told.stderr.splitlines() if "warning" in line or "error" in line]
    print("\n".join(problems) or f"{len(programs)} programs and their pages agree")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
