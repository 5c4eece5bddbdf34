#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""make_icon.py DRAWING.svg ICON.ico: the program's icon in the sizes that Windows asks for."""

import struct
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "artwork"))
from make_pictures import pixels, write  # noqa: E402

# As bitmaps, which every program reads, but for the largest, which is so smaller by far.
BITMAP_SIZES = (16, 20, 24, 32, 40, 48, 64)
PNG_SIZE = 256


def render(drawing, size):
    """The drawing as the bytes of a PNG with transparency."""
    command = ["rsvg-convert", "--format=png", f"--width={size}", f"--height={size}", str(drawing)]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def bitmap(png):
    """An icon's bitmap: 32 bits a pixel from the bottom up, then the mask of what is transparent."""
    width, height, rows, channels = pixels(png)
    if channels != 4:
        raise ValueError("the drawing has no transparent background")
    body, mask = bytearray(), bytearray()
    for row in reversed(rows):
        line = bytearray(width * 4)
        for channel, source in enumerate((2, 1, 0, 3)):
            line[channel::4] = row[source::4]
        body += line
        bits = "".join("0" if alpha else "1" for alpha in row[3::4]).ljust((width + 31) // 32 * 32, "0")
        mask += int(bits, 2).to_bytes(len(bits) // 8, "big")
    # The height counts the mask as well.
    head = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, len(body) + len(mask), 0, 0, 0, 0)
    return head + bytes(body) + bytes(mask)


def icon(pictures):
    """The icon file of pictures by size."""
    head, body = struct.pack("<HHH", 0, 1, len(pictures)), b""
    start = len(head) + 16 * len(pictures)
    for size, picture in pictures.items():
        head += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(picture), start + len(body))
        body += picture
    return head + body


def main():
    drawing, target = sys.argv[1:3]
    pictures = {size: bitmap(render(drawing, size)) for size in BITMAP_SIZES}
    pictures[PNG_SIZE] = render(drawing, PNG_SIZE)
    write(Path(target), icon(pictures))


if __name__ == "__main__":
    main()
