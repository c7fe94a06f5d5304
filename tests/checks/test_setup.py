#!/usr/bin/env python3
"""tools/setup.sh on other machines: simulated by stand-ins for apt-get, dpkg-query, id and sudo."""
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SETUP = Path(__file__).resolve().parents[2] / "tools/setup.sh"
TOOLS = "bash env cat comm sort sed tail tr dirname mktemp rm printf touch".split()
DPKG_QUERY = """#!/bin/bash
# Says of each requested package that a file of its name is in the folder of installed ones.
for package in "${@:3}"; do [ ! -e "$INSTALLED/$package" ] || echo "$package installed"; done
"""
APT_GET = """#!/bin/bash
echo "apt-get $*" >> "$CALLS"
case "$*" in *" install "*) [ -z "$APT_FAILS" ] || { echo "E: no such luck" >&2; exit 100; } ;; *) exit 0 ;; esac
for word in "$@"; do touch "$INSTALLED/$word" 2> /dev/null; done
"""


class Setup(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.bin, self.installed, self.calls = (self.root / name for name in ("bin", "installed", "calls"))
        self.bin.mkdir()
        self.installed.mkdir()
        self.calls.touch()
        (self.root / "tools").mkdir()
        (self.root / "packaging").mkdir()
        shutil.copy(SETUP, self.root / "tools/setup.sh")
        (self.root / "packaging/packages.txt").write_text(
            "# comment build\nbuild g++ cmd:g++\nbuild cmake cmd:cmake\ntest xvfb cmd:Xvfb\n")
        for tool in TOOLS:
            (self.bin / tool).symlink_to(shutil.which(tool))
        self.stand_in("dpkg-query", DPKG_QUERY)
        self.stand_in("apt-get", APT_GET)
        self.user(0)

    def stand_in(self, name, text):
        (self.bin / name).write_text(text)
        (self.bin / name).chmod(0o755)

    def user(self, number):
        self.stand_in("id", f"#!/bin/bash\necho {number}\n")

    def install(self, *packages):
        for package in packages:
            (self.installed / package).touch()

    def run_setup(self, *groups, **more):
        environment = {"PATH": str(self.bin), "INSTALLED": str(self.installed), "CALLS": str(self.calls), "APT_FAILS": ""}
        return subprocess.run(["bash", self.root / "tools/setup.sh", *groups], capture_output=True, text=True,
                              stdin=subprocess.DEVNULL, env={**environment, **more})

    def test_does_nothing_when_all_is_there(self):
        self.install("g++", "cmake")
        answer = self.run_setup("build")
        self.assertEqual((answer.returncode, answer.stdout, answer.stderr), (0, "", ""))
        self.assertEqual(self.calls.read_text(), "")

    def test_installs_only_what_is_missing_as_root(self):
        self.install("g++")
        answer = self.run_setup("build", "test")
        self.assertEqual(answer.returncode, 0, answer.stderr)
        self.assertIn("Installing cmake xvfb", answer.stdout)
        self.assertTrue(self.calls.read_text().rstrip().endswith("--no-install-recommends cmake xvfb"), self.calls.read_text())

    def test_installs_through_sudo(self):
        self.user(1000)
        self.stand_in("sudo", '#!/bin/bash\n[ "$1" != -n ] || shift\necho "sudo $1" >> "$CALLS"\n[ "$1" = true ] || exec "$@"\n')
        (self.bin / "true").symlink_to(shutil.which("true"))
        answer = self.run_setup("build")
        self.assertEqual(answer.returncode, 0, answer.stderr)
        self.assertIn("sudo env", self.calls.read_text())

    def test_names_packages_and_command_where_it_may_not_install(self):
        self.user(1000)
        self.install("g++")
        answer = self.run_setup("build")
        self.assertEqual(answer.returncode, 1)
        self.assertIn("Missing packages: cmake\n", answer.stderr)
        self.assertIn("apt-get install --yes --no-install-recommends cmake", answer.stderr)
        self.assertEqual(self.calls.read_text(), "")

    def test_names_packages_and_command_when_installing_fails(self):
        answer = self.run_setup("build", APT_FAILS="yes")
        self.assertEqual(answer.returncode, 1)
        self.assertIn("no such luck", answer.stderr)
        self.assertIn("apt-get install --yes --no-install-recommends cmake g++", answer.stderr)

    def test_refuses_an_unknown_group(self):
        self.assertEqual(self.run_setup("kitchen").returncode, 2)


if __name__ == "__main__":
    unittest.main()
