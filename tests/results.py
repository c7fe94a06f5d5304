#!/usr/bin/env python3
"""results.py passed|skipped FILE...: sums up the files that ctest --output-junit wrote, in one line. results.py demand
   FILE NAME...: fails if one of these tests was skipped or is missing.

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


def not_run(path, names):
    """Those of the tests that were left out."""
    there = {case.get("name") for case in cases([path]) if status_of(case) != "notrun"}
    return [name for name in names if name not in there]


def demand(path, names):
    left_out = not_run(path, names)
    for name in left_out:
        print(f"{name} was left out")
    return 1 if left_out else 0


if __name__ == "__main__":
    if sys.argv[1] == "demand":
        sys.exit(demand(sys.argv[2], sys.argv[3:]))
    print({"passed": passed, "skipped": skipped}[sys.argv[1]](sys.argv[2:]))
