#!/usr/bin/env python3
"""The verdict of the benchmarks on tables made up for it."""
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "bench"))
import verdict  # noqa: E402

TABLE = """### {task}  (10 images, 5 rounds; ms per image; ratios to "limit fast 2t", round by round)

| command | wall ms | min–max | user ms | sys ms | peak RSS MB | out MB | wall ratio | CPU ratio | note |
|---|--:|--:|--:|--:|--:|--:|--:|--:|---|
| limit fast 2t | 20.0 | 19–21 | 35.0 | 5.0 | 18 | 0.10 | 1.00 | 1.00 |  |
| vipsthumbnail | 74.0 | 70–80 | 80.0 | 15.0 | 52 | 0.10 | 3.50 | 2.50 |  |
| CONTENDER | 50.0 | 48–60 | {user} | 5.0 | {memory} | 0.10 | 2.50 | 1.50 | {note} |
"""


def faults(user=40.0, memory=60, note="", task="a", text=TABLE):
    rows = verdict.tables(text.format(task=task, user=user, memory=memory, note=note))
    return [fault for name, row in rows.items() for fault in verdict.judge(name, row)[1]]


class Verdict(unittest.TestCase):
    def test_accepts_what_keeps_to_the_bounds(self):
        self.assertEqual(faults(), [])

    def test_refuses_more_processor_time_than_the_thumbnailer(self):
        self.assertEqual(len(faults(user=90.0)), 1)

    def test_refuses_memory_at_the_bound(self):
        self.assertEqual(faults(memory=119), [])
        self.assertEqual(len(faults(memory=120, task="memory")), 1)

    def test_refuses_a_run_that_failed(self):
        self.assertEqual(len(faults(note="exit 1: no such file")), 1)

    def test_refuses_a_table_without_quorlin(self):
        self.assertEqual(len(faults(text=TABLE.replace("CONTENDER", "somebody"))), 1)

    def test_holds_conversions_against_every_program_but_limits(self):
        self.assertEqual(faults(task="bmp"), [])
        found = faults(user=90.0, task="bmp")
        self.assertEqual(len(found), 1)
        self.assertIn("vipsthumbnail", found[0])

    def test_lets_programs_that_do_less_be_ahead_by_so_much(self):
        text = TABLE.replace("vipsthumbnail", "gm mogrify P2")
        self.assertEqual(faults(user=140.0, task="gif", text=text), [])
        self.assertEqual(len(faults(user=150.0, task="gif", text=text)), 1)

    def test_prints_ratios_to_each_of_the_others(self):
        lines, _ = verdict.judge("a", verdict.tables(TABLE.format(task="a", user=40.0, memory=60, note=""))["a"])
        self.assertEqual(len(lines), 3)
        self.assertIn("to vipsthumbnail: 0.68 wall, 0.47 CPU", lines[2])


if __name__ == "__main__":
    unittest.main()
