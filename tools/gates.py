#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""The gates of sizes and arrows: functions of at most 100 lines (tables aside), classes of at most 40
methods, and no include against the order of the rooms. Reads the formatted sources as text: a
function's braces stand alone in the first column."""

import re
import subprocess
import sys

MOST_LINES = 100
MOST_METHODS = 40

# Room by folder, longest prefix first, and the rooms that each may include besides itself.
ROOMS = [
    ("src/platform/core", "core"),
    ("src/platform", "platform"),
    ("src/shell/settings", "settings"),
    ("src/shell", "shell"),
    ("src/editor/language", "language"),
    ("src/editor", "editor"),
    ("src/toolchain", "toolchain"),
    ("src/composer", "composer"),
    ("src/layouts", "layouts"),
    ("src/livetools", "livetools"),
    ("standin", "standin"),
]
BELOW_EDITOR = {"core", "platform", "settings", "language"}
MAY = {
    "core": set(),
    "platform": {"core"},
    "settings": {"core", "platform"},
    "language": {"core"},
    "editor": BELOW_EDITOR,
    "toolchain": BELOW_EDITOR | {"editor"},
    "layouts": BELOW_EDITOR | {"editor"},
    "livetools": BELOW_EDITOR | {"editor", "toolchain"},
    "composer": BELOW_EDITOR | {"editor", "livetools"},
    "shell": BELOW_EDITOR | {"editor", "toolchain", "composer", "layouts", "livetools"},
    "standin": {"core", "language"},
}


def room_of(path):
    return next((room for folder, room in ROOMS if path.startswith(folder + "/")), None)


def arrows(path, lines):
    room = room_of(path)
    if room is None:
        return
    for number, line in enumerate(lines, 1):
        match = re.match(r'#include "([^"]+)"', line)
        target = match and (room_of("src/" + match[1]) or room_of(match[1]))
        if target and target != room and target not in MAY[room]:
            yield f"{path}:{number}: {room} must not include {target}"


def function_lengths(path, lines):
    start = None
    for number, line in enumerate(lines, 1):
        if line == "{":
            start = number
        elif line == "}" and start:
            if number - start - 1 > MOST_LINES:
                yield f"{path}:{start}: a function of {number - start - 1} lines"
            start = None


def class_sizes(path, lines):
    name, methods = None, 0
    for number, line in enumerate(lines, 1):
        opened = re.match(r"(?:class|struct) (\w+)[^;]*$", line)
        if opened:
            name, methods, at = opened[1], 0, number
        elif line == "};" and name:
            if methods > MOST_METHODS:
                yield f"{path}:{at}: class {name} has {methods} methods"
            name = None
        elif name and re.match(r"    [^\s/*#].*\w\(", line):
            methods += 1


def main():
    files = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard", "src/*.cpp", "src/*.h", "standin/*.cpp", "standin/*.h"],
        capture_output=True, text=True, check=True).stdout.split("\n")
    found = []
    for path in filter(None, files):
        with open(path, encoding="utf-8") as file:
            lines = file.read().split("\n")
        for gate in (arrows, function_lengths, class_sizes):
            found += gate(path, lines)
    print("\n".join(found) if found else "sizes and arrows: good")
    return 1 if found else 0


sys.exit(main())
