#!/usr/bin/env python3
"""What tests/results.py counts in the results of ctest."""
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1]))
import results  # noqa: E402

RESULTS = """<?xml version="1.0" encoding="UTF-8"?>
<testsuite>
    <testcase name="good" status="run"><system-out>PASS   : Test::a()
PASS   : Test::leavesTheCorpusAlone()</system-out></testcase>
    <testcase name="partly" status="run"><system-out>SKIP   : Test::a() needs the corpus of real pictures
SKIP   : Test::b(row) needs the corpus of real pictures
SKIP   : Test::c() nobody else to become</system-out></testcase>
    <testcase name="bad" status="fail"><system-out>FAIL!  : Test::a()</system-out></testcase>
    <testcase name="skipped" status="notrun"><skipped message="SKIP_RETURN_CODE=77"/>
        <system-out>no corpus</system-out></testcase>
    <testcase name="elsewhere" status="notrun"><skipped message="SKIP_RETURN_CODE=77"/>
        <system-out>no exiftool</system-out></testcase>
    <testcase name="missing" status="notrun"><skipped message="Unable to find executable"/>
        <system-out>Unable to find executable: tst_corpus</system-out></testcase>
</testsuite>
"""


class Results(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = Path(folder.name) / "results.xml"
        self.path.write_text(RESULTS, encoding="utf-8")

    def test_programs_are_counted_and_a_missing_one_failed(self):
        self.assertEqual(results.passed([self.path]), "2 passed, 2 failed, 2 skipped")
        self.assertEqual(results.passed([self.path, self.path]), "4 passed, 4 failed, 4 skipped")

    def test_only_what_lacks_the_corpus_is_said_to(self):
        self.assertEqual(results.skipped([self.path]), "3 tests were skipped for lack of the corpus")

    def test_what_is_demanded_must_have_run(self):
        self.assertEqual(results.not_run(self.path, ["good", "bad"]), [])
        self.assertEqual(results.not_run(self.path, ["good", "skipped", "nowhere"]), ["skipped", "nowhere"])


if __name__ == "__main__":
    unittest.main()
