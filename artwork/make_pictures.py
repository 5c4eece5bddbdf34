#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""Makes of the drawings what the program and its users' files need of them.

Usage: make_pictures.py OUTPUT_FOLDER [DRAWINGS_FOLDER]

Writes pictures/NAME.bmp for each drawing, pictures/NAME.tmh for each handle, and include/artwork/places.h, the table of
all places. A drawing has, for each control, an invisible rectangle of class "place" whose id names the control: that
rectangle is the only statement of where the control is. Each fault of a drawing is one line; the exit status is 1 if
there is any, and nothing is written then. Needs rsvg-convert; runs nothing that the build has made.
"""
import hashlib
import re
import struct
import subprocess
import sys
import xml.etree.ElementTree as ET
import zlib
from pathlib import Path
from typing import NamedTuple

HANDLE_SPOTS = [f"BTN_{n}" for n in range(4)] + [f"HAT_{n}" for n in range(4)] + ["TRIG"]
HAT_PARTS = [f"H{hat}{way}" for hat in range(1, 5) for way in "U UR R DR D DL L UL M".split()]

# The places of each drawing: all of these, and no others.
NEEDED = {
    "F-16 Block 50": HANDLE_SPOTS + HAT_PARTS + "TG1 TG2 JOYX JOYY".split(),
    "Straight grip": [s for s in HANDLE_SPOTS if s != "BTN_3"] + HAT_PARTS + "TG1 JOYX JOYY".split(),
    "Throttle": [f"BTN_{n}" for n in range(4, 14)] + "DOG_U DOG_M DOG_D MIX MIY RNG ANT THR".split(),
    "Rudders": "LBRK RBRK RDDR".split(),
}

# The least side of what is clicked, in pixels.
LEAST_SIDE = 22

# What all renderers of the drawings understand; no text, since the pictures go to pilots of all languages.
ELEMENTS = "svg defs linearGradient radialGradient stop g path rect circle ellipse line polyline polygon".split()
FORBIDDEN = "transform style filter mask clip-path".split()


class Place(NamedTuple):
    """A control's rectangle, in pixels of the picture."""
    id: str
    left: int
    top: int
    width: int
    height: int

    def inside(self, other):
        return (self.left >= other.left and self.left + self.width <= other.left + other.width
                and self.top >= other.top and self.top + self.height <= other.top + other.height)

    def overlaps(self, other):
        return (self.left < other.left + other.width and other.left < self.left + self.width
                and self.top < other.top + other.height and other.top < self.top + self.height)


class Drawing(NamedTuple):
    name: str
    width: int
    height: int
    places: list

    def place(self, name):
        return next((p for p in self.places if p.id == name), None)

    def is_handle(self):
        return self.place("TRIG") is not None


def is_hot_spot(name):
    """Whether a click on the place inserts a statement."""
    return name.startswith(("BTN_", "HAT_")) or name == "TRIG"


def owner_of(name):
    """The hot spot in which a place lies that tells one of its directions, stages or axes."""
    hat = re.fullmatch(r"H([1-4])[UDLRM]{1,2}", name)
    if hat:
        return f"HAT_{int(hat[1]) - 1}"
    return {"TG1": "TRIG", "TG2": "TRIG", "DOG_U": "BTN_10", "DOG_D": "BTN_11", "MIX": "BTN_4", "MIY": "BTN_4",
            "RNG": "BTN_9"}.get(name)


def control_of(name):
    """What the language calls the control of a place."""
    kind, _, number = name.partition("_")
    if kind == "BTN":
        return f"S{int(number) + 1}" if int(number) < 4 else f"T{int(number) - 3}"
    if kind == "HAT":
        return f"HAT{int(number) + 1}"
    return f"/{number}" if kind == "DOG" else name


