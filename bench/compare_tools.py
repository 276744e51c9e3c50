#!/usr/bin/python3
"""Whole-process and in-process comparisons of iconwright-cli with ImageMagick, Pillow
and icotool doing the same work on the same icons, measured in one run.

Each timing is the median wall time of several runs of the complete command (process start
included); in-process figures come from Google Benchmark (ours) and timeit (Pillow).
Among them: info and convert of an icon of 175 different 256 px PNG entries against icotool
building that icon from the PNG files, the ratio printed as for every row.

usage: compare_tools.py BUILD_DIR    (BUILD_DIR holds src/app/iconwright-cli and bench/)
"""
import json
import os
import statistics
import subprocess
import sys
import tempfile
import time
import timeit

from PIL import Image, ImageDraw


def median_seconds(command, runs=15):
    times = []
    for _ in range(runs):
        start = time.perf_counter()
        subprocess.run(command, check=True, capture_output=True)
        times.append(time.perf_counter() - start)
    return statistics.median(times)


def art(size, seed):
    im = Image.new("RGBA", (size, size))
    px = im.load()
    for y in range(size):
        for x in range(size):
            d = (2 * x - size) ** 2 + (2 * y - size) ** 2
            a = 255 if d < size * size else (128 if d < size * size * 5 // 4 else 0)
            px[x, y] = ((x * 255) // size, (y * 255) // size, (seed * 40) % 256, a)
    return im


def main():
    build = sys.argv[1]
    cli = os.path.join(build, "src/app/iconwright-cli")
    bench = os.path.join(build, "bench/bench_icon_io")
    rows = []
    with tempfile.TemporaryDirectory() as tmp:
        # The 9-size icon, 256 px PNG-compressed, made by us.
        pictures = []
        for i, side in enumerate((256, 128, 96, 64, 48, 40, 32, 24, 16)):
            path = os.path.join(tmp, f"a{side}.png")
            art(side, i).save(path)
            pictures.append(path + (":32:png" if side == 256 else ":32"))
        nine = os.path.join(tmp, "nine.ico")
        subprocess.run([cli, "pack", nine, *pictures], check=True)
        out = os.path.join(tmp, "out.ico")
        ours = median_seconds([cli, "convert", nine, out])
        magick = median_seconds(["/usr/bin/convert", nine, out])
        pillow = median_seconds(["/usr/bin/python3", "-c",
                                 "import sys;from PIL import Image;im=Image.open(sys.argv[1]);"
                                 "im.save(sys.argv[2],sizes=sorted(im.info['sizes']))", nine, out])
        rows.append(("read and write the 9-size icon, whole process", ours, [("ImageMagick", magick), ("Pillow", pillow)]))

        # 175 PNG-compressed entries: ours re-saves from the bytes read; icotool packs the
        # same PNG files.
        many = []
        for i in range(175):
            side = (16, 24, 32, 48, 64)[i % 5]
            path = os.path.join(tmp, f"m{i}.png")
            art(side, i).save(path)
            many.append(path)
        png175 = os.path.join(tmp, "png175.ico")
        subprocess.run([cli, "pack", png175, *[m + ":32:png" for m in many]], check=True)
        ours = median_seconds([cli, "convert", png175, out], runs=7)
        icotool = median_seconds(["icotool", "-c", "-o", out, *["--raw=" + m for m in many]], runs=7)
        rows.append(("save a 175-entry PNG icon, whole process", ours, [("icotool", icotool)]))

        # 175 different 256 px PNG entries, packed by icotool: ours lists them (info) and
        # reads and saves them (convert); icotool builds the same file from the PNG files,
        # in the same run. Neither needs a pixel: the entries are never decoded.
        large = []
        bases = [art(256, seed) for seed in range(32)]  # the seed's colour repeats after 32
        for i in range(175):
            im = bases[i % 32].copy()
            ImageDraw.Draw(im).rectangle((i, 2 * (i % 64), i + 8, 2 * (i % 64) + 8), fill=(i, 255 - i, 7, 255))
            path = os.path.join(tmp, f"l{i}.png")
            im.save(path)
            large.append("--raw=" + path)
        big = os.path.join(tmp, "big.ico")
        subprocess.run(["icotool", "-c", "-o", big, *large], check=True)
        icotool = median_seconds(["icotool", "-c", "-o", out, *large])
        size = f"{os.path.getsize(big) // 1024} KB"
        for what, command in (("info", [cli, "info", big]), ("convert to .ico", [cli, "convert", big, out])):
            rows.append((f"{what} of 175 different 256 px PNG entries ({size}), whole process",
                         median_seconds(command), [("icotool building it from the PNGs", icotool)]))

        # 175 bitmap entries read in-process.
        bmp175 = os.path.join(tmp, "bmp175.ico")
        depths = (4, 8, 24, 32)
        subprocess.run([cli, "pack", bmp175, *[f"{m}:{depths[(i // 5) % 4]}" for i, m in enumerate(many)]], check=True)
        result = subprocess.run([bench, "--benchmark_filter=BM_Read175BitmapIcon", "--benchmark_format=json",
                                 "--benchmark_min_time=0.5"], check=True, capture_output=True, text=True)
        measured = json.loads(result.stdout)["benchmarks"][0]
        ours = measured["real_time"] / {"ns": 1e9, "us": 1e6, "ms": 1e3, "s": 1.0}[measured["time_unit"]]

        def pillow_read():
            im = Image.open(bmp175)
            for e in im.ico.entry:
                im.ico.getimage((e["width"] or 256, e["height"] or 256), e["bpp"]).load()

        pillow = min(timeit.repeat(pillow_read, number=3, repeat=5)) / 3
        rows.append(("read 175 bitmap entries in-process", ours, [("Pillow", pillow)]))

    print("| work | Iconwright | other tool | ratio (ours / theirs) |")
    print("|---|---|---|---|")
    for what, mine, others in rows:
        for name, theirs in others:
            print(f"| {what} | {mine * 1000:.1f} ms | {name} {theirs * 1000:.1f} ms | {mine / theirs:.2f} |")


if __name__ == "__main__":
    main()
