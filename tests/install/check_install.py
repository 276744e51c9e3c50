#!/usr/bin/env python3
"""Checks an installed Iconwright tree beyond what the freedesktop validators check.

    check_install.py <prefix> <app id> <data folder from bin> <ON|OFF: the editor is built>

The programs run from their installed place and find their data from there; the icon theme
holds every size at its size; the desktop entry and the AppStream file name the same id and
MIME types; the manual pages format without a warning.
"""

import gzip
import os
import struct
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

ICON_SIZES = (16, 24, 32, 48, 64, 128, 256)


def desktop_entry(path):
    values = {}
    with open(path, encoding="utf-8") as entry:
        for line in entry:
            key, equals, value = line.rstrip("\n").partition("=")
            if equals:
                values[key] = value
    return values


def png_size(path):
    with open(path, "rb") as picture:
        head = picture.read(24)
    if head[:8] != b"\x89PNG\r\n\x1a\n" or head[12:16] != b"IHDR":
        return None
    return struct.unpack(">II", head[16:24])


def check(prefix, app_id, data_from_bin, has_gui):
    problems = []
    share = os.path.join(prefix, "share")
    bin_dir = os.path.join(prefix, "bin")
    programs = ["iconwright-cli"] + (["iconwright"] if has_gui else [])

    for program in programs:
        path = os.path.join(bin_dir, program)
        if not os.access(path, os.X_OK):
            problems.append(f"{path}: missing or not executable")
    cli = os.path.join(bin_dir, "iconwright-cli")
    if os.access(cli, os.X_OK):
        run = subprocess.run([cli, "--help"], capture_output=True, text=True)
        if run.returncode != 0 or "associate" not in run.stdout:
            problems.append(f"{cli} --help: exit {run.returncode}")

    templates = os.path.normpath(os.path.join(bin_dir, data_from_bin, "Templates"))
    found = sorted(f for f in os.listdir(templates) if f.endswith(".ini")) if os.path.isdir(templates) else []
    if not found:
        problems.append(f"{templates}: the program's templates are not where it looks")

    for size in ICON_SIZES:
        path = os.path.join(share, "icons", "hicolor", f"{size}x{size}", "apps", f"{app_id}.png")
        if not os.path.isfile(path) or png_size(path) != (size, size):
            problems.append(f"{path}: not a {size} x {size} PNG picture")
    svg = os.path.join(share, "icons", "hicolor", "scalable", "apps", f"{app_id}.svg")
    if not os.path.isfile(svg):
        problems.append(f"{svg}: missing")

    entry = desktop_entry(os.path.join(share, "applications", f"{app_id}.desktop"))
    if entry.get("Icon") != app_id:
        problems.append(f"the desktop entry's Icon is {entry.get('Icon')}, not {app_id}")
    if entry.get("Exec") != "iconwright %F":
        problems.append(f"the desktop entry's Exec is {entry.get('Exec')}")
    entry_types = [t for t in entry.get("MimeType", "").split(";") if t]

    metainfo = ElementTree.parse(os.path.join(share, "metainfo", f"{app_id}.metainfo.xml")).getroot()
    if metainfo.findtext("id") != app_id:
        problems.append(f"the AppStream id is {metainfo.findtext('id')}")
    if metainfo.findtext("launchable") != f"{app_id}.desktop":
        problems.append("the AppStream file launches another desktop entry")
    media_types = [m.text for m in metainfo.iter("mediatype")]
    if media_types != entry_types or len(entry_types) != 3:
        problems.append(f"MIME types: desktop entry {entry_types}, AppStream {media_types}")
    binaries = sorted(b.text for b in metainfo.iter("binary"))
    if binaries != sorted(programs):
        problems.append(f"the AppStream file provides {binaries}, the install {programs}")

    man_dir = os.path.join(share, "man", "man1")
    pages = sorted(os.listdir(man_dir)) if os.path.isdir(man_dir) else []
    if pages != sorted(f"{p}.1.gz" for p in programs):
        problems.append(f"manual pages {pages} for the programs {programs}")
    for page in pages:
        with gzip.open(os.path.join(man_dir, page)) as source:
            text = source.read()
        run = subprocess.run(["groff", "-man", "-ww", "-z", "-Tutf8"], input=text,
                             capture_output=True)
        if run.returncode != 0 or run.stderr:
            problems.append(f"{page}: {run.stderr.decode(errors='replace').strip()}")
    return problems


def main(argv):
    if len(argv) != 5:
        print(__doc__)
        return 2
    problems = check(argv[1], argv[2], argv[3], argv[4].upper() in ("ON", "TRUE", "1"))
    for problem in problems:
        print(problem)
    print(f"{len(problems)} problem(s) in the installed tree {argv[1]}")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