def read_drawing(name, text):
    """The drawing, and the faults in how it is written."""
    try:
        root = ET.fromstring(text)
    except ET.ParseError as error:
        return Drawing(name, 0, 0, []), [f"is not well formed: {error}"]
    faults, places = [], []
    size = [root.get("width", ""), root.get("height", "")]
    if not all(re.fullmatch(r"[1-9]\d*", s) for s in size) or root.get("viewBox") != f"0 0 {size[0]} {size[1]}":
        return Drawing(name, 0, 0, []), ["has no size in whole pixels, or a view box of another size"]

    def walk(element, moved):
        tag = element.tag.rpartition("}")[2]
        if tag not in ELEMENTS:
            faults.append(f"has a <{tag}>")
        faults.extend(f"has the attribute {a}" for a in FORBIDDEN[1:] if a in element.attrib)
        moved = moved or "transform" in element.attrib
        if element.get("class") == "place":
            numbers = [element.get(a, "") for a in ("x", "y", "width", "height")]
            if tag != "rect" or moved or not all(re.fullmatch(r"-?\d+", n) for n in numbers):
                faults.append(f"{element.get('id')} is no untransformed rectangle of whole pixels")
            else:
                places.append(Place(element.get("id", ""), *map(int, numbers)))
        for child in element:
            walk(child, moved)

    walk(root, False)
    return Drawing(name, int(size[0]), int(size[1]), places), faults


def place_faults(drawing, needed):
    """What is wrong with the places of a drawing that has to have the needed ones."""
    ids = [p.id for p in drawing.places]
    for name in needed:
        if ids.count(name) != 1:
            yield f"has {name} {ids.count(name)} times"
    for name in sorted(set(ids) - set(needed)):
        yield f"has {name}, which nobody knows"
    paper = Place("", 0, 0, drawing.width, drawing.height)
    for n, place in enumerate(drawing.places):
        if place.width <= 0 or place.height <= 0 or not place.inside(paper):
            yield f"{place.id} is outside the picture"
        owner = drawing.place(owner_of(place.id))
        if owner and not place.inside(owner):
            yield f"{place.id} is outside {owner.id}"
        if not is_hot_spot(place.id):
            continue
        if min(place.width, place.height) < LEAST_SIDE:
            yield f"{place.id} is too small to be hit"
        for other in drawing.places[n + 1:]:
            if is_hot_spot(other.id) and place.overlaps(other):
                yield f"{place.id} and {other.id} overlap"


def handle_file(drawing):
    """The handle file: the picture, whether the trigger has two stages, the hot spots. A control that the drawing
    lacks gets a record that hides it."""
    lines = [f'"{drawing.name}.bmp"', "1" if drawing.place("TG2") else "0"]
    for name in HANDLE_SPOTS:
        place = drawing.place(name)
        lines.append(f'{place.left},{place.top},{place.width},{place.height},"True"' if place else '0,0,0,0,"False"')
    return "".join(line + "\r\n" for line in lines).encode("cp1252")


def table(drawings, bitmaps):
    """The table of all places as a C++ header."""
    pictures = "".join(
        f'    {{ u"{d.name}", {d.width}, {d.height},\n      "{hashlib.sha256(bitmaps[d.name]).hexdigest()}" }},\n'
        for d in drawings)
    places = "".join(
        f'    {{ u"{d.name}", u"{p.id}", u"{control_of(p.id)}", {p.left}, {p.top}, {p.width}, {p.height} }},\n'
        for d in drawings for p in d.places)
    return f"""// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT
//
// Made of the drawings by artwork/make_pictures.py.
#pragma once

#include <string_view>

namespace zeph::artwork {{

/// A drawing: NAME.svg and NAME.bmp in AppFolder. The size is in pixels, the digest (SHA-256 in lower case hexadecimal)
/// that of the bitmap file as it ships.
struct Picture
{{
    std::u16string_view name;
    int width;
    int height;
    std::string_view digest;
}};

/// Where a control is, in pixels of its picture. `control` is what the language calls it: S1, T10, HAT1, H1UL, TG2,
/// RNG, and /U, /M, /D for the positions of the dogfight switch.
struct Place
{{
    std::u16string_view picture;
    std::u16string_view id;
    std::u16string_view control;
    int left;
    int top;
    int width;
    int height;
}};

inline constexpr Picture pictures[] = {{
{pictures}}};

inline constexpr Place places[] = {{
{places}}};

}} // namespace zeph::artwork
"""


