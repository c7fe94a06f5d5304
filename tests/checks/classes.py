#!/usr/bin/env python3
"""classes.py ROOT: no two C++ classes have the same name.

The compiler sees one file at a time and reports nothing if two files that are linked into one program define different
classes of the same name: the linker keeps the constructor of one of them for both. Classes that only their own file
uses belong in an unnamed namespace.
"""
import re
import sys
from collections import defaultdict

import source_tree as tree

NAMESPACE = re.compile(r"^namespace(?:\s+([\w:]+))?\s*\{", re.M)
CLASS = re.compile(r"(?<!enum )\b(?:class|struct|union)\s+(?:Q_\w+_EXPORT\s+)?([\w:]+)(?:\s+final)?\s*(?::(?!:)[^;{}()]*)?\{")


def classes(text):
    """(line, full name) of every class visible to other files: not inside others, functions or unnamed namespaces."""
    code = re.sub(r"^#.*$", lambda m: " " * len(m.group()), tree.code_only(text), flags=re.M)
    opened = {m.end() - 1: m.group(1) or "" for m in NAMESPACE.finditer(code)}
    defined = {m.end() - 1: (m.start(), m.group(1)) for m in CLASS.finditer(code)}
    around = []  # the names of the namespaces, None for any other brace
    for match in re.finditer(r"[{}]", code):
        place = match.start()
        if match.group() == "}":
            if around:
                around.pop()
            continue
        if place in defined and all(around) and not is_template(code, defined[place][0]):
            start, name = defined[place]
            yield code.count("\n", 0, start) + 1, "::".join([*around, name])
        around.append(opened.get(place))


def is_template(code, start):
    return code[:start].rstrip().endswith(">")


def main():
    root = sys.argv[1]
    found = defaultdict(list)
    for path in tree.files(root, tree.CPP):
        for line, name in classes(tree.read(path)):
            found[name].append(f"{path.relative_to(root)}:{line}")
    problems = [f"{name} is defined more than once: {', '.join(places)}" for name, places in sorted(found.items()) if len(places) > 1]
    return tree.report(problems, f"{len(found)} classes, each with a name of its own")


if __name__ == "__main__":
    sys.exit(main())
