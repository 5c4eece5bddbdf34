#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""copy_fonts.py FOLDER FONT...: copies TrueType fonts so that they are smoothed in all sizes.

Windows smooths Arial and Courier New always. The fonts that stand in for them ask for no smoothing in
the sizes of menus and texts, and Wine, which obeys, then loses thin strokes.
"""

import pathlib
import struct
import sys

GRID_FIT_AND_SMOOTH = 3


def smoothed(font: bytes) -> bytes:
    """The font with that behaviour in each range of its gasp table."""
    changed = bytearray(font)
    (tables,) = struct.unpack_from(">H", font, 4)
    for entry in range(12, 12 + 16 * tables, 16):
        tag, _, place, _ = struct.unpack_from(">4s3I", font, entry)
        if tag == b"gasp":
            (ranges,) = struct.unpack_from(">H", font, place + 2)
            for each in range(ranges):
                struct.pack_into(">H", changed, place + 6 + 4 * each, GRID_FIT_AND_SMOOTH)
    return bytes(changed)


folder = pathlib.Path(sys.argv[1])
for name in map(pathlib.Path, sys.argv[2:]):
    (folder / name.name).write_bytes(smoothed(name.read_bytes()))
