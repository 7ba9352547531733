#!/usr/bin/env python3
"""Draws the program's icon for Windows from its picture (needs rsvg-convert, of librsvg2-bin).

    scripts/make_icon.py src/ui/resources/icons/program.svg src/app/windows/quelvarn.ico
"""

import struct
import subprocess
import sys
import zlib

SIZES = (16, 20, 24, 32, 40, 48, 64, 128, 256)
FIRST_PNG = 64  # Smaller ones as plain bitmaps, which every resource compiler takes.


def png_of(svg, size):
    drawn = ["rsvg-convert", "--width", str(size), "--height", str(size), svg]
    return subprocess.run(drawn, check=True, stdout=subprocess.PIPE).stdout


def unfilter(kind, line, above):
    """One line of a PNG with four bytes a pixel."""
    for i, value in enumerate(line):
        left = line[i - 4] if i >= 4 else 0
        up = above[i]
        corner = above[i - 4] if i >= 4 else 0
        estimate = left + up - corner
        nearest = min((left, up, corner), key=lambda c: abs(estimate - c))
        line[i] = (value + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
    return line


def rgba_lines(png, size):
    data, at = b"", 8
    while at < len(png):
        length, name = struct.unpack(">I4s", png[at : at + 8])
        if name == b"IHDR" and png[at + 16 : at + 18] != b"\x08\x06":
            sys.exit("the picture is not drawn with eight bits and transparency")
        if name == b"IDAT":
            data += png[at + 8 : at + 8 + length]
        at += 12 + length
    raw = zlib.decompress(data)
    lines, above, stride = [], bytearray(size * 4), size * 4 + 1
    for row in range(size):
        start = row * stride
        above = unfilter(raw[start], bytearray(raw[start + 1 : start + stride]), above)
        lines.append(above)
    return lines


def bitmap_of(png, size):
    """A bitmap as icons hold it: from the bottom up, blue first, an empty mask behind it."""
    pixels = bytearray()
    for line in reversed(rgba_lines(png, size)):
        for i in range(0, len(line), 4):
            red, green, blue, alpha = line[i : i + 4]
            pixels += bytes((blue, green, red, alpha))
    mask = bytes((size + 31) // 32 * 4 * size)
    return struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, len(pixels) + len(mask), 0, 0, 0, 0) + pixels + mask


def main(svg, ico):
    pictures = []
    for size in SIZES:
        png = png_of(svg, size)
        pictures.append(png if size >= FIRST_PNG else bitmap_of(png, size))
    offset = 6 + 16 * len(SIZES)
    head = struct.pack("<HHH", 0, 1, len(SIZES))
    for size, picture in zip(SIZES, pictures):
        head += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(picture), offset)
        offset += len(picture)
    with open(ico, "wb") as file:
        file.write(head + b"".join(pictures))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
