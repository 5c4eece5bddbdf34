#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""Shows that the drawings of the controls are sound, and that the script that reads them finds each fault.

Usage: artwork_check.py. The exit status is 1 if a test fails.
"""
import struct
import sys
import unittest
import zlib
from pathlib import Path

ARTWORK = Path(__file__).resolve().parent.parent / "artwork"
sys.dont_write_bytecode = True
sys.path.insert(0, str(ARTWORK))
import make_pictures as made  # noqa: E402 (the folder has to be on the path first)


def place(name, left, top, width, height, more=""):
    return f'<rect id="{name}" class="place" x="{left}" y="{top}" width="{width}" height="{height}"{more}/>'


def drawing(*elements):
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="100" height="80" viewBox="0 0 100 80">'
            + "".join(elements) + "</svg>")


BUTTON = place("BTN_0", 0, 0, 22, 22)
HAT = place("HAT_0", 22, 0, 40, 40)
HAT_UP = place("H1U", 36, 2, 10, 10)
SOUND = (BUTTON, HAT, HAT_UP)


def faults(*elements, needed=("BTN_0", "HAT_0", "H1U")):
    found, how = made.read_drawing("sample", drawing(*elements))
    return how + list(made.place_faults(found, needed))


class Faults(unittest.TestCase):
    def test_spots_that_touch_are_sound(self):
        self.assertEqual(faults(*SOUND), [])

    def test_overlapping_spots(self):
        self.assertEqual(faults(place("BTN_0", 1, 0, 22, 22), HAT, HAT_UP), ["BTN_0 and HAT_0 overlap"])

    def test_a_missing_place(self):
        self.assertEqual(faults(BUTTON, HAT), ["has H1U 0 times"])

    def test_a_place_twice(self):
        self.assertEqual(faults(*SOUND, HAT_UP), ["has H1U 2 times"])

    def test_a_place_that_nobody_knows(self):
        self.assertEqual(faults(*SOUND, place("KNOB", 70, 0, 10, 10)), ["has KNOB, which nobody knows"])

    def test_a_place_outside_on_each_side(self):
        for left, top in ((-1, 50), (79, 50), (50, -1), (50, 59)):
            outside = place("THR", left, top, 22, 22)
            self.assertEqual(faults(outside, needed=["THR"]), ["THR is outside the picture"])
        self.assertEqual(faults(place("THR", 78, 58, 22, 22), needed=["THR"]), [])

    def test_a_direction_outside_its_hat(self):
        self.assertEqual(faults(BUTTON, HAT, place("H1U", 36, 31, 10, 10)), ["H1U is outside HAT_0"])

    def test_a_spot_too_small_to_hit(self):
        self.assertEqual(faults(place("BTN_0", 0, 0, 22, 21), HAT, HAT_UP), ["BTN_0 is too small to be hit"])

    def test_a_place_whose_pixels_are_not_the_pictures(self):
        why = "BTN_0 is no untransformed rectangle of whole pixels"
        for moved in (place("BTN_0", 0, 0, 22, 22, ' transform="translate(1 0)"'),
                      f'<g transform="scale(2)">{BUTTON}</g>', place("BTN_0", 0.5, 0, 22, 22)):
            self.assertEqual(faults(moved, HAT, HAT_UP), [why, "has BTN_0 0 times"])

    def test_what_not_every_renderer_draws(self):
        self.assertEqual(faults(*SOUND, "<text>T1</text>"), ["has a <text>"])
        self.assertEqual(faults(*SOUND, '<path d="M0 0z" filter="url(#x)"/>'), ["has the attribute filter"])

    def test_a_drawing_without_a_size_in_pixels(self):
        wrong = drawing().replace('viewBox="0 0 100 80"', 'viewBox="0 0 50 40"')
        self.assertEqual(len(made.read_drawing("sample", wrong)[1]), 1)
        self.assertEqual(len(made.read_drawing("sample", "<svg")[1]), 1)


class Results(unittest.TestCase):
    def test_a_handle_file_hides_what_the_drawing_lacks(self):
        found, _ = made.read_drawing("Grip", drawing(BUTTON, HAT, place("TRIG", 70, 1, 22, 30)))
        hidden = b'0,0,0,0,"False"\r\n'
        self.assertEqual(made.handle_file(found), b'"Grip.bmp"\r\n0\r\n0,0,22,22,"True"\r\n' + 3 * hidden
                         + b'22,0,40,40,"True"\r\n' + 3 * hidden + b'70,1,22,30,"True"\r\n')

    def test_a_second_stage_is_told_in_the_handle_file(self):
        found, _ = made.read_drawing("Grip", drawing(place("TRIG", 0, 0, 22, 40), place("TG2", 0, 20, 22, 20)))
        self.assertEqual(made.handle_file(found).split(b"\r\n")[1], b"1")

    def test_controls_have_the_languages_names(self):
        names = {"BTN_0": "S1", "BTN_3": "S4", "BTN_4": "T1", "BTN_13": "T10", "HAT_3": "HAT4", "TG2": "TG2",
                 "H1UL": "H1UL", "DOG_M": "/M", "RNG": "RNG"}
        self.assertEqual({name: made.control_of(name) for name in names}, names)

    def test_a_bitmap_holds_the_pixels_of_each_way_to_pack_them(self):
        # The same two pixels in every row, packed in the five ways that a PNG knows.
        packed = [bytes([0, 1, 2, 3, 11, 22, 33]), bytes([1, 1, 2, 3, 10, 20, 30]), bytes([2, 0, 0, 0, 0, 0, 0]),
                  bytes([3, 1, 1, 2, 5, 10, 15]), bytes([4, 0, 0, 0, 0, 0, 0])]
        chunks = [(b"IHDR", struct.pack(">IIBBBBB", 2, 5, 8, 2, 0, 0, 0)), (b"IDAT", zlib.compress(b"".join(packed)))]
        png = b"\x89PNG\r\n\x1a\n" + b"".join(
            struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
            for kind, body in chunks)
        bitmap = made.bitmap(png)
        self.assertEqual(struct.unpack("<2sI", bitmap[:6]), (b"BM", len(bitmap)))
        self.assertEqual(struct.unpack("<ii", bitmap[18:26]), (2, 5))
        self.assertEqual(bitmap[54:], bytes([3, 2, 1, 33, 22, 11, 0, 0]) * 5)


class Drawings(unittest.TestCase):
    def test_our_own_are_sound(self):
        drawings, found = made.read_drawings(ARTWORK)
        self.assertEqual(found, [])
        self.assertEqual([d.name for d in drawings], list(made.NEEDED))

    def test_the_build_installs_each(self):
        lists = (ARTWORK / "CMakeLists.txt").read_text(encoding="utf-8")
        for path in ARTWORK.glob("*.svg"):
            self.assertIn(path.stem, made.NEEDED)
            self.assertIn(f'"{path.stem}"', lists)


if __name__ == "__main__":
    unittest.main()
