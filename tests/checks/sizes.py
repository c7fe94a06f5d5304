#!/usr/bin/env python3
"""sizes.py ROOT: how long functions and files are, and how many files stand side by side.

Small on purpose: what is above the mark is listed for the next review, what is clearly above it fails. A folder is a list
of contents: more sources than can be read as one have sub-folders named for their topics.
"""
import re
import sys
from collections import Counter
from pathlib import Path

import source_tree as tree

FUNCTION_MARK, FUNCTION_LIMIT = 40, 60
FILE_MARK, FILE_LIMIT = 400, 600
FOLDER_LIMIT = 25

CONTROL = re.compile(r"\b(if|for|while|switch|catch|do|else|try|return|namespace|class|struct|union|enum|extern)\b")
# What may come between the parentheses of a signature and its body.
AFTER_SIGNATURE = re.compile(r"\)\s*((const|noexcept|override|final|mutable|&&?|->\s*[\w:<>,\s*&]+|:[^;{}]*(\{[^{}]*\}[^;{}]*)*)\s*)*$")
SCRIPT_SIGNATURE = re.compile(r"(\bfunction\b[^{}]*\)|[\w$]+\s*\([^{}]*\)|=>)\s*$")


def statement_before(code, brace):
    """The text between the last statement's end and a brace, at most one signature long."""
    start = max(code.rfind(mark, 0, brace) for mark in ";}{") + 1
    return code[start:brace], start


def opens_function(code, brace, script):
    head, start = statement_before(code, brace)
    head = re.sub(r"^\s*#.*$", "", head, flags=re.M)
    # An access label or a preprocessor line is no part of the signature.
    head = re.sub(r"^\s*(public|private|protected|Q_SIGNALS|[\w ]*Q_SLOTS)\s*:(?!:)", "", head)
    if CONTROL.match(head.strip()):
        return None
    if not (SCRIPT_SIGNATURE.search(head) if script else AFTER_SIGNATURE.search(head)):
        return None
    lead = len(code[start:brace]) - len(code[start:brace].lstrip())
    return start + lead


def functions(text, script):
    """(first line, number of lines) of every function.

    Lambdas and arrows count with the function around them. A named function inside a script's function counts for itself:
    the outer one is then what a class is elsewhere, state and the functions that share it.
    """
    # Values in braces open no body: "b = {}", "m_a{1}".
    code = re.sub(r"(?<==)\s*\{\s*\}|(?<=\w)\{[^{};]*\}", lambda m: re.sub(r"[^\n]", " ", m.group()), tree.code_only(text))
    depth, stack, found = 0, [], []
    for match in re.finditer(r"[{}]", code):
        if match.group() == "{":
            depth += 1
            start = opens_function(code, match.start(), script)
            named = script and start is not None and re.match(r"(export )?(default )?function\b\*?\s*\w", code[start:])
            if start is not None and (not stack or named):
                stack.append([depth, start, 0])
        else:
            if stack and stack[-1][0] == depth:
                _, start, inner = stack.pop()
                first = code.count("\n", 0, start) + 1
                lines = code.count("\n", 0, match.start()) + 2 - first
                found.append((first, lines - inner))
                if stack:
                    stack[-1][2] += lines
            depth -= 1
    return sorted(found)


def measure(root):
    long_functions, long_files, lengths = [], [], []
    for path in tree.files(root, {".h", ".cpp", ".js", ".py"}):
        where, text = path.relative_to(root), tree.read(path)
        lines = text.count("\n")
        if lines > FILE_MARK:
            long_files.append((lines, FILE_LIMIT, f"{where}: {lines} lines"))
        if path.suffix != ".py":
            for first, count in functions(text, path.suffix == ".js"):
                lengths.append(count)
                if count > FUNCTION_MARK:
                    long_functions.append((count, FUNCTION_LIMIT, f"{where}:{first}: a function of {count} lines"))
    return long_functions + long_files, lengths


def crowded_folders(root):
    """(folder, number of sources) for every folder with more of them side by side than the limit."""
    sources = Counter(path.parent for path in tree.files(root, {".h", ".cpp", ".js", ".ui"}))
    return sorted((str(folder.relative_to(root)), count) for folder, count in sources.items() if count > FOLDER_LIMIT)


def main():
    root = Path(sys.argv[1]).resolve()
    marked, lengths = measure(root)
    for size, limit, line in sorted(marked, reverse=True):
        print(f"for review: {line} (mark {FUNCTION_MARK if limit == FUNCTION_LIMIT else FILE_MARK})")
    problems = [f"{line}, the limit is {limit}" for size, limit, line in marked if size > limit]
    problems += [f"{folder}: {count} sources side by side, the limit is {FOLDER_LIMIT}"
                 for folder, count in crowded_folders(root)]
    if not lengths:
        problems.append("no function found")
    lengths.sort()
    middle = f"{len(lengths)} functions, median {lengths[len(lengths) // 2]} lines, " \
             f"nine in ten at most {lengths[len(lengths) * 9 // 10]}" if lengths else ""
    return tree.report(problems, middle)


if __name__ == "__main__":
    sys.exit(main())
