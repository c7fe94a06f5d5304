"""What the tests of quorlin-batch have in common: pictures, recipes, runs."""
import json
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

PROGRAM = ""


def png(path, width=12, height=8, shade=90):
    """Writes a picture whose pixels depend on its place and its shade."""
    rows = b"".join(b"\0" + bytes((x * 7 + y * 3 * c + shade) % 256 for x in range(width) for c in range(3))
                    for y in range(height))

    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

    path = Path(os.fsdecode(path))
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))
    return path


class BatchTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="batch-"))
        self.addCleanup(shutil.rmtree, os.fsencode(self.folder), True)

    def path(self, name):
        return self.folder / name

    def recipe(self, recipe, name="r.quorlin"):
        self.path(name).write_text(recipe if isinstance(recipe, str) else json.dumps(recipe))
        return self.path(name)

    def plain(self, **output):
        return self.recipe({"quorlin": 1, "outputs": [{"type": "png", **output}]})

    def start(self, *arguments, before=(), **options):
        """The program, started by the command `before` if one is given."""
        options = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
        environment = {"PATH": os.environ["PATH"], "XDG_CACHE_HOME": str(self.folder / "cache"), **options.pop("env", {})}
        return subprocess.Popen([*before, PROGRAM, *arguments], cwd=self.folder, env=environment, **options)

    def run_batch(self, *arguments, status=0, given=None, **options):
        if given is not None:
            options["stdin"] = subprocess.PIPE
        with self.start(*arguments, **options) as process:
            out, error = process.communicate(given, timeout=120)
        self.said = error.decode(errors="surrogateescape") if error else ""
        self.assertEqual(process.returncode, status, self.said)
        return out

    def lines(self, *arguments, status=0, **options):
        """The lines of the report without the summary, which is checked against them."""
        return self.checked(self.run_batch("--report", "-", *arguments, status=status, **options))

    def by_input(self, lines):
        """Lines by the names of their inputs: they are in the order in which workers finished them."""
        return {os.path.basename(line["input"]): line for line in lines}

    def checked(self, report):
        lines = [json.loads(line) for line in report.decode().splitlines()]
        summary = lines.pop()["summary"]
        count = lambda *words: sum(line["status"] in words for line in lines)
        self.assertEqual(summary["ok"], count("OK", "Planned"))
        self.assertEqual(summary["failed"], count("Failed"))
        self.assertEqual(summary["notSupported"], count("Not Supported"))
        self.assertEqual(summary["skipped"], count("Skipped"))
        self.assertEqual(summary["inputs"], len({line["input"] for line in lines}))
        self.assertEqual(summary["bytes"], sum(line["bytes"] for line in lines))
        self.assertEqual(set(summary), {"inputs", "ok", "failed", "notSupported", "skipped", "bytes", "seconds", "jobs"})
        for line in lines:
            self.check_line(line)
        return lines

    def check_line(self, line):
        self.assertEqual(set(line), {"input", "output", "index", "status", "reason", "type", "width", "height", "bytes",
                                     "ms", "lossless", "losses", "recipe"})
        self.assertTrue(line["input"].startswith("/"))
        self.assertRegex(line["recipe"], "^[0-9a-f]{12}$")
        if line["status"] == "OK":
            self.assertEqual(os.path.getsize(os.fsencode(line["output"].encode("utf-8", "surrogateescape"))), line["bytes"])
        elif line["status"] in ("Failed", "Not Supported"):
            self.assertTrue(line["reason"])
            self.assertIsNone(line["output"])
        else:
            self.assertIn(line["status"], ("Skipped", "Planned"))

    def files(self, folder):
        """All files below, hidden ones too, by their paths in it."""
        return sorted(os.path.relpath(os.path.join(where, name), self.path(folder))
                      for where, _, names in os.walk(self.path(folder)) for name in names)


def main():
    global PROGRAM
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    sys.modules["batch_world"].PROGRAM = PROGRAM
    unittest.main()
