#!/usr/bin/env python3
"""verdict.py RESULT.md: Quorlin's row of each table in ratios to the others, and whether it keeps to the bounds.

Bounds: CPU time per picture below that of the program named for its task, or of every program that took part; for some
tasks within a multiple of a program that does nothing else, or does less; and a peak of memory below the stated one.
Pictures are reduced in bands, including those of 24 megapixels; to be rotated, they must be in memory as a whole.
"""
import re
import sys
from pathlib import Path

OURS = "CONTENDER"
EVERY = "every other"
BOUNDS = {  # task: (MB at the peak, who must need more CPU time)
    "a": (120, "vipsthumbnail"), "b": (120, "vipsthumbnail"), "c": (120, "vipsthumbnail"), "memory": (120, "vipsthumbnail"),
    "d90": (200, "vips program 2t"), "e": (200, "vips program 2t"), "d7": (200, "vips rotate bicubic P2"),
    "memory7": (300, "vips rotate bicubic P2"), "j": (120, "vipsthumbnail"), "f": (120, "vips crop P2"),
    "h": (200, "vips bandjoin default P2"), "i": (120, "exiv2"),
    "png": (200, EVERY), "tiff": (100, EVERY), "jp2": (300, EVERY), "gif": (320, EVERY), "bmp": (100, EVERY),
}
# Programs that do nothing else, or less, and so may be ahead: {task: {which: at most this many times its CPU time}}.
# JPEG 2000 of Q=48 has lost visibly more. Of the GIFs one is not dithered, effort=1 makes the same file as ours, and the
# palettes of the other two programs are less near to the photograph.
LIMITS = {
    "i": {"limit rewrite ik 2t": 1.5}, "png": {"limit libdeflate 1 2t": 1.7},
    "jp2": {"vips Q=48 P2": 1.3, "vips 1 process each": 1.3},
    "gif": {"vips effort=1 P2": 1.3, "vips dither=0 P2": 1.8, "gm mogrify P2": 1.6, "IM mogrify": 1.3},
}


def tables(text):
    """{task: {program: {"wall", "cpu", "memory", "note"}}}"""
    found, rows = {}, None
    for line in text.split("\n"):
        head = re.match(r"### (\w+) ", line)
        if head:
            rows = found.setdefault(head.group(1), {})
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if rows is not None and line.startswith("|") and len(cells) == 10 and re.fullmatch(r"[\d.]+", cells[1]):
            rows[cells[0]] = {"wall": float(cells[1]), "cpu": float(cells[3]) + float(cells[4]),
                              "memory": float(cells[5]), "note": cells[9]}
    return found


def judge(task, rows):
    """Lines to print for one task, and its faults."""
    ours = rows.get(OURS)
    if not ours:
        return [], [f"{task}: Quorlin has no row"]
    if ours["note"]:
        return [], [f"{task}: {ours['note']}"]
    lines = [f"{task}: {ours['wall']:.1f} ms, {ours['cpu']:.1f} ms of CPU a picture, {ours['memory']:.0f} MB at the peak"]
    for name, row in rows.items():
        if name != OURS and row["wall"] and row["cpu"] and not row["note"]:
            lines.append(f"   to {name}: {ours['wall'] / row['wall']:.2f} wall, {ours['cpu'] / row['cpu']:.2f} CPU, "
                         f"{ours['memory'] / max(row['memory'], 1):.2f} memory")
    faults = []
    most_memory, rival = BOUNDS[task]
    if ours["memory"] >= most_memory:
        faults.append(f"{task}: {ours['memory']:.0f} MB at the peak, the bound is {most_memory}")
    limits = LIMITS.get(task, {})
    for name in rivals(rival, rows, limits):
        if ours["cpu"] >= rows[name]["cpu"]:
            faults.append(f"{task}: {ours['cpu']:.1f} ms of CPU, {name} needs {rows[name]['cpu']:.1f}")
    for limit, factor in limits.items():
        if limit in rows and ours["cpu"] > factor * rows[limit]["cpu"]:
            faults.append(f"{task}: {ours['cpu']:.1f} ms of CPU, more than {factor} times the {rows[limit]['cpu']:.1f} of {limit}")
    return lines, faults


def rivals(rival, rows, limits):
    """The programs that must need more CPU time, of those that took part and did not fail."""
    if rival != EVERY:
        return [rival] if rival in rows else []
    return [name for name, row in rows.items()
            if name != OURS and name not in limits and not name.startswith("limit ") and row["cpu"] and not row["note"]]


def main():
    found = tables(Path(sys.argv[1]).read_text(encoding="utf-8"))
    faults = [] if found else ["no table to judge"]
    for task, rows in found.items():
        lines, more = judge(task, rows)
        print("\n".join(lines))
        faults += more
    print("\n" + ("\n".join(f"NOT MET {fault}" for fault in faults) or "All bounds are met."))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
