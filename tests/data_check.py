#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""Checks what people wrote and drew for the portable folder: help, tips, icons, pictures, information texts.

Usage: data_check.py [PROJECT_FOLDER]. Each fault is one line; the exit status is 1 if there is any.
"""
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
from pathlib import Path

ICONS = """new open save print cut copy paste undo redo find replace goto favourite-add macros-view macros-update
macros-identify tile colour insert-title insert-heading insert-rem compile download preferences help composer tumbo
template-editor image-viewer mouse-wizard quick-view layout-joystick layout-throttle layout-custom multi-editor launcher
key-tester analyser logical-flags control-panel custom-app shortcut-editor shortcut-layout shortcut-readme tab-joystick
tab-macro tab-protected saved-empty saved-saved saved-modified mode-off mode-windows mode-programmed mode-unknown zeph exit
delete bold italic underline bullets align-left align-centre align-right""".split()

# A pilot who presses F1 on any of these words must find something.
LANGUAGE_WORDS = """BTN DEF /U /M /D /I /O /A /H /T /P /R CURVE DELAY PULSE USB DLY RPT KD KU MSX MSY MSZ TRIM HOLDTRIM
LOCK UNLOCK SWAP REVERSE FORWARD MOUSEXY MOUSEMOVE MOUSEROTATE EMULATION_ON EMULATION_OFF AXIS_MODE_USER AXIS_MODE_WINDOWS
CALIBRATION_AUTO CALIBRATION_MANUAL USE DISABLE MDEF NULLCHR OR NOT AND MTYPE KEYBOARD AS POV ARROWKEYS KEYPAD ZEPH GRAPHIC
README PROFILE MOUSE RATE HAT1_SENSITIVITY HAT2_SENSITIVITY HAT3_SENSITIVITY HAT4_SENSITIVITY T1_SENSITIVITY SHIFTBTN
THR_RANGE SCREEN_RESOLUTION REVERSE_LR REVERSE_UD REVERSE_DIR FORCED_CORNERS NOHOLD FORCE_MACROS NO_BUTTON ZERO_MOUSE
CHORDED_FDFU HWSTARTUP WINDOW_STYLE ALL_DIRECTX_BUTTONS S3_LOCK S3_UNLOCK LASTVALUE AXES_CONFIG MOUSE_LB MOUSE_RB MOUSE_MB
REVERSE_TOGGLES RESET_TOGGLES MOUSEX MOUSEY MOUSEZ JOYX JOYY ANT RNG THR RDDR LBRK RBRK MIX MIY JOYSTICK ROTARIES TOEBRAKES
MICROSTICK POVU POVD POVL POVR POVUL POVDL POVUR POVDR TO_CURRENT (AUTO) (CUSTOM) Rem RUN_APP STICK_OFF EMPTY_BUFFERS S1 S4
TG1 TG2 T1 T10 H1U H4DR HAT1 HAT4 RADIOSWITCH logic X1""".split()

# What the windows ask the help for.
WINDOW_WORDS = ["find", "macro list"]

# What pages must tell of the language, blanks and line ends apart: units, what is not known, and what is checked.
HELP_PHRASES = {
    "bodies.html": ["The number is milliseconds", "and it stays until another one comes",
                    "nor whether it reaches repeats that are already running", "brackets( ) < > { } with a blank on both sides",
                    "SHF 9, SHF 0, SHF ,, SHF ., SHF [, SHF ]", "signs with Shift~ ! @ # $ % & * _ + | : \" ?",
                    "Brackets as keys", "only SHF 6: alone it means nothing at all"],
    "logical-flags.html": ["PULSE(value value)", "Which of the two is the time on is not known to us",
                           "DELAY(value)", "the number probably counts milliseconds"],
    "mouse.html": ["MSZ(value) is the same for the wheel", "In which steps it turns depends on the game",
                   "unless all their places are given in percent"],
    "thrustmaster-tools.html": ["What the stand-in compiler checks", "CheckedNot checked",
                                "What it does not know, it lets pass"],
    "use-statements.html": ["2is an icon, with the focus", "3is maximised, with the focus"],
}

faults = []


def fault(where, what):
    faults.append(f"{where}: {what}")


def pages(help_folder):
    """Every help page as an element tree, by file name."""
    found = {}
    for path in sorted(help_folder.glob("*.html")):
        try:
            found[path.name] = ET.parse(path).getroot()
        except ET.ParseError as error:
            fault(path, f"is not well formed: {error}")
    return found


def anchors(tree):
    return {e.get("name") for e in tree.iter("a") if e.get("name")}


def check_target(where, target, trees, folder):
    """A link's or an index line's target: a file beside the page, and the place in it."""
    name, _, anchor = target.partition("#")
    if not (folder / name).exists():
        fault(where, f"names {name}, which does not exist")
    elif anchor and anchor not in anchors(trees.get(name, ET.Element("none"))):
        fault(where, f"names the place {anchor} of {name}, which does not exist")


def check_pages(folder, trees):
    for name, tree in trees.items():
        where = folder / name
        if not "".join(tree.find("head/title").itertext()).strip():
            fault(where, "has no title")
        for tag in ("script", "iframe", "font"):
            if tree.find(f".//{tag}") is not None:
                fault(where, f"has a <{tag}>, which the help window cannot show or which fixes a colour")
        names = [e.get("name") for e in tree.iter("a") if e.get("name")]
        for twice in {n for n in names if names.count(n) > 1}:
            fault(where, f"has the place {twice} twice")
        for element in tree.iter():
            if element.get("color") or element.get("bgcolor") or "color" in element.get("style", ""):
                fault(where, f"fixes a colour in <{element.tag}>, unreadable with a dark palette")
            target = element.get("href") or element.get("src")
            if target:
                if ":" in target:
                    fault(where, f"links outside: {target}")
                check_target(where, (name + target) if target.startswith("#") else target, trees, folder)


def check_lessons(folder):
    """The wizards' pages: the help's rules for pages, and drawings that can be read."""
    trees = pages(folder)
    check_pages(folder, trees)
    for path in sorted(folder.glob("*.svg")):
        try:
            if not ET.parse(path).getroot().get("viewBox"):
                fault(path, "has no viewBox")
        except ET.ParseError as error:
            fault(path, f"is not well formed: {error}")
    for name, tree in trees.items():
        if "../Help/help.css" not in [e.get("href") for e in tree.iter("link")]:
            fault(folder / name, "does not look like the help")


def check_phrases(folder, trees):
    for name, phrases in HELP_PHRASES.items():
        tree = trees.get(name)
        text = " ".join("".join(tree.itertext()).split()) if tree is not None else ""
        for phrase in phrases:
            if phrase not in text:
                fault(folder / name, f"does not say: {phrase}")


def check_topics(folder, trees):
    where = folder / "topics.txt"
    numbers, files = set(), set()
    for line in where.read_text(encoding="utf-8").splitlines():
        number, file, title = line.split("\t")
        if number in numbers:
            fault(where, f"has the number {number} twice")
        numbers.add(number)
        files.add(file)
        if file not in trees:
            fault(where, f"topic {number} names {file}, which does not exist")
        elif "".join(trees[file].find("head/title").itertext()) != title:
            fault(where, f"topic {number} has another title than {file}")
    if "100" not in numbers:
        fault(where, "has no topic 100, the one for learners")
    for name in trees.keys() - files:
        fault(folder / name, "has no topic number")
    linked = {a.get("href") for a in trees.get("contents.html", ET.Element("none")).iter("a")}
    for name in trees.keys() - linked - {"contents.html"}:
        fault(folder / name, "is not in the contents")


def check_index(folder, trees):
    where = folder / "index.txt"
    keys = []
    for line in where.read_text(encoding="utf-8").splitlines():
        key, _, target = line.partition("\t")
        keys.append(key)
        check_target(where, target, trees, folder)
    if keys != sorted(keys, key=lambda k: (k.lower(), k)):
        fault(where, "is not sorted")
    lowered = [k.lower() for k in keys]
    if len(set(lowered)) != len(lowered):
        fault(where, "has a keyword twice")
    for word in LANGUAGE_WORDS + WINDOW_WORDS:
        if word.lower() not in lowered:
            fault(where, f"does not know the word {word}")


def check_text(path, longest=0):
    """A text for Windows editors: code page 1252, CR LF, no empty lines where each line is an item."""
    raw = path.read_bytes()
    try:
        text = raw.decode("cp1252")
    except UnicodeDecodeError:
        fault(path, "is not Windows-1252")
        return
    if raw.count(b"\n") != raw.count(b"\r\n") or not raw.endswith(b"\r\n"):
        fault(path, "has line ends other than CR LF")
    if longest:
        for number, line in enumerate(text.split("\r\n")[:-1], 1):
            if not line.strip() or len(line) > longest:
                fault(path, f"line {number} is empty or longer than {longest}")


def check_names(path, longest, refused=""):
    """A list of names, one a line, each once in any case and without the refused characters."""
    check_text(path, longest)
    seen = set()
    for number, line in enumerate(path.read_text(encoding="cp1252").splitlines(), 1):
        if len(line) < 2 or line != line.strip() or any(c in refused for c in line):
            fault(path, f"line {number} holds what no such name may hold")
        if line.lower() in seen:
            fault(path, f"line {number} stands there twice")
        seen.add(line.lower())


def check_rtf(path):
    raw = path.read_bytes()
    check_text(path)
    if not raw.startswith(b"{\\rtf1") or max(raw) > 127:
        fault(path, "is not plain ASCII RTF")
    depth = 0
    text = raw.replace(b"\\\\", b"").replace(b"\\{", b"").replace(b"\\}", b"")
    for byte in text:
        depth += {ord("{"): 1, ord("}"): -1}.get(byte, 0)
        if depth < 0:
            break
    if depth:
        fault(path, "has unbalanced braces")


def check_information(data):
    path = data / "Info" / "ZephInfo.ini"
    check_text(path)
    sections, now = {}, None
    for line in path.read_text(encoding="cp1252").splitlines():
        if line.startswith("["):
            now = sections.setdefault(line.strip("[]"), {})
        elif "=" in line and not line.startswith(";"):
            key, _, value = line.partition("=")
            now[key] = value
    for section, count, key, folder in (("Online Help", "NumberOfTopics", "InfoFile", data / "Info"),
                                        ("Manuals", "NumberOfManuals", "Path", data)):
        keys = sections.get(section, {})
        for n in range(1, int(keys.get(count, 0)) + 1):
            if not keys.get(f"MenuCaption{n}"):
                fault(path, f"[{section}] has no MenuCaption{n}")
            target = keys.get(f"{key}{n}", "")
            if not target or not (folder / target.replace("\\", "/")).is_file():
                fault(path, f"[{section}] {key}{n} names {target!r}, which does not exist")
        if f"{key}{int(keys.get(count, 0)) + 1}" in keys or not int(keys.get(count, 0)):
            fault(path, f"[{section}] {count} does not count its entries")


def luminance(colour):
    parts = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    linear = [c / 12.92 if c <= 0.03928 else ((c + 0.055) / 1.055) ** 2.4 for c in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def check_icons(folder):
    for name in ICONS:
        path = folder / f"{name}.svg"
        if not path.exists():
            fault(path, "is missing")
            continue
        try:
            root = ET.parse(path).getroot()
        except ET.ParseError as error:
            fault(path, f"is not well formed: {error}")
            continue
        if root.get("viewBox") != "0 0 24 24":
            fault(path, "is not drawn on 24 by 24")
        if name == "zeph":
            continue
        for element in root.iter():
            for colour in (element.get("stroke"), element.get("fill")):
                if colour and colour.startswith("#"):
                    light = (luminance("#f0f0f0") + 0.05) / (luminance(colour) + 0.05)
                    dark = (luminance(colour) + 0.05) / (luminance("#2b2b2b") + 0.05)
                    if light < 3 or dark < 3:
                        fault(path, f"{colour} does not stand out on light and on dark windows")


def check_bitmap(path, width, height):
    head = path.read_bytes()[:30]
    if head[:2] != b"BM" or struct.unpack("<ii", head[18:26]) != (width, height) or struct.unpack("<H", head[28:30]) != (24,):
        fault(path, f"is not a 24-bit bitmap of {width} by {height}")


def run(where, *command):
    """Runs a validator that is installed on most, not on all, machines."""
    if shutil.which(command[0]):
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        if result.returncode:
            fault(where, (result.stdout + result.stderr).strip().replace("\n", "; "))


def check_packaging(folder):
    for name in ("zeph-mime.xml", "zeph.metainfo.xml"):
        try:
            ET.parse(folder / name)
        except (ET.ParseError, OSError) as error:
            fault(folder / name, error)
    run(folder / "zeph.desktop", "desktop-file-validate", str(folder / "zeph.desktop"))
    run(folder / "zeph.metainfo.xml", "appstreamcli", "validate", "--no-net", str(folder / "zeph.metainfo.xml"))
    with tempfile.TemporaryDirectory() as scratch:
        packages = Path(scratch) / "packages"
        packages.mkdir()
        shutil.copy(folder / "zeph-mime.xml", packages)
        run(folder / "zeph-mime.xml", "update-mime-database", scratch)
        globs = Path(scratch) / "globs2"
        known = globs.read_text(encoding="utf-8") if globs.exists() else None
        for ending in "tmj tmm f22 b50 adv m22 m50 mdf".split():
            if known is not None and f":*.{ending}\n" not in known:
                fault(folder / "zeph-mime.xml", f"does not know .{ending}")


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    data = root / "data"
    help_folder = data / "Help"
    trees = pages(help_folder)
    check_pages(help_folder, trees)
    check_pages(data / "Wizards", pages(data / "Wizards"))
    check_phrases(help_folder, trees)
    check_lessons(data / "Wizards")
    check_topics(help_folder, trees)
    check_index(help_folder, trees)
    check_text(data / "Tips.txt", 250)
    check_text(data / "ReadMe.txt")
    for path in sorted((data / "Files").iterdir()):
        check_text(path)
    check_text(data / "KeyCodes.txt", 60)
    if (data / "KeyCodes.txt").read_bytes() != (data / "Info" / "KeyCodes.txt").read_bytes():
        fault(data / "Info" / "KeyCodes.txt", "is no copy of the table that it is the backup of")
    check_names(data / "DefaultMacroHeadings.txt", 40)
    check_names(data / "DefaultMacros.txt", 32, " <>{}()^,=")
    check_text(data / "Templates" / "Hints for templates.txt")
    for path in sorted((data / "Templates").glob("*.rtf")):
        check_rtf(path)
    for path in sorted((data / "Info").glob("*.rtf")):
        check_rtf(path)
    check_information(data)
    check_icons(data / "icons")
    check_bitmap(data / "Zeph.bmp", 480, 320)
    check_bitmap(data / "Welcome.bmp", 240, 400)
    check_packaging(root / "packaging")
    for line in faults:
        print(line)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
