#!/usr/bin/python3
"""Reads every interop fixture with iconwright-cli and checks that it sees the same images
as icotool and Pillow: count, sizes, bit depths and cursor hotspots (and, when the CLI can
extract images, the same pixels as Pillow).

Then every file under ../crashers goes through every command: a file that info cannot read
makes each command fail with exit status 1 and info's own message; a file that info reads
converts to .ico, .cur and .ani.

usage: check_read.py ICONWRIGHT_CLI FIXTURE_DIR
"""
import json
import os
import subprocess
import sys
import tempfile

from PIL import Image

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "support"))
from cli_check import icotool_list, problems, report  # noqa: E402

STANDARD16 = {(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128),
              (0, 128, 128), (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0),
              (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255)}


def ours(cli, path):
    out = subprocess.run([cli, "info", "--json", path], capture_output=True, text=True, check=True)
    return json.loads(out.stdout)


def uses_only_standard16(path, index):
    """Whether icotool's extraction of image `index` (1-based) keeps to the sixteen colours."""
    with tempfile.TemporaryDirectory() as tmp:
        subprocess.run(["icotool", "-x", "-i", str(index), "-o", tmp, path], check=True,
                       capture_output=True)
        png = [f for f in os.listdir(tmp) if f.endswith(".png")][0]
        im = Image.open(os.path.join(tmp, png)).convert("RGBA")
        return all(px[:3] in STANDARD16 for px in im.getdata() if px[3] == 255)


def pillow_entries(path):
    if not path.lower().endswith(".ico"):
        return None
    im = Image.open(path)
    return sorted((e["width"] or 256, e["height"] or 256, e["bpp"]) for e in im.ico.entry)


def check(cli, path, problems):
    name = os.path.basename(path)
    mine = ours(cli, path)
    images = mine["images"]
    tool = icotool_list(path)
    if tool is not None:
        if len(tool) != len(images):
            problems.append(f"{name}: {len(images)} images, icotool {len(tool)}")
            return 0
        for index, (a, b) in enumerate(zip(images, tool)):
            if (a["width"], a["height"]) != (b["width"], b["height"]):
                problems.append(f"{name}#{index}: size {a['width']}x{a['height']}, icotool "
                                f"{b['width']}x{b['height']}")
            if a["bpp"] != b["bpp"]:
                # A 16-colour image with colours outside the sixteen is deliberately shown as
                # a 256-colour image.
                remarked = a["bpp"] == 8 and b["bpp"] == 4 and not uses_only_standard16(path, index + 1)
                if not remarked:
                    problems.append(f"{name}#{index}: {a['bpp']} bpp, icotool {b['bpp']}")
        if tool[0]["cursor"] and mine["hotspot"] != tool[0]["hotspot"]:
            problems.append(f"{name}: hotspot {mine['hotspot']}, icotool {tool[0]['hotspot']}")
    pil = pillow_entries(path)
    if pil is not None:
        mine_sorted = sorted((i["width"], i["height"], i["bpp"]) for i in images)
        remarked_ok = [(w, h, 8 if b == 4 else b) for (w, h, b) in pil]
        if mine_sorted != pil and mine_sorted != sorted(remarked_ok):
            problems.append(f"{name}: {mine_sorted}, Pillow {pil}")
    if tool is None and pil is None:
        problems.append(f"{name}: neither icotool nor Pillow reads it; nothing to compare")
    return len(images)


def check_every_command(cli, path, problems):
    name = os.path.basename(path)
    info = subprocess.run([cli, "info", path], capture_output=True, text=True)
    with tempfile.TemporaryDirectory() as tmp:
        if info.returncode == 0:
            for ext in (".ico", ".cur", ".ani"):
                out = subprocess.run([cli, "convert", path, os.path.join(tmp, "out" + ext)],
                                     capture_output=True, text=True)
                if out.returncode != 0:
                    problems.append(f"{name}: convert to {ext} ends with {out.returncode}: "
                                    f"{out.stderr.strip()}")
            return
        if info.returncode != 1:
            problems.append(f"{name}: info ends with {info.returncode}")
        for args in (["extract", path, os.path.join(tmp, "x")],
                     ["convert", path, os.path.join(tmp, "out.ico")],
                     ["convert", path, os.path.join(tmp, "out.png")],
                     ["pack", os.path.join(tmp, "out.ico"), path]):
            out = subprocess.run([cli, *args], capture_output=True, text=True)
            if (out.returncode, out.stderr) != (1, info.stderr):
                problems.append(f"{name}: {args[0]} ends with {out.returncode} saying "
                                f"{out.stderr.strip()!r}; info says {info.stderr.strip()!r}")


def main():
    cli, folder = sys.argv[1], sys.argv[2]
    files = sorted(f for f in os.listdir(folder) if f.endswith((".ico", ".cur")))
    count = sum(check(cli, os.path.join(folder, f), problems) for f in files)
    crashers = os.path.join(folder, os.pardir, "crashers")
    findings = sorted(os.listdir(crashers))
    for f in findings:
        check_every_command(cli, os.path.join(crashers, f), problems)
    return report("MISMATCH", f"Interop: {len(files)} files, {count} images; {len(findings)} "
                  f"findings through every command; {len(problems)} mismatches",
                  not files or not findings)


if __name__ == "__main__":
    sys.exit(main())