def pixels(png):
    """Width, height and the rows of RGB or RGBA bytes of a PNG with eight bits a channel, and the channels."""
    at, data = 8, b""
    while at < len(png):
        length, kind = struct.unpack(">I4s", png[at:at + 8])
        chunk = png[at + 8:at + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colours, _, _, interlaced = struct.unpack(">IIBBBBB", chunk)
            if depth != 8 or colours not in (2, 6) or interlaced:
                raise ValueError("rsvg-convert wrote a PNG of an unexpected form")
            channels = 3 if colours == 2 else 4
        elif kind == b"IDAT":
            data += chunk
        at += length + 12
    raw, stride, rows = zlib.decompress(data), width * channels, []
    above = bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        above = unfiltered(raw[start], bytearray(raw[start + 1:start + 1 + stride]), above, channels)
        rows.append(above)
    return width, height, rows, channels


def unfiltered(method, row, above, channels):
    """A row of a PNG, freed of the prediction that was taken from it."""
    for i, value in enumerate(row):
        left = row[i - channels] if i >= channels else 0
        corner = above[i - channels] if i >= channels else 0
        if method == 1:
            value += left
        elif method == 2:
            value += above[i]
        elif method == 3:
            value += (left + above[i]) // 2
        elif method == 4:
            value += min((left, above[i], corner), key=lambda p, e=left + above[i] - corner: abs(e - p))
        row[i] = value & 255
    return row


def bitmap(png):
    """A bitmap file of 24 bits a pixel, its rows from the bottom up and filled to four bytes."""
    width, height, rows, channels = pixels(png)
    body = bytearray()
    for row in reversed(rows):
        line = bytearray(width * 3)
        for channel in range(3):
            line[channel::3] = row[2 - channel::channels]
        body += line + bytes(-len(line) % 4)
    head = struct.pack("<2sIHHIIiiHHIIiiII", b"BM", 54 + len(body), 0, 0, 54, 40, width, height, 1, 24, 0, len(body),
                       3780, 3780, 0, 0)
    return head + bytes(body)


def render(path):
    """The drawing at its own size on white, as the bytes of a PNG."""
    command = ["rsvg-convert", "--format=png", "--background-color=white", str(path)]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def write(path, content):
    """Writes a file that is new or has changed; an unchanged one keeps its time, so that nothing is built anew."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_bytes() != content:
        path.write_bytes(content)


def read_drawings(folder):
    """All drawings that there have to be, and what is wrong with them."""
    drawings, faults = [], []
    for name, needed in NEEDED.items():
        path = folder / f"{name}.svg"
        if not path.exists():
            faults.append(f"{path}: is missing")
            continue
        drawing, found = read_drawing(name, path.read_text(encoding="utf-8"))
        drawings.append(drawing)
        faults += [f"{path}: {what}" for what in found + list(place_faults(drawing, needed))]
    return drawings, faults


def main():
    output = Path(sys.argv[1])
    folder = Path(sys.argv[2]) if len(sys.argv) > 2 else Path(__file__).resolve().parent
    drawings, faults = read_drawings(folder)
    if faults:
        print("\n".join(faults))
        return 1
    bitmaps = {d.name: bitmap(render(folder / f"{d.name}.svg")) for d in drawings}
    for drawing in drawings:
        write(output / "pictures" / f"{drawing.name}.bmp", bitmaps[drawing.name])
        if drawing.is_handle():
            write(output / "pictures" / f"{drawing.name}.tmh", handle_file(drawing))
    write(output / "include" / "artwork" / "places.h", table(drawings, bitmaps).encode("utf-8"))
    return 0


if __name__ == "__main__":
    sys.exit(main())
