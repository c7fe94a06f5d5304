#!/usr/bin/env python3
"""test_scale.py PROGRAM DOCUMENT WAY: one of the ways of docs/scale.md, carried out word for word.

The parts together make what one run makes, byte for byte, with equal names and a counter; nothing is done twice; a part that was
killed is resumed. Skipped, saying why, where the programs of that way are not there.
"""
import json
import os
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import zlib
import struct
from pathlib import Path

PROGRAM, DOCUMENT, WAY = sys.argv[1:]
PICTURES = 48


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(77)


def block(name):
    """A command of the document."""
    found = re.search(rf"^```sh {name}\n(.*?)^```$", Path(DOCUMENT).read_text(), re.M | re.S)
    return found.group(1)


def png(path, shade):
    width, height = 500, 400
    rows = b"".join(b"\0" + bytes((x * 7 + y * 3 * c + shade) % 256 for x in range(width) for c in range(3)) for y in range(height))

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))


class World:
    def __init__(self, folder):
        self.folder = folder
        (folder / "bin").mkdir()
        os.symlink(os.path.abspath(PROGRAM), folder / "bin/quorlin-batch")
        self.environment = {"PATH": f"{folder / 'bin'}:{os.environ['PATH']}", "HOME": str(folder), "USER": "root", "SHELL": "/bin/sh",
                            "XDG_DATA_HOME": str(folder / "data")}
        for i in range(PICTURES):  # names that come again in other folders, and one that is no picture
            png(folder / f"pictures/{i % 7}/p{i % 12}-{i // 24}.png", i)
        (folder / "pictures/broken.png").write_text("no picture")
        (folder / "web.quorlin").write_text(json.dumps({
            "quorlin": 1, "operations": [{"do": "resize", "longest": 90}, {"do": "sharpen"}],
            "outputs": [{"type": "jpeg"}, {"type": "png", "name": "{counter:001} {name}", "folder": "n",
                                           "operations": [{"do": "turn", "degrees": 7}]}]}))
        self.run("quorlin-batch --quiet --report whole.jsonl --to whole web.quorlin pictures", statuses=(1,))

    def run(self, command, statuses=(0,), **more):
        done = subprocess.run(["sh", "-c", command], cwd=self.folder, env={**self.environment, **more}, capture_output=True,
                              text=True, timeout=300, check=False)
        assert done.returncode in statuses, (command, done)
        return done.stdout

    def files(self, folder):
        return {str(path.relative_to(self.folder / folder)): path.read_bytes()
                for path in (self.folder / folder).rglob("*") if path.is_file()}

    def lines(self, *reports):
        lines = [json.loads(line) for report in reports for line in report.read_text(errors="replace").splitlines()
                 if line.endswith("}")]
        return [line for line in lines if "input" in line]

    def check(self):
        whole, parts = self.files("whole"), self.files("results")
        assert set(whole) == set(parts), set(whole) ^ set(parts)
        assert len(whole) == 2 * len(list(self.folder.glob("pictures/*/*.png")))
        for name, content in whole.items():
            assert parts[name] == content, name
        expected = self.lines(self.folder / "whole.jsonl")
        found = self.lines(*self.folder.glob("report-*.jsonl"))
        key = lambda line: (line["input"], line["index"])
        made = [key(line) for line in found if line["status"] == "OK"]
        assert len(made) == len(set(made)), "something was done twice"
        outputs = {key(line): os.path.basename(line["output"] or "") for line in found}
        assert outputs == {key(line): os.path.basename(line["output"] or "") for line in expected}
        if shutil.which("jq"):
            summary = json.loads(self.run(block("merge")))["summary"]
            last = json.loads((self.folder / "whole.jsonl").read_text().splitlines()[-1])["summary"]
            assert summary == {name: last[name] for name in summary} and len(summary) == 6, (summary, last)

    def shared(self):
        self.run(block("shared"), statuses=(0, 1), I="1")
        # Another host, killed half-way and started again.
        command = block("shared")
        process = subprocess.Popen(["sh", "-c", command], cwd=self.folder, start_new_session=True,
                                   env={**self.environment, "I": "2"}, stderr=subprocess.DEVNULL)
        report = self.folder / "report-2.jsonl"
        end = time.monotonic() + 60
        while (not report.exists() or report.stat().st_size < 600) and process.poll() is None and time.monotonic() < end:
            time.sleep(0.002)
        was_killed = process.poll() is None
        if was_killed:
            os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        print("killed in the midst" if was_killed else "ended before it could be killed")
        for part in ("2", "3"):
            self.run(command, statuses=(0, 1), I=part)

    def parallel(self):
        if not shutil.which("parallel"):
            skip("GNU Parallel is not there")
        wrapper = self.folder / "bin/ssh-stand-in"
        hosts = self.folder / "hosts"
        # What ssh gets: options, the host, the command. Both hosts are this machine.
        wrapper.write_text(f'#!/bin/sh\nwhile [ "${{1#-}}" != "$1" ]; do shift; done\necho "$1" >> {hosts}\nshift\n[ "$1" = -- ] && shift\nexec sh -c "$*"\n')
        wrapper.chmod(0o755)
        # The number of those that failed is its status: one part has the broken picture.
        self.run(block("parallel"), statuses=(1,), PARALLEL_SSH=str(wrapper))
        assert set(hosts.read_text().split()) >= {"host1", "host2"}

    def slurm(self):
        for program in ("slurmctld", "slurmd", "sbatch", "munged", "mungekey"):
            if not shutil.which(program):
                skip(f"{program} is not there")
        if os.geteuid() != 0:
            skip("a node of one's own needs root")
        node = Node(self)
        try:
            node.start()
            self.run(block("slurm"), statuses=(0, 1), SLURM_CONF=str(node.folder / "slurm.conf"))
        finally:
            node.stop()


