#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
"""Checks what is written for packages: one version everywhere, and a man page that tells every option.

Usage: packaging_check.py PROJECT_FOLDER ZEPH. Each fault is one line; the exit status is 1 if there is any.
"""
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

faults = []


def found(path, pattern):
    """The first group of a pattern in a file; a fault and nothing when it is not there."""
    match = re.search(pattern, path.read_text(encoding="utf-8"), re.MULTILINE)
    if match is None:
        faults.append(f"{path}: has no {pattern}")
    return match.group(1) if match else ""


def numbers(version):
    return [int(part) for part in version.split(".") if part.isdigit()]


def check_versions(project, zeph):
    version = found(project / "src/shell/version_check.h", r'versionText\[\] = u"(.*)"')
    told = subprocess.run([zeph, "--version"], capture_output=True, text=True, check=False).stdout
    if told != f"Zeph {version}\n":
        faults.append(f"{zeph} --version: says {told!r}")
    packaging = project / "packaging"
    for path, pattern in ((packaging / "debian/changelog", r"\Azeph \((.*)\)"), (packaging / "zeph.1", r'^\.TH.*"Zeph (.*?)"')):
        if found(path, pattern) != version:
            faults.append(f"{path}: is not of version {version}")
    # Where a form is prescribed that leaves out zeros in front.
    release = ET.parse(packaging / "zeph.metainfo.xml").getroot().find("releases/release")
    for path, text in (("zeph.metainfo.xml", release.get("version")),
                       ("CMakeLists.txt", found(project / "CMakeLists.txt", r"project\(zeph VERSION (\S+)"))):
        if numbers(text) != numbers(version):
            faults.append(f"{path}: is not of version {version}")


def check_man_page(page, zeph):
    text = page.read_text(encoding="utf-8")
    options = text[text.index(".SH OPTIONS"):text.index(".SH EXIT STATUS")].replace("\\-", "-")
    described = set(re.findall(r'^\.TP\n\.B\S* "?(--[a-z]+)', options, re.MULTILINE))
    answer = subprocess.run([zeph, "--help"], capture_output=True, text=True, check=False).stdout
    offered = set(re.findall(r"^  (--[a-z]+)", answer, re.MULTILINE))
    if not offered:
        faults.append(f"{zeph} --help: offers no options")
    for option in sorted(described ^ offered):
        faults.append(f"{page}: {option} is only {'here' if option in described else 'in --help'}")
    if shutil.which("groff"):
        said = subprocess.run(["groff", "-man", "-ww", "-z", "-rCHECKSTYLE=3", str(page)], capture_output=True, text=True, check=False)
        faults.extend(said.stderr.splitlines())


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    project = Path(sys.argv[1])
    check_versions(project, sys.argv[2])
    check_man_page(project / "packaging/zeph.1", sys.argv[2])
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
