"""What benchmarks of whole batches have in common: processes, their memory, and copies of photographs."""
import os
import shutil
import subprocess
import sys
import threading
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


class MemoryWatch(threading.Thread):
    """The most that a process and its children had together, with what they share counted once, in MB."""

    def __init__(self, pid):
        super().__init__(daemon=True)
        self.pid, self.most, self.goes_on = pid, 0, True

    def members(self):
        found = [self.pid]
        for task in Path(f"/proc/{self.pid}/task").glob("*/children"):
            try:
                found += [int(pid) for pid in task.read_text().split()]
            except OSError:
                pass
        return found

    def run(self):
        while self.goes_on:
            total = 0
            for pid in self.members():
                try:
                    lines = Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
                    total += sum(int(line.split()[1]) for line in lines if line.startswith("Pss:"))
                except OSError:
                    pass
            self.most = max(self.most, total / 1024)
            time.sleep(0.05)


def measure(commands, watches=False):
    """Seconds, CPU seconds, megabytes and what the first said, of commands side by side."""
    begin = time.monotonic()
    running = [subprocess.Popen(list(map(str, command)), stdout=subprocess.PIPE, text=True) for command in commands]
    watch = MemoryWatch(running[0].pid)
    if watches:
        watch.start()
    said = [process.stdout.read() for process in running]
    cpu = 0
    for process in running:
        _, status, usage = os.wait4(process.pid, 0)
        if status != 0:
            sys.exit(f"{commands[0][0]} failed")
        cpu += usage.ru_utime + usage.ru_stime
    seconds = time.monotonic() - begin
    watch.goes_on = False
    return seconds, cpu, watch.most, said[0]


def cost(command, watches=False):
    """CPU seconds and megabytes of a command: of its largest process, and of all together. Ends the program if it fails.

    A process counts as large as the one that started it was, so that is another process, which stays small.
    """
    starter = [sys.executable, "-B", "-S", "-E", __file__, "watched" if watches else "unwatched", *map(str, command)]
    done = subprocess.run(starter, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"bench: {command[0]} failed: {done.stderr[:300]}")
    return tuple(map(float, done.stdout.split()[-3:]))


def cost_from_here(command, watches):
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    watch = MemoryWatch(process.pid)
    if watches:
        watch.start()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    watch.goes_on = False
    print(usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, watch.most)
    return 1 if status else 0


def copies(folder, work, count):
    """So many pictures made of the photographs in a folder."""
    originals = sorted(Path(folder).glob("*.jpg"))
    if not originals:
        sys.exit("bench: there are no photographs; bench/run makes some")
    pictures = []
    for i in range(count):
        pictures.append(work / f"p{i:03}.jpg")
        shutil.copy(originals[i % len(originals)], pictures[-1])
    return pictures


def thumbnails(pictures, out):
    return ["vipsthumbnail", "--size", "1600x1600", "-o", f"{out}/%s.jpg[Q=85]", *pictures]


if __name__ == "__main__":
    sys.exit(cost_from_here(sys.argv[2:], sys.argv[1] == "watched"))
