#!/usr/bin/env python3
"""patch.py CHANGE ...: what no program at hand writes, put into the bytes of a picture. The changes are the functions below."""
import struct
import sys
import zlib
from pathlib import Path


def orientation(value, path):
    """Another value in the orientation entry, which is 6."""
    data = bytearray(Path(path).read_bytes())
    for little, entry in ((True, b"\x12\x01\x03\x00\x01\x00\x00\x00\x06\x00"), (False, b"\x01\x12\x00\x03\x00\x00\x00\x01\x00\x06")):
        at = data.find(entry)
        if at >= 0:
            data[at + 8:at + 10] = struct.pack("<H" if little else ">H", int(value))
            return Path(path).write_bytes(data)
    sys.exit(f"{path} states no orientation")


def top_down(source, target):
    """A BMP whose rows begin at the top, which a negative height says."""
    data = bytearray(Path(source).read_bytes())
    start, width, height = struct.unpack("<I", data[10:14])[0], *struct.unpack("<ii", data[18:26])
    row = (width * 3 + 3) // 4 * 4
    rows = [data[start + row * y:start + row * (y + 1)] for y in range(height)]
    data[start:start + row * height] = b"".join(reversed(rows))
    data[22:26] = struct.pack("<i", -height)
    Path(target).write_bytes(data)


def ten_bits(source, target):
    """The samples of a PPM as ten bits each, one plane after the other."""
    data = Path(source).read_bytes()[-60 * 40 * 3:]
    Path(target).write_bytes(b"".join(struct.pack(">H", value * 1023 // 255) for band in range(3) for value in data[band::3]))


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def phys(source, target):
    """A PNG that states a ratio of its pixels, and no unit."""
    data = Path(source).read_bytes()
    stated = data.find(b"pHYs") - 4
    if stated > 0:
        data = data[:stated] + data[stated + 21:]
    Path(target).write_bytes(data[:33] + chunk(b"pHYs", struct.pack(">IIB", 5669, 5669, 0)) + data[33:])


def box(data, kind):
    """Where the box of that kind begins, the first in the file, and how long it is."""
    at = data.index(kind) - 4
    return at, struct.unpack(">I", data[at:at + 4])[0]


def container_turn(quarters, source, target):
    """A rotation by the container itself: a property "irot" of the primary picture, after all other properties."""
    data = bytearray(Path(source).read_bytes())
    properties_at, properties_size = box(data, b"ipco")
    end, number, at = properties_at + properties_size, 0, properties_at + 8
    while at < end:
        at += struct.unpack(">I", data[at:at + 4])[0]
        number += 1
    primary = data[box(data, b"pitm")[0] + 12:][:2]
    entry = box(data, b"ipma")[0] + 16  # after size, kind, version, flags and the number of entries
    while data[entry:entry + 2] != primary:
        entry += 3 + data[entry + 2]
    data[entry + 2] += 1
    # What comes last is put in first, so that the places before it stay right.
    data.insert(entry + 2 + data[entry + 2], 0x80 | (number + 1))
    data[end:end] = struct.pack(">I4sB", 9, b"irot", int(quarters))
    for kind, by in {b"ipma": 1, b"ipco": 9, b"iprp": 10, b"meta": 10}.items():
        place, size = box(data, kind)
        data[place:place + 4] = struct.pack(">I", size + by)
    shift_items(data, 10)
    Path(target).write_bytes(data)


def shift_items(data, by):
    """What follows the boxes moves further back; "iloc" of version 0 or 1 says where, with four bytes per offset."""
    at, _ = box(data, b"iloc")
    version, base = data[at + 8], data[at + 13] >> 4
    place = at + 16
    for _ in range(struct.unpack(">H", data[at + 14:at + 16])[0]):
        inside = version and struct.unpack(">H", data[place + 2:place + 4])[0] & 15
        place += 2 + (2 if version else 0) + 2 + base
        extents = struct.unpack(">H", data[place:place + 2])[0]
        place += 2
        for _ in range(extents):
            if not inside:
                data[place:place + 4] = struct.pack(">I", struct.unpack(">I", data[place:place + 4])[0] + by)
            place += (data[at + 12] >> 4) + (data[at + 12] & 15)


def comment_without_code(source, target):
    """The comment's eight bytes of character code, all zero as many cameras leave them."""
    Path(target).write_bytes(Path(source).read_bytes().replace(b"ASCII\0\0\0", bytes(8), 1))


def bombs(folder):
    """Headers that promise more than any machine holds."""
    header = struct.pack(">IIBBBBB", 60000, 60000, 1, 0, 0, 0, 0)
    (Path(folder) / "bomb-60000x60000.png").write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(7501))) + chunk(b"IEND", b""))
    entries = [(256, 4, 1, 100000), (257, 4, 1, 100000), (258, 3, 1, 8), (259, 3, 1, 1), (262, 3, 1, 1), (273, 4, 1, 8),
               (277, 3, 1, 1), (278, 4, 1, 100000), (279, 4, 1, 10)]
    directory = struct.pack("<H", len(entries)) + b"".join(struct.pack("<HHII", *entry) for entry in entries) + bytes(4)
    (Path(folder) / "bomb-100000x100000.tif").write_bytes(b"II*\0" + struct.pack("<I", 8) + directory)
    info = struct.pack("<IiiHHIIiiII", 40, 30000, 30000, 1, 24, 0, 0, 2835, 2835, 0, 0)
    (Path(folder) / "bomb-30000x30000.bmp").write_bytes(b"BM" + struct.pack("<IHHI", 118, 0, 0, 54) + info + bytes(64))


def spoilt_data(source, target):
    """Bytes in the middle of the pixel data set to zero, with a check sum that holds."""
    data = Path(source).read_bytes()
    out, at = data[:8], 8
    while at < len(data):
        size, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + size]
        if kind == b"IDAT":
            middle = len(body) // 2
            body = body[:middle] + b"\xff" * 40 + body[middle + 40:]
        out += chunk(kind, body)
        at += 12 + size
    Path(target).write_bytes(out)


globals()[sys.argv[1].replace("-", "_")](*sys.argv[2:])
