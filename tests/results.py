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


def passed(paths):
    counts = {"run": 0, "fail": 0, "notrun": 0}
    for case in cases(paths):
        # A program that could not be started is not one that had nothing to do.
        missing = case.get("status") == "notrun" and "SKIP" not in skip_reason(case)
        status = "fail" if missing else case.get("status")
        counts[status] = counts.get(status, 0) + 1
    return f"{counts['run']} passed, {counts['fail']} failed, {counts['notrun']} skipped"


def skip_reason(case):
    reason = case.find("skipped")
    return "" if reason is None else reason.get("message", "")


def skipped(paths):
    count = 0
    for case in cases(paths):
        said = case.findtext("system-out") or ""
        if case.get("status") == "notrun":
            count += bool(re.search(r"\bcorpus\b", said, re.I))
        else:
            count += len(SKIPPED_FUNCTION.findall(said))
    return f"{count} {'test was' if count == 1 else 'tests were'} skipped for lack of the corpus"


if __name__ == "__main__":
    print({"passed": passed, "skipped": skipped}[sys.argv[1]](sys.argv[2:]))
