#!/usr/bin/env python3
"""verdict.py RESULT.md: Quorlin's row of each table in ratios to the others, and whether it keeps to the bounds.

Bounds: CPU time for a picture below that of the program named for its task, for some within a multiple of a program that
does nothing else, and less memory at the peak than stands there. Pictures are made smaller in bands, 24 megapixels included; to be turned, they have to be in memory as a whole.
"""
import re
import sys
from pathlib import Path

OURS = "CONTENDER"
BOUNDS = {  # task: (MB at the peak, who must need more CPU time)
    "a": (120, "vipsthumbnail"), "b": (120, "vipsthumbnail"), "c": (120, "vipsthumbnail"), "memory": (120, "vipsthumbnail"),
    "d90": (200, "vips program 2t"), "e": (200, "vips program 2t"), "d7": (200, "vips rotate bicubic P2"),
    "memory7": (300, "vips rotate bicubic P2"), "j": (120, "vipsthumbnail"), "f": (120, "vips crop P2"),
    "h": (200, "vips bandjoin default P2"), "i": (120, "exiv2"),
    "png": (200, "vips c=1 filter=up P2"), "tiff": (200, "IM mogrify P2"), "jp2": (300, "IM mogrify P2"),
    "gif": (300, "vips effort=7 P2"), "bmp": (200, "IM mogrify P2"),
}
# Where a program that does nothing else is not far ahead: {task: (which, at most this many times its CPU time)}.
LIMITS = {"i": ("limit rewrite ik 2t", 1.5), "png": ("limit libdeflate 1 2t", 1.7)}


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
    if rival in rows and ours["cpu"] >= rows[rival]["cpu"]:
        faults.append(f"{task}: {ours['cpu']:.1f} ms of CPU, {rival} needs {rows[rival]['cpu']:.1f}")
    limit, factor = LIMITS.get(task, ("", 1))
    if limit in rows and ours["cpu"] > factor * rows[limit]["cpu"]:
        faults.append(f"{task}: {ours['cpu']:.1f} ms of CPU, more than {factor} times the {rows[limit]['cpu']:.1f} of {limit}")
    return lines, faults


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
