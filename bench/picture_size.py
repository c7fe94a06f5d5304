"""size_of(PATH): the pixels of a JPEG, PNG, JPEG 2000 or little-endian TIFF, by its header."""
import struct
from pathlib import Path


def size_of(path):
    data = Path(path).read_bytes()
    if data.startswith(b"\x89PNG"):
        return struct.unpack(">II", data[16:24])
    if data.startswith(b"II*\0"):
        return of_tiff(data)
    if data[4:8] == b"jP  ":
        at = data.index(b"ihdr") + 4
        height, width = struct.unpack(">II", data[at:at + 8])
        return width, height
    if data.startswith(b"\xff\xd8"):
        return of_jpeg(data)
    raise ValueError(f"{path} is none of these")


def of_tiff(data):
    at, = struct.unpack("<I", data[4:8])
    count, = struct.unpack("<H", data[at:at + 2])
    values = {}
    for entry in range(at + 2, at + 2 + 12 * count, 12):
        tag, kind = struct.unpack("<HH", data[entry:entry + 4])
        values[tag], = struct.unpack("<H" if kind == 3 else "<I", data[entry + 8:entry + (10 if kind == 3 else 12)])
    return values[256], values[257]


def of_jpeg(data):
    at = 2
    while True:
        marker, length = struct.unpack(">HH", data[at:at + 4])
        if 0xFFC0 <= marker <= 0xFFCF and marker not in (0xFFC4, 0xFFC8, 0xFFCC):
            height, width = struct.unpack(">HH", data[at + 5:at + 9])
            return width, height
        at += 2 + length
