#!/usr/bin/env python3
"""test_watch.py PROGRAM: --watch takes what comes, leaves what was there and what it makes, and stops in order."""
import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import time
import unittest

import batch_world
from batch_world import BatchTest, png


# Inside a namespace of its own a user may lower how many folders the system watches for it.
FEW_WATCHES = ["unshare", "--user", "--map-root-user", "sh", "-c",
               'echo 6 > /proc/sys/user/max_inotify_watches && exec "$0" "$@"']


def can_lower_watches():
    try:
        return subprocess.run([*FEW_WATCHES, "true"], capture_output=True, check=False).returncode == 0
    except FileNotFoundError:
        return False


class Watching(BatchTest):
    def setUp(self):
        super().setUp()
        png(self.path("in/old.png"))
        self.plain(folder="Web")

    def begin(self, *arguments, before=()):
        """A watch that has begun: its report is there."""
        begun = self.path("report").stat().st_mtime_ns if self.path("report").exists() else 0
        process = self.start("--watch", "--report", "report", *arguments, "r.quorlin", "in", before=before)
        self.process = process
        self.until(lambda: self.path("report").exists() and (begun == 0 or "--resume" in arguments or
                                                             self.path("report").stat().st_mtime_ns != begun))
        if "--resume" in arguments:
            self.until(lambda: self.has_open("report"))
        return process

    def has_open(self, name):
        """Whether the program holds this file now; it opens and closes others while one looks."""
        for descriptor in pathlib.Path(f"/proc/{self.process.pid}/fd").glob("*"):
            with contextlib.suppress(FileNotFoundError):
                if os.readlink(descriptor) == os.path.realpath(self.path(name)):
                    return True
        return False

    def until(self, happens, seconds=30):
        end = time.monotonic() + seconds
        while not happens():
            if time.monotonic() > end:
                self.process.kill()  # or the end of this test would wait for it
                self.fail("it did not happen")
            time.sleep(0.02)

    def lines_now(self):
        text = self.path("report").read_text().splitlines()
        return [json.loads(line) for line in text if line.startswith('{"input"') and line.endswith("}")]

    def end(self, process, status=3):
        process.send_signal(signal.SIGTERM)
        process.communicate(timeout=30)
        self.assertEqual(process.returncode, status)

    def test_takes_what_comes(self):
        with self.begin() as process:
            png(self.path("in/a.png"))
            png(self.path("elsewhere/b.png"))
            os.makedirs(self.path("in/sub"))
            os.rename(self.path("elsewhere/b.png"), self.path("in/sub/b.png"))
            self.until(lambda: len(self.lines_now()) >= 2)
            time.sleep(3)  # results would have been taken by now
            self.end(process)
        lines = self.checked(self.path("report").read_bytes())
        self.assertEqual({line["input"] for line in lines}, {str(self.path("in/a.png")), str(self.path("in/sub/b.png"))})
        self.assertEqual(self.files("in"), ["Web/a.png", "a.png", "old.png", "sub/Web/b.png", "sub/b.png"])

    def test_resumes_what_came_since(self):
        with self.begin() as process:
            png(self.path("in/a.png"))
            self.until(lambda: len(self.lines_now()) == 1)
            self.end(process)
        png(self.path("in/b.png"))
        with self.begin("--resume", "report") as process:
            self.until(lambda: len(self.lines_now()) == 2)
            png(self.path("in/a.png"), shade=7)  # another picture by the name of one that is done
            self.until(lambda: len(self.lines_now()) == 3)
            self.end(process)
        self.assertEqual([os.path.basename(line["input"]) for line in self.lines_now()], ["a.png", "b.png", "a.png"])
        self.assertEqual(self.files("in/Web"), ["a (2).png", "a.png", "b.png"])

    def test_two_watchers(self):
        with self.begin() as process:
            self.run_batch("--watch", "r.quorlin", "in", status=2)
            self.assertIn("watched for this recipe already", self.said)
            self.plain(name="other")
            with self.start("--watch", "--report", "other", "r.quorlin", "in") as other:
                self.until(lambda: self.path("other").exists())
                self.end(other)
            self.end(process)
        self.assertEqual(self.files("in"), ["old.png"])

    def test_what_cannot_be_watched(self):
        self.run_batch("--watch", "r.quorlin", "in/old.png", status=2)
        self.run_batch("--watch", "r.quorlin", "none", status=2)
        self.run_batch("--watch", "--from", "-", "r.quorlin", "in", status=2)

    def test_a_folder_that_goes_away(self):
        with self.begin() as process:
            os.rename(self.path("in"), self.path("gone"))
            _, said = process.communicate(timeout=30)
            self.assertEqual(process.returncode, 1)
            self.assertIn(b"is gone", said)

    def test_a_folder_that_is_deleted(self):
        with self.begin() as process:
            self.path("in/old.png").unlink()
            shutil.rmtree(self.path("in"))
            _, said = process.communicate(timeout=30)
            self.assertEqual(process.returncode, 1)
            self.assertIn(b"is gone", said)

    @unittest.skipUnless(can_lower_watches(), "the limit of watched folders cannot be lowered here")
    def test_more_folders_than_the_system_watches(self):
        with self.begin(before=FEW_WATCHES) as process:
            for i in range(12):
                png(self.path(f"in/day {i}/a.png"))
            self.until(lambda: len(self.lines_now()) == 12)
            png(self.path("in/day 11/b.png"))  # if nothing mentions it
            png(self.path("in/day 12/c.png"))
            self.until(lambda: len(self.lines_now()) == 14)
            time.sleep(5)  # results would have been taken by now
            process.send_signal(signal.SIGTERM)
            _, said = process.communicate(timeout=30)
        self.assertEqual(process.returncode, 3)
        self.assertIn(b"from now on they are looked through", said)
        self.assertEqual(len(self.lines_now()), 14)
        self.assertEqual(len({line["input"] for line in self.lines_now()}), 14)


if __name__ == "__main__":
    batch_world.main()