class Node:
    """Slurm with one node, in folders and on ports of its own."""

    def __init__(self, world):
        self.world = world
        self.folder = world.folder / "slurm"
        self.programs = []

    def port(self):
        with socket.socket() as probe:
            probe.bind(("127.0.0.1", 0))
            return probe.getsockname()[1]

    def begin(self, *command):
        log = open(self.folder / f"{Path(command[0]).name}.log", "wb")
        self.programs.append(subprocess.Popen(command, env={**self.world.environment, "SLURM_CONF": str(self.folder / "slurm.conf")},
                                              stdout=log, stderr=log))
        log.close()

    def start(self):
        self.folder.mkdir()
        for name in ("state", "spool", "munge"):
            (self.folder / name).mkdir(mode=0o755)
        key, door = self.folder / "munge/key", self.folder / "munge/socket"
        subprocess.run(["mungekey", "--create", f"--keyfile={key}"], check=True)
        self.begin("munged", "--foreground", "--force", f"--key-file={key}", f"--socket={door}",
                   f"--pid-file={self.folder}/munge/pid", f"--log-file={self.folder}/munge/log", f"--seed-file={self.folder}/munge/seed")
        host = socket.gethostname().split(".")[0]
        cores = os.cpu_count()
        (self.folder / "slurm.conf").write_text(f"""
ClusterName=test
SlurmctldHost={host}(127.0.0.1)
SlurmUser=root
SlurmctldPort={self.port()}
SlurmdPort={self.port()}
AuthType=auth/munge
AuthInfo=socket={door}
CredType=cred/munge
ProctrackType=proctrack/pgid
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
JobAcctGatherType=jobacct_gather/none
MpiDefault=none
ReturnToService=2
StateSaveLocation={self.folder}/state
SlurmdSpoolDir={self.folder}/spool
SlurmctldPidFile={self.folder}/slurmctld.pid
SlurmdPidFile={self.folder}/slurmd.pid
NodeName={host} NodeAddr=127.0.0.1 CPUs={cores} State=UNKNOWN
PartitionName=all Nodes={host} Default=YES MaxTime=INFINITE State=UP
""")
        time.sleep(1)
        self.begin("slurmctld", "-D", "-c")
        self.begin("slurmd", "-D", "-N", host)
        end = time.monotonic() + 60
        while "idle" not in self.ask("sinfo", "-h", "-o", "%T"):
            if time.monotonic() > end:
                logs = "\n".join(f"{log.name}:\n{log.read_text(errors='replace')[-1500:]}" for log in self.folder.glob("*.log"))
                skip(f"Slurm does not start here:\n{logs}")
            time.sleep(0.5)

    def ask(self, *command):
        return subprocess.run(command, env={**self.world.environment, "SLURM_CONF": str(self.folder / "slurm.conf")},
                              capture_output=True, text=True, check=False, timeout=30).stdout

    def stop(self):
        for program in reversed(self.programs):
            program.terminate()
        for program in self.programs:
            try:
                program.wait(20)
            except subprocess.TimeoutExpired:
                program.kill()


def main():
    with tempfile.TemporaryDirectory(prefix="scale-") as folder:
        world = World(Path(folder))
        getattr(world, WAY)()
        world.check()
    print(f"{WAY}: the parts make what one run makes")


main()
