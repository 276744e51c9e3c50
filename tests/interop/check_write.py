#!/usr/bin/python3
"""End-to-end checks of iconwright-cli's writing against independent readers.

  - every image of every interop fixture extracts to the pixels Pillow reads;
  - an icon packed from a picture at every depth (and PNG-compressed) is read by Pillow,
    ImageMagick and icotool with the same sizes, depths and pixels;
  - a cursor keeps its hotspot for icotool;
  - an animated cursor has the chunk layout of the RIFF format, walked here from scratch.

usage: check_write.py ICONWRIGHT_CLI FIXTURE_DIR
"""
import json
import os
import struct
import subprocess
import sys
import tempfile

from PIL import Image

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "support"))
from cli_check import icotool_list, problems, report  # noqa: E402

CLI = None
checked = 0


def run(*args):
    out = subprocess.run([CLI, *args], capture_output=True, text=True)
    if out.returncode != 0:
        raise RuntimeError(f"iconwright-cli {' '.join(args)} failed: {out.stderr.strip()}")
    return out.stdout


def same_visible_pixels(a, b, what, tolerance=0):
    """RGBA images equal in size and alpha, and in colour wherever a pixel shows."""
    global checked
    checked += 1
    if a.size != b.size:
        problems.append(f"{what}: size {a.size} against {b.size}")
        return
    for i, (p, q) in enumerate(zip(a.getdata(), b.getdata())):
        if abs(p[3] - q[3]) > tolerance or (p[3] and max(abs(p[k] - q[k]) for k in range(3)) > tolerance):
            problems.append(f"{what}: pixel {i % a.size[0]},{i // a.size[0]} {p} against {q}")
            return


def pillow_images(path):
    """Every entry of an .ico as Pillow reads it, by (width, height, bpp)."""
    im = Image.open(path)
    return {(e["width"] or 256, e["height"] or 256, e["bpp"]): im.ico.getimage((e["width"] or 256, e["height"] or 256), e["bpp"]).convert("RGBA")
            for e in im.ico.entry}


def check_extract(folder, tmp):
    for name in sorted(os.listdir(folder)):
        if not name.endswith(".ico"):
            continue
        path = os.path.join(folder, name)
        out = os.path.join(tmp, name + ".x")
        run("extract", path, out)
        info = json.loads(run("info", "--json", path))
        theirs = Image.open(path)
        for image in info["images"]:
            ours = Image.open(os.path.join(out, f"{image['index']}.png")).convert("RGBA")
            entries = [e for e in theirs.ico.entry if (e["width"] or 256) == image["width"]]
            if not entries:
                problems.append(f"{name}#{image['index']}: Pillow has no {image['width']} px entry")
                continue
            e = entries[0]
            pil = theirs.ico.getimage((e["width"] or 256, e["height"] or 256), e["bpp"]).convert("RGBA")
            same_visible_pixels(ours, pil, f"extract {name}#{image['index']}")


