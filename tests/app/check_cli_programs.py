#!/usr/bin/python3
"""End-to-end checks of iconwright-cli on Windows libraries built from our test icons
(tests/data/pe/make_programs.sh): every group against the icon or cursor it was made from.

  - info --json lists the groups (type, name, language, languages) with the images of the
    source files, and shows the first icon group as the file's images;
  - extract writes DIR/<group>/<index>.png with the pixels of the source files (as Pillow
    decodes the PNG-compressed source, as our reader extracts the others);
  - convert --group writes one group: PNG entries byte for byte, a cursor with its hotspot;
    without --group the first icon group; unknown groups and misplaced options fail.

usage: check_cli_programs.py ICONWRIGHT_CLI PROGRAMS_DIR INTEROP_DIR
"""
import os
import struct
import sys
import tempfile

from PIL import Image

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "support"))
from cli_check import expect, problems, report  # noqa: E402
import cli_check  # noqa: E402

CLI, PROGRAMS, INTEROP = sys.argv[1:4]

# Group (type, name, language asked) -> the file it was made from.
GROUPS = [
    ("icon", "APP", None, "pillow-png-16-256.ico"),
    ("icon", "1", None, "icotool-4bpp-16-48.ico"),
    ("icon", "1", 1033, "icotool-32bpp-16-256.ico"),
    ("icon", "2", None, "icotool-8bpp-48.ico"),
    ("icon", "3", None, "icotool-4bpp-nonstandard-48.ico"),
    ("cursor", "POINTER", None, "icotool-cursor-32.cur"),
    ("cursor", "7", None, "icotool-cursor-32.cur"),
]


def cli(*args):
    return cli_check.run(CLI, *args)


def info(path):
    return cli_check.info(CLI, path)


def shapes(images):
    return [(i["width"], i["height"], i["bpp"], i["png"]) for i in images]


def pixels(png):
    with Image.open(png) as im:
        return list(im.convert("RGBA").getdata())


def entries(path):
    """The (width, height, hotspot or planes/bpp, data) of each entry of an ICO/CUR file."""
    data = open(path, "rb").read()
    _, kind, count = struct.unpack_from("<HHH", data)
    out = []
    for i in range(count):
        w, h, _, _, a, b, size, offset = struct.unpack_from("<BBBBHHII", data, 6 + 16 * i)
        out.append((kind, a, b, data[offset:offset + size]))
    return out


def extract(path, folder):
    run = cli("extract", path, folder)
    expect(run.returncode == 0, f"extract {path}: {run.stderr}")


