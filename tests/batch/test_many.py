#!/usr/bin/env python3
"""test_many.py PROGRAM: a list of inputs of any length, in bounded memory, and no line slower than the first.

Most of its paths lead nowhere, which costs the main process as much as pictures do and the workers nothing. A million of them in a
slow run.
"""
import json
import os
import statistics
import subprocess
import threading
import time
import unittest

import batch_world
from batch_world import BatchTest, png

SLOW = bool(os.environ.get("QUORLIN_SLOW"))
MANY = 1_000_000 if SLOW else 60_000
SOME = 10_000
MOST_MEGABYTES = 500
# The last lines must not cost more than the first. The middle one of some stretches at either end counts, in time of the processor.
# What runs beside it shows in that too, so the long run has the machine to itself; a short one only shows what grows.
STRETCHES = 20 if SLOW else 2
MOST_SLOWER = 1.2 if SLOW else 2


def processor_seconds(process):
    with open(f"/proc/{process.pid}/stat", encoding="ascii") as stat:
        user, system = stat.read().rpartition(")")[2].split()[11:13]
    return (int(user) + int(system)) / os.sysconf("SC_CLK_TCK")


class Many(BatchTest):
    def test_the_first_does_not_wait(self):
        png(self.path("a.png"))
        self.plain(folder="out")
        waits = []
        for _ in range(3):
            with self.start("--report", "-", "--from", "-", "r.quorlin", stdin=subprocess.PIPE) as process:
                time.sleep(1)  # it has begun
                begin = time.monotonic()
                process.stdin.write(b"a.png\n")
                process.stdin.flush()
                line = json.loads(process.stdout.readline())
                waits.append(time.monotonic() - begin)
                self.assertEqual(line["status"], "OK")
                process.communicate()
        self.assertLess(min(waits), 1, waits)

    def test_a_list_without_end(self):
        png(self.path("a.png"))
        self.recipe({"quorlin": 1, "outputs": [{"type": "png", "name": "{counter:1}-{name}", "folder": "Web"}]})
        with self.start("--quiet", "--to", "/nowhere/out", "--report", "-", "--from", "-", "r.quorlin", stdin=subprocess.PIPE,
                        stderr=subprocess.DEVNULL) as process:
            def feed():
                with process.stdin:
                    for i in range(MANY):
                        process.stdin.write(b"/nowhere/pictures/%03d/IMG_%07d.jpg\n" % (i // 1000, i))

            feeder = threading.Thread(target=feed)
            feeder.start()
            marks = []
            for count, line in enumerate(process.stdout, 1):
                if count % SOME == 0:
                    marks.append(processor_seconds(process))
                if count == MANY:
                    with open(f"/proc/{process.pid}/status", encoding="ascii") as status:
                        megabytes = next(int(text.split()[1]) for text in status if text.startswith("VmHWM")) / 1024
            feeder.join()
        self.assertEqual(process.wait(), 1)
        self.assertEqual(json.loads(line)["summary"]["inputs"], MANY)
        taken = [after - before for before, after in zip(marks, marks[1:])]
        first, last = statistics.median(taken[:STRETCHES]), statistics.median(taken[-STRETCHES:])
        print(f"{MANY} inputs: {megabytes:.0f} MB; {SOME} lines took {first:.2f} s of a processor at the beginning, {last:.2f} s at the end")
        self.assertLess(megabytes, MOST_MEGABYTES)
        self.assertLess(last / first, MOST_SLOWER)


if __name__ == "__main__":
    batch_world.main()
