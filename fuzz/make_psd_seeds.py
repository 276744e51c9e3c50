#!/usr/bin/python3
"""Writes the seeds of fuzz_psd into fuzz/corpus/psd: small Photoshop files of each
colour model, raw and PackBits, with and without the merged transparency.

usage: make_psd_seeds.py [FOLDER]   (default: corpus/psd beside this script)
"""
import os
import struct
import sys


def packbits(row):
    out = bytearray()
    i = 0
    while i < len(row):
        run = 1
        while i + run < len(row) and run < 128 and row[i + run] == row[i]:
            run += 1
        if run >= 3:
            out += bytes([(257 - run) & 0xFF, row[i]])
            i += run
            continue
        literal = min(128, len(row) - i)
        out += bytes([literal - 1]) + row[i:i + literal]
        i += literal
    return bytes(out)


def psd(width, height, channels, depth, mode, compression, merged_alpha=False, color_data=b""):
    out = b"8BPS" + struct.pack(">H6xHIIHH", 1, channels, height, width, depth, mode)
    out += struct.pack(">I", len(color_data)) + color_data
    out += struct.pack(">I", 0)
    out += struct.pack(">IIh", 6, 2, -1) if merged_alpha else struct.pack(">I", 0)
    out += struct.pack(">H", compression)
    rows = []
    for c in range(channels):
        for y in range(height):
            if depth == 1:
                row = bytes(((x * 37 + y * 11 + c) & 0xFF) for x in range((width + 7) // 8))
            else:
                row = bytes(((x // 3 * 40 + y * 25 + c * 60) & 0xFF) for x in range(width * depth // 8))
            rows.append(packbits(row) if compression == 1 else row)
    if compression == 1:
        out += b"".join(struct.pack(">H", len(r)) for r in rows)
    return out + b"".join(rows)


SEEDS = {
    "rgb-raw": psd(6, 4, 3, 8, 3, 0),
    "rgb-packbits": psd(20, 5, 3, 8, 3, 1),
    "rgba-merged-alpha": psd(8, 3, 4, 8, 3, 1, merged_alpha=True),
    "rgb-16bit": psd(5, 3, 3, 16, 3, 1),
    "grey-packbits": psd(9, 4, 1, 8, 1, 1),
    "bitmap-1bit": psd(13, 3, 1, 1, 0, 0),
    "indexed": psd(4, 4, 1, 8, 2, 1, color_data=bytes(range(256)) * 3),
    "cmyk": psd(4, 2, 4, 8, 4, 0),
    "lab": psd(4, 2, 3, 8, 9, 1),
}


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "corpus", "psd")
    os.makedirs(folder, exist_ok=True)
    for name, data in SEEDS.items():
        with open(os.path.join(folder, name + ".psd"), "wb") as out:
            out.write(data)
    print(f"{len(SEEDS)} seeds written to {folder}")


if __name__ == "__main__":
    main()
