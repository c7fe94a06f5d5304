#!/usr/bin/env python3
"""profile.py rgb|gray: a small colour profile of our own, written to the standard output."""
import struct
import sys


def number(value):
    return struct.pack(">i", round(value * 65536))


def text(words):
    ascii_text = words.encode("ascii") + b"\0"
    return b"desc\0\0\0\0" + struct.pack(">I", len(ascii_text)) + ascii_text + bytes(4 + 4 + 2 + 1 + 67)


def place(x, y, z):
    return b"XYZ \0\0\0\0" + number(x) + number(y) + number(z)


def curve(gamma):
    return b"curv\0\0\0\0" + struct.pack(">IH", 1, round(gamma * 256)) + b"\0\0"


def profile(space):
    tags = {b"desc": text(f"Quorlin test {space}"), b"cprt": b"text\0\0\0\0No rights reserved\0",
            b"wtpt": place(0.9642, 1.0, 0.8249)}
    if space == "rgb":
        # Primaries wider than those of sRGB, so that a picture that lost its profile looks different.
        tags.update({b"rXYZ": place(0.6097, 0.3111, 0.0195), b"gXYZ": place(0.2053, 0.6257, 0.0609),
                     b"bXYZ": place(0.1492, 0.0632, 0.7446)})
        tags.update({name: curve(2.2) for name in (b"rTRC", b"gTRC", b"bTRC")})
    else:
        tags[b"kTRC"] = curve(1.8)
    start, table, data = 128 + 4 + 12 * len(tags), b"", b""
    for name, value in tags.items():
        value += bytes(-len(value) % 4)
        table += name + struct.pack(">II", start + len(data), len(value))
        data += value
    header = struct.pack(">I4sI4s4s4s", start + len(data), b"none", 0x02400000, b"mntr",
                         b"RGB " if space == "rgb" else b"GRAY", b"XYZ ")
    header += struct.pack(">6H", 2026, 5, 17, 0, 0, 0) + b"acsp" + bytes(28) + number(0.9642) + number(1) + number(0.8249)
    return header.ljust(128, b"\0") + struct.pack(">I", len(tags)) + table + data


sys.stdout.buffer.write(profile(sys.argv[1]))
