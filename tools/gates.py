#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""The gates of sizes and arrows: functions of at most 100 lines (tables aside), classes of at most 40
methods, folders of at most 25 subjects (a .cpp with its .h and .ui is one), no include against the
order of the rooms, no circle of includes between the subjects of a room, no object of a thread's own.
Reads the formatted sources as text: a function's braces stand alone in the first column."""

import os
import re
import subprocess
import sys

MOST_LINES = 100
MOST_METHODS = 40
MOST_SUBJECTS = 25

# The rooms by folder, longest prefix first.
ROOMS = [
    ("src/platform/core", "core"),
    ("src/platform", "platform"),
    ("src/language", "language"),
    ("src/text", "text"),
    ("src/settings", "settings"),
    ("src/cougar", "cougar"),
    ("src/menus", "menus"),
    ("src/print", "print"),
    ("src/documents", "documents"),
    ("src/templates", "templates"),
    ("src/editor", "editor"),
    ("src/toolchain", "toolchain"),
    ("src/livetools", "livetools"),
    ("src/composer", "composer"),
    ("src/layouts", "layouts"),
    ("src/lists", "lists"),
    ("src/preferences", "preferences"),
    ("src/shell", "shell"),
    ("standin", "standin"),
]

# What each room may include besides itself.
LOW = {"core", "language", "text", "platform", "settings", "menus", "print"}
MIDDLE = LOW | {"documents"}
MAY = {
    "core": set(),
    "language": {"core"},
    "text": {"core", "language"},
    "platform": {"core"},
    "settings": {"core", "platform"},
    "cougar": {"core", "platform"},
    "menus": {"core", "platform", "settings"},
    "print": {"core", "platform", "settings"},
    "documents": LOW,
    "templates": LOW,
    "editor": MIDDLE,
    "toolchain": MIDDLE,
    "livetools": MIDDLE | {"cougar", "toolchain"},
    "composer": MIDDLE | {"cougar", "livetools"},
    "layouts": MIDDLE | {"cougar", "livetools"},
    "lists": MIDDLE | {"editor", "toolchain"},
    "preferences": MIDDLE | {"editor", "toolchain", "lists"},
    "shell": {room for _, room in ROOMS} - {"standin"},
    "standin": {"core", "language"},
}


def room_of(path):
    return next((room for folder, room in ROOMS if path.startswith(folder + "/")), None)


def subject_of(path):
    return os.path.splitext(path)[0]


def includes(path, lines):
    """Number, and path from the project's root, of each include of the project's own."""
    for number, line in enumerate(lines, 1):
        match = re.match(r'#include "([^"]+)"', line)
        if match:
            yield number, match[1] if match[1].startswith("standin/") else "src/" + match[1]


def arrows(path, lines):
    room = room_of(path)
    if room is None:
        if path.startswith("src/") and path != "src/main.cpp":
            yield f"{path}: lies in no room"
        return
    for number, target_path in includes(path, lines):
        target = room_of(target_path)
        if target and target != room and target not in MAY[room]:
            yield f"{path}:{number}: {room} must not include {target}"


def thread_objects(path, lines):
    """GCC for Windows frees the memory of a thread's objects before it takes them apart."""
    for number, line in enumerate(lines, 1):
        if re.search(r"\bthread_local\b", line):
            yield f"{path}:{number}: thread_local ends in freed memory on Windows"


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


def full_folders(files):
    folders = {}
    for path in files:
        folders.setdefault(os.path.dirname(path), set()).add(subject_of(path))
    for folder, subjects in sorted(folders.items()):
        if len(subjects) > MOST_SUBJECTS:
            yield f"{folder}: {len(subjects)} subjects"


def circles(sources):
    """Circles of includes between subjects of one room: each found once, by its first member."""
    subjects = {subject_of(path) for path in sources}
    graph = {}
    for path, lines in sources.items():
        own = subject_of(path)
        targets = {subject_of(target) for _, target in includes(path, lines)} & subjects
        graph.setdefault(own, set()).update(
            target for target in targets if target != own and room_of(target) == room_of(own))
    done = set()

    def walk(subject, way):
        if subject in way:
            yield " -> ".join(way[way.index(subject):] + [subject])
        elif subject not in done:
            for target in sorted(graph.get(subject, ())):
                yield from walk(target, way + [subject])
            done.add(subject)

    for subject in sorted(graph):
        yield from walk(subject, [])


def listed(*patterns):
    found = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", *patterns],
                           capture_output=True, text=True, check=True).stdout.split("\n")
    return [path for path in found if path and os.path.exists(path)]


def main():
    sources = {}
    for path in listed("src/*.cpp", "src/*.h", "standin/*.cpp", "standin/*.h"):
        with open(path, encoding="utf-8") as file:
            sources[path] = file.read().split("\n")
    found = []
    for path, lines in sources.items():
        for gate in (arrows, thread_objects, function_lengths, class_sizes):
            found += gate(path, lines)
    found += full_folders([*sources, *listed("src/*.ui")])
    found += circles(sources)
    print("\n".join(found) if found else "sizes and arrows: good")
    return 1 if found else 0


sys.exit(main())