def picture(size):
    im = Image.new("RGBA", (size, size))
    for y in range(size):
        for x in range(size):
            a = 0 if (x - size / 2) ** 2 + (y - size / 2) ** 2 > (size / 2.2) ** 2 else 255
            if size >= 32 and x == y:
                a = 100
            im.putpixel((x, y), ((x * 255) // size, (y * 255) // size, (x * y) % 256, a))
    return im


def check_pack(tmp):
    src = os.path.join(tmp, "src48.png")
    picture(48).save(src)
    big = os.path.join(tmp, "src256.png")
    picture(256).save(big)
    ico = os.path.join(tmp, "packed.ico")
    run("pack", ico, f"{src}:1", f"{src}:4", f"{src}:8", f"{src}:24", f"{src}:32", f"{big}:32:png")
    # Our own view of what we wrote, as extracted pictures.
    ours_dir = os.path.join(tmp, "packed.x")
    run("extract", ico, ours_dir)
    depths = [1, 4, 8, 24, 32, 32]
    # icotool
    listing = icotool_list(ico) or []
    if len(listing) != 6:
        problems.append(f"icotool lists {len(listing)} images in the packed icon")
    for i, image in enumerate(listing):
        if (image["width"], image["bpp"]) != (256 if i == 5 else 48, depths[i]):
            problems.append(f"icotool: packed #{i}: {image}")
        xdir = os.path.join(tmp, f"icotool{i}")
        os.makedirs(xdir)
        subprocess.run(["icotool", "-x", "-i", str(i + 1), "-o", xdir, ico], check=True, capture_output=True)
        theirs = Image.open(os.path.join(xdir, os.listdir(xdir)[0])).convert("RGBA")
        ours = Image.open(os.path.join(ours_dir, f"{i}.png")).convert("RGBA")
        same_visible_pixels(ours, theirs, f"icotool packed #{i} ({depths[i]} bpp)")
    # Pillow
    pil = pillow_images(ico)
    for i, bpp in enumerate(depths):
        size = 256 if i == 5 else 48
        key = (size, size, bpp)
        if key not in pil:
            problems.append(f"Pillow: no {key} entry in the packed icon: {sorted(pil)}")
            continue
        ours = Image.open(os.path.join(ours_dir, f"{i}.png")).convert("RGBA")
        same_visible_pixels(ours, pil[key], f"Pillow packed #{i} ({bpp} bpp)")
    # ImageMagick
    ident = subprocess.run(["/usr/bin/identify", "-format", "%w %h\n", ico], capture_output=True, text=True, check=True).stdout.split()
    if len(ident) != 12:
        problems.append(f"ImageMagick identifies {len(ident) // 2} images in the packed icon")
    for i in range(6):
        png = os.path.join(tmp, f"magick{i}.png")
        subprocess.run(["/usr/bin/convert", f"{ico}[{i}]", f"PNG32:{png}"], check=True, capture_output=True)
        ours = Image.open(os.path.join(ours_dir, f"{i}.png")).convert("RGBA")
        same_visible_pixels(ours, Image.open(png).convert("RGBA"), f"ImageMagick packed #{i}", tolerance=1)


def check_cursor(tmp):
    src = os.path.join(tmp, "c.png")
    picture(32).save(src)
    cur = os.path.join(tmp, "c.cur")
    run("pack", cur, f"{src}:32", "--hotspot", "9,12")
    listing = icotool_list(cur)
    global checked
    checked += 1
    if not listing or not listing[0]["cursor"] or listing[0]["hotspot"] != [9, 12]:
        problems.append(f"icotool reads the cursor as: {listing}")


def walk(data, begin, end, parent, out):
    at = begin
    while at < end:
        if at + 8 > end:
            raise ValueError(f"chunk header cut at {at}")
        tag = data[at:at + 4].decode("latin-1")
        size = struct.unpack_from("<I", data, at + 4)[0]
        if at + 8 + size > end:
            raise ValueError(f"{tag} runs past its parent")
        body = data[at + 8:at + 8 + size]
        out.append((parent + tag, body))
        if tag == "LIST":
            walk(data, at + 12, at + 8 + size, parent + "LIST:" + body[:4].decode("latin-1") + "/", out)
        at += 8 + size + (size & 1)
    if at != end:
        raise ValueError("chunks do not fill their parent")


def check_ani(tmp):
    global checked
    frames = []
    for i in range(3):
        path = os.path.join(tmp, f"f{i}.png")
        picture(32).rotate(90 * i).save(path)
        frames.append(path + ":32")
    ani = os.path.join(tmp, "spin.ani")
    run("pack", ani, *frames, "--rate", "8", "--name", "Spinner", "--artist", "Ann", "--sequence", "0,1,2,1", "--hotspot", "4,5")
    data = open(ani, "rb").read()
    checked += 1
    try:
        if data[:4] != b"RIFF" or data[8:12] != b"ACON" or struct.unpack_from("<I", data, 4)[0] != len(data) - 8:
            raise ValueError("bad RIFF header")
        chunks = []
        walk(data, 12, len(data), "", chunks)
        found = dict(chunks)
        if found.get("LIST:INFO/INAM") != b"Spinner" or found.get("LIST:INFO/IART") != b"Ann":
            raise ValueError("name or artist missing")
        anih = struct.unpack("<9I", found["anih"])
        if anih != (36, 3, 4, 0, 0, 0, 0, 8, 1):
            raise ValueError(f"anih {anih}")
        if "rate" in found:
            raise ValueError("rate chunk written though every frame has one rate")
        if struct.unpack("<4I", found["seq "]) != (0, 1, 2, 1):
            raise ValueError("seq chunk")
        icons = [body for path, body in chunks if path == "LIST:fram/icon"]
        if len(icons) != 3:
            raise ValueError(f"{len(icons)} frames")
        for body in icons:
            reserved, kind, count = struct.unpack_from("<3H", body, 0)
            hx, hy, size, offset = struct.unpack_from("<HHII", body, 10)
            if (kind, count, hx, hy, offset) != (2, 1, 4, 5, 22) or size + 22 != len(body):
                raise ValueError("frame is not a one-image cursor with the hotspot")
    except (ValueError, KeyError, struct.error) as e:
        problems.append(f"animated cursor: {e}")


def main():
    global CLI
    CLI, folder = sys.argv[1], sys.argv[2]
    with tempfile.TemporaryDirectory() as tmp:
        for check in (lambda: check_extract(folder, tmp), lambda: check_pack(tmp),
                      lambda: check_cursor(tmp), lambda: check_ani(tmp)):
            try:
                check()
            except Exception as e:  # a tool failing is a finding, not a crash of the test
                problems.append(f"{type(e).__name__}: {e}")
    return report("MISMATCH", f"Interop: {checked} images and files checked; {len(problems)} "
                  "mismatches", checked == 0)


if __name__ == "__main__":
    sys.exit(main())
