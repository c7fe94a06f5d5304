#!/usr/bin/env python3
"""make-seeds.py FOLDER: a small picture of each kind with metadata of each kind, to begin fuzzing with. Needs vips and exiftool."""
import subprocess
import sys
from pathlib import Path

TAGS = ["-Make=Maker", "-Model=Model", "-Orientation#=6", "-UserComment=A comment", "-ExposureTime=1/250", "-FNumber=2.8", "-ISO=200",
        "-LensInfo=24 70 2.8 2.8", "-GPSLatitude=48.85", "-GPSLatitudeRef=N", "-GPSLongitude=2.29", "-GPSLongitudeRef=W",
        "-GPSTimeStamp=13:05:09", "-IPTC:Keywords=one", "-IPTC:Keywords=two", "-IPTC:Caption-Abstract=Caption", "-XMP:Title=Title",
        "-XMP:Subject=one", "-XMP:Subject=two", "-XResolution=300", "-YResolution=300", "-ResolutionUnit=inches"]
KINDS = ["jpg", "tif", "png", "webp", "jp2", "gif"]


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for kind in KINDS:
        path = folder / f"tagged.{kind}"
        subprocess.run(["vips", "black", str(path), "8", "8", "--bands", "3"], check=True)
        (folder / f"plain.{kind}").write_bytes(path.read_bytes())
        subprocess.run(["exiftool", "-q", "-q", "-m", "-overwrite_original", *TAGS, str(path)], check=False)
    big = folder / "big-endian.jpg"
    big.write_bytes((folder / "plain.jpg").read_bytes())
    subprocess.run(["exiftool", "-q", "-m", "-overwrite_original", "-ExifByteOrder=MM", *TAGS, str(big)], check=True)


if __name__ == "__main__":
    main()
