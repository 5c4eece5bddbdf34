#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""Makes a folder relocatable: puts the libraries that its programs and plugins need into FOLDER/lib,
with the licences of their packages in FOLDER/licences, and lets each file look for them there.

Usage: carry_libraries.py FOLDER. The programs are in FOLDER/program, the plugins in FOLDER/plugins.
"""
import os
import shutil
import subprocess
import sys
from pathlib import Path

# What every desktop has and what has to fit its drivers, its screen and its fonts: the C and C++
# libraries, GL and what lies under it, the core of X11 and Wayland, fonts with what draws them, and
# the message bus. All else is carried, also what many have: libOpenGL, the libraries beside xcb's core.
OF_THE_SYSTEM = """ld-linux-x86-64 libc libm libdl libpthread librt libresolv libgcc_s libstdc++
libEGL libGL libGLX libGLdispatch libdrm libgbm libwayland-client libX11 libX11-xcb libxcb
libfontconfig libfreetype libharfbuzz libexpat libglib-2.0 libpng16 libz libuuid libdbus-1 libcups""".split()


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def is_binary(path):
    with open(path, "rb") as file:
        return file.read(4) == b"\x7fELF"


def needed(path):
    """The libraries that a file names itself, with the places where this system has them."""
    places = {}
    for line in output("ldd", str(path)).splitlines():
        name, arrow, rest = line.partition("=>")
        if arrow:
            places[name.strip()] = rest.split(" (")[0].strip()
    return {name: places.get(name, "") for name in output("patchelf", "--print-needed", str(path)).split()}


def is_of_the_system(name):
    return name.split(".so")[0] in OF_THE_SYSTEM


def keep_licence(library, folder):
    """The licence of the package that a library comes from, once for each package."""
    owner = output("dpkg-query", "--search", f"*/{Path(library).resolve().name}").split(":")[0]
    shutil.copy(f"/usr/share/doc/{owner}/copyright", folder / f"{owner}.txt")


def carry(folder):
    library_folder, licences = folder / "lib", folder / "licences"
    library_folder.mkdir()
    licences.mkdir()
    waiting = [path for path in sorted(folder.rglob("*")) if path.is_file() and is_binary(path)]
    carried = {}
    while waiting:
        path = waiting.pop()
        for name, place in needed(path).items():
            if is_of_the_system(name) or name in carried:
                continue
            if not place or place == "not found":
                sys.exit(f"{path.name} needs {name}, which is not installed")
            target = library_folder / name
            shutil.copy(place, target)
            target.chmod(0o644)
            keep_licence(place, licences)
            carried[name] = target
            # Looked at where it lies on the system: there it finds what it needs in its turn.
            waiting.append(Path(place))
    for path in sorted(folder.rglob("*")):
        if path.is_file() and is_binary(path):
            way = os.path.relpath(library_folder, path.parent)
            subprocess.run(["patchelf", "--set-rpath", "$ORIGIN" if way == "." else f"$ORIGIN/{way}", str(path)], check=True)
    print(f"{len(carried)} libraries carried")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    carry(Path(sys.argv[1]).resolve())