def check_library(library, tmp):
    path = os.path.join(PROGRAMS, library)
    listed = info(path)
    names = [(g["type"], g["name"]) for g in listed["groups"]]
    expect(names == [("icon", "APP"), ("icon", "1"), ("icon", "2"), ("icon", "3"),
                     ("cursor", "POINTER"), ("cursor", "7")], f"{library}: groups {names}")
    expect(shapes(listed["images"]) == shapes(info(os.path.join(INTEROP, GROUPS[0][3]))["images"]),
           f"{library}: the file's images are not the first icon group's")
    expect(listed["groups"][1]["language"] == 1031 and listed["groups"][1]["languages"] == [1031, 1033],
           f"{library}: group 1's languages {listed['groups'][1]}")

    out = os.path.join(tmp, library + ".extracted")
    extract(path, out)
    for kind, name, language, source in GROUPS:
        where = f"{library} {kind} {name} {language}"
        group = next(g for g in listed["groups"] if (g["type"], g["name"]) == (kind, name))
        source_path = os.path.join(INTEROP, source)
        source_info = info(source_path)
        reference = os.path.join(tmp, f"{source}.extracted")
        if not os.path.isdir(reference):
            extract(source_path, reference)
        if language is None:
            expect(len(group["images"]) == len(source_info["images"]), f"{where}: image count")
            for i in range(len(group["images"])):
                got = os.path.join(out, name, f"{i}.png")
                expect(os.path.exists(got) and pixels(got) == pixels(os.path.join(reference, f"{i}.png")),
                       f"{where}: extracted image {i} differs from the source's")
            if source.startswith("pillow-png"):
                ico = Image.open(source_path).ico
                for i, image in enumerate(group["images"]):
                    decoded = ico.getimage((image["width"], image["height"])).convert("RGBA")
                    expect(pixels(os.path.join(out, name, f"{i}.png")) == list(decoded.getdata()),
                           f"{where}: image {i} differs from Pillow's reading of the source")

        suffix = ".cur" if kind == "cursor" else ".ico"
        converted = os.path.join(tmp, f"{library}-{name}-{language}{suffix}")
        args = ["convert", path, converted, "--group", name.lower()]
        if language is not None:
            args += ["--language", str(language)]
        run = cli(*args)
        expect(run.returncode == 0, f"{where}: convert failed: {run.stderr}")
        if run.returncode != 0:
            continue
        if kind == "cursor":
            (_, hx, hy, _), = entries(converted)
            expect((hx, hy) == (5, 7), f"{where}: hotspot {hx}, {hy}")
        else:
            expect(shapes(info(converted)["images"]) == shapes(source_info["images"]),
                   f"{where}: converted images")
            for (_, _, _, a), (_, _, _, b) in zip(entries(converted), entries(source_path)):
                if a[:4] == b"\x89PNG":
                    expect(a == b, f"{where}: a PNG entry was not copied byte for byte")
        back = os.path.join(tmp, f"{library}-{name}-{language}.back")
        extract(converted, back)
        expect(len(os.listdir(back)) == (1 if kind == "cursor" else len(source_info["images"])),
               f"{where}: {len(os.listdir(back))} images converted")
        for i in range(len(os.listdir(back))):
            expect(pixels(os.path.join(back, f"{i}.png")) == pixels(os.path.join(reference, f"{i}.png")),
                   f"{where}: converted image {i} differs from the source's")


def check_defaults_and_errors(tmp):
    programs = os.path.join(PROGRAMS, "programs64.dll")
    first = os.path.join(tmp, "first.ico")
    expect(cli("convert", programs, first).returncode == 0, "convert without --group")
    expect(shapes(info(first)["images"]) == shapes(info(os.path.join(INTEROP, GROUPS[0][3]))["images"]),
           "convert without --group is not the first icon group")
    cursor = os.path.join(tmp, "only.cur")
    expect(cli("convert", os.path.join(PROGRAMS, "cursors64.dll"), cursor).returncode == 0,
           "convert of a cursor library")
    expect([(a, b) for _, a, b, _ in entries(cursor)] == [(5, 7)], "the cursor library's hotspot")
    run = cli("convert", programs, os.path.join(tmp, "none.ico"), "--group", "NOPE")
    expect(run.returncode == 1 and "NOPE" in run.stderr, f"an unknown group: {run.returncode}")
    run = cli("convert", os.path.join(INTEROP, "icotool-1bpp-32.ico"), os.path.join(tmp, "x.ico"),
              "--group", "1")
    expect(run.returncode == 2, f"--group on an icon file: {run.returncode}")
    scanned = info(os.path.join(PROGRAMS, "noicons64.dll"))
    expect(scanned["groups"] == [] and len(scanned["images"]) == 3, "a library without groups")
    expect(info(os.path.join(INTEROP, "icotool-1bpp-32.ico"))["groups"] == [], "an icon file's groups")


def main():
    with tempfile.TemporaryDirectory() as tmp:
        for library in ("programs64.dll", "programs32.dll"):
            check_library(library, tmp)
        check_defaults_and_errors(tmp)
    return report("FAIL:", f"Programs: {len(problems)} problems")


if __name__ == "__main__":
    sys.exit(main())
