#!/usr/bin/env python3
"""results.py passed|skipped FILE...: what the files that ctest --output-junit wrote come to, in one line.

passed:  how many programs passed, failed and were skipped.
skipped: how many tests were skipped because the corpus of real pictures is not there: whole programs, and single functions
         of programs that did the rest.
"""
import re
import sys
import xml.etree.ElementTree as ElementTree

# "SKIP   : TestCrop::keepsTheProfile(grey) The corpus is not there"
SKIPPED_FUNCTION = re.compile(r"^SKIP\s*: .*\bcorpus\b", re.I | re.M)


def cases(paths):
    for path in paths:
        yield from ElementTree.parse(path).iter("testcase")


def status_of(case):
    """run, fail or notrun. A program that could not be started failed; it is not one that had nothing to do."""
    status = case.get("status")
    reason = case.find("skipped")
    was_left_out = reason is not None and reason.get("message", "").startswith("SKIP")
    return "fail" if status == "notrun" and not was_left_out else status


def passed(paths):
    statuses = [status_of(case) for case in cases(paths)]
    return f"{statuses.count('run')} passed, {statuses.count('fail')} failed, {statuses.count('notrun')} skipped"


def skipped(paths):
    count = 0
    for case in cases(paths):
        said = case.findtext("system-out") or ""
        if status_of(case) == "notrun":
            count += bool(re.search(r"\bcorpus\b", said, re.I))
        else:
            count += len(SKIPPED_FUNCTION.findall(said))
    return f"{count} {'test was' if count == 1 else 'tests were'} skipped for lack of the corpus"


if __name__ == "__main__":
    print({"passed": passed, "skipped": skipped}[sys.argv[1]](sys.argv[2:]))
