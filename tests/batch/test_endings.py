#!/usr/bin/env python3
"""test_endings.py PROGRAM: signals and reports that can no longer be written end a batch in order."""
import json
import os
import random
import resource
import signal
import subprocess
import time
import unittest

import batch_world
from batch_world import BatchTest, png

MOMENTS = 50 if os.environ.get("QUORLIN_SLOW") else 6
LONGEST_SECONDS = 10


class Signals(BatchTest):
    def setUp(self):
        super().setUp()
        for i in range(12):
            png(self.path(f"in/p{i}.png"), 500, 400, i)
        self.recipe({"quorlin": 1, "operations": [{"do": "turn", "degrees": 30}],
                     "outputs": [{"type": "png", "folder": "1"}, {"type": "tiff", "folder": "2/{name}"}]})
        begin = time.monotonic()
        self.whole = self.lines("--to", "whole", "r.quorlin", "in")
        self.seconds = time.monotonic() - begin

    def check_stopped(self, folder, report, status):
        """What the report has is there and nothing else is."""
        lines = self.checked(report) if report else []
        self.assertEqual(self.files(folder) if self.path(folder).exists() else [],
                         sorted(os.path.relpath(line["output"], self.path(folder)) for line in lines))
        for line in lines:
            self.assertEqual(line["status"], "OK")
            before = next(each for each in self.whole if (each["input"], each["index"]) == (line["input"], line["index"]))
            self.assertEqual(open_bytes(line["output"]), open_bytes(before["output"]))
        if status == 0:
            self.assertEqual(len(lines), len(self.whole))
        for picture in {line["input"] for line in lines}:
            self.assertEqual(sum(line["input"] == picture for line in lines), 2)

    def test_at_any_moment(self):
        stopped = 0
        for moment in range(MOMENTS):
            which = random.choice([signal.SIGINT, signal.SIGTERM, signal.SIGHUP])
            wait = self.seconds * (moment + random.random()) / MOMENTS
            with self.subTest(signal=which, wait=wait), self.start("--report", "-", "--to", f"out{moment}", "r.quorlin", "in",
                                                                   stderr=subprocess.DEVNULL) as process:
                time.sleep(wait)
                process.send_signal(which)
                begin = time.monotonic()
                report, _ = process.communicate(timeout=60)
                self.assertLess(time.monotonic() - begin, LONGEST_SECONDS)
                if process.returncode == -which: # before the program could say what it does with signals
                    self.assertFalse(self.path(f"out{moment}").exists())
                    continue
                self.assertIn(process.returncode, (0, 3))
                stopped += process.returncode == 3
                self.check_stopped(f"out{moment}", report, process.returncode)
        self.assertGreater(stopped, 0)

    def test_stops_while_it_waits_for_names(self):
        with self.start("--report", "-", "--to", "out", "--from", "-", "r.quorlin", stdin=subprocess.PIPE) as process:
            process.stdin.write(b"in/p0.png\nin/p1")
            process.stdin.flush()
            lines = [process.stdout.readline(), process.stdout.readline()]
            self.assertEqual([json.loads(line)["index"] for line in lines], [0, 1])
            process.send_signal(signal.SIGTERM)
            report, _ = process.communicate(timeout=60)
            self.assertEqual(process.returncode, 3)
            self.check_stopped("out", b"".join(lines) + report, 3)

    def test_stops_while_nobody_writes_names(self):
        os.mkfifo(self.path("names"))
        with self.start("--report", "report", "--to", "out", "--from", "names", "r.quorlin", stderr=subprocess.DEVNULL) as process:
            while not self.path("report").exists():
                time.sleep(0.02)
            process.send_signal(signal.SIGTERM)
            self.assertEqual(process.wait(timeout=LONGEST_SECONDS), 3)
        self.assertEqual(list(json.loads(self.path("report").read_text())), ["summary"])

    def test_takes_names_from_a_pipe(self):
        os.mkfifo(self.path("names"))
        with self.start("--report", "-", "--to", "out", "--from", "names", "r.quorlin") as process:
            with open(self.path("names"), "w", encoding="utf-8") as names:
                names.write("in/p0.png\nin/p1.png\n")
            report, _ = process.communicate(timeout=100)
            self.assertEqual(process.returncode, 0)
        self.assertEqual(len(self.checked(report)), 4)

    def test_resumes_what_was_stopped(self):
        with self.start("--report", "report", "--to", "out", "r.quorlin", "in", stderr=subprocess.DEVNULL) as process:
            time.sleep(self.seconds / 2)
            process.send_signal(signal.SIGINT)
        if not self.path("report").exists():
            self.skipTest("the signal came before the report")
        self.run_batch("--report", "report", "--resume", "report", "--to", "out", "r.quorlin", "in")
        lines = [json.loads(line) for line in self.path("report").read_text().splitlines()]
        done = [(line["input"], line["index"]) for line in lines if "input" in line]
        self.assertEqual(len(done), len(set(done)))
        self.assertEqual(self.files("out"), self.files("whole"))
        for name in self.files("whole"):
            self.assertEqual(open_bytes(self.path("out") / name), open_bytes(self.path("whole") / name))


class Reports(BatchTest):
    def setUp(self):
        super().setUp()
        for name in "abcdef":
            png(self.path(f"in/{name}.png"))
        self.plain()

    def end(self, report, **options):
        self.run_batch("--report", report, "--to", "out", "r.quorlin", "in", status=1, **options)
        self.assertIn(f"{report} can no longer be written", self.said)
        self.assertFalse([name for name in self.files("out") if "quorlin" in name])
        self.assertLess(len(self.files("out")), 6)

    def test_a_disk_that_is_full_from_the_start(self):
        if not os.path.exists("/dev/full"):
            self.skipTest("there is no device that is always full")
        self.end("/dev/full")

    def test_a_disk_that_gets_full(self):
        self.end("report", preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (500, 500)))
        first = self.path("report").read_bytes().splitlines()[0]
        self.assertEqual(json.loads(first)["status"], "OK")

    def test_a_reader_that_goes_away(self):
        ours, theirs = os.pipe()
        os.close(ours)
        self.end("-", stdout=theirs)
        os.close(theirs)


def open_bytes(path):
    with open(path, "rb") as file:
        return file.read()


if __name__ == "__main__":
    batch_world.main()
