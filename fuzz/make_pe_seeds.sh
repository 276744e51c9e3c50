#!/bin/sh
# Writes the seeds of fuzz_pe into fuzz/corpus/pe: the small test libraries (PE32+ and
# PE32, an icon group in two languages and a cursor group), the cursor-only and the
# group-less library, and a 16-bit icon library (NE) made here, each with a last byte that
# picks the first group. Needs the MinGW-w64 binutils (tests/data/pe/make_programs.sh).
#
#   make_pe_seeds.sh [FOLDER]   (default: corpus/pe beside this script)
set -eu
here=$(cd "$(dirname "$0")" && pwd)
out=${1:-$here/corpus/pe}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
sh "$here/../tests/data/pe/make_programs.sh" "$work"
mkdir -p "$out"
for name in small64 small32 cursors64 noicons64; do
  cat "$work/$name.dll" >"$out/$name"
  printf '\000' >>"$out/$name"
done

# A 16-bit icon library: an NE header, a resource table (shift 4) with RT_ICON 1 (the
# 1-bit image of icotool-1bpp-32.ico) and RT_GROUP_ICON "MAIN", then the data.
/usr/bin/python3 - "$here/../tests/data/interop/icotool-1bpp-32.ico" "$out/icons16" <<'PY'
import struct, sys
ico = open(sys.argv[1], "rb").read()
w, h, colors, _, planes, bpp, size, offset = struct.unpack_from("<BBBBHHII", ico, 6)
image = ico[offset:offset + size]
group = struct.pack("<HHH", 0, 1, 1) + struct.pack("<BBBBHHIH", w, h, colors, 0, planes, bpp, size, 1)
table = struct.pack("<H", 4)
table += struct.pack("<HHI", 0x8003, 1, 0) + b"\0" * 12
table += struct.pack("<HHI", 0x800E, 1, 0) + b"\0" * 12
table += struct.pack("<H", 0)
name_at = len(table)
table += b"\x04MAIN\0"
head = bytearray(0x80)
head[0:2] = b"MZ"
struct.pack_into("<I", head, 0x3C, 0x40)
head[0x40:0x42] = b"NE"
struct.pack_into("<HH", head, 0x40 + 0x24, 0x40, 0x40 + len(table))
out = bytearray(head) + bytearray(table)
for entry, data, name in ((2 + 8, image, 0x8001), (2 + 20 + 8, group, name_at)):
    out += b"\0" * (-len(out) % 16)
    struct.pack_into("<HHHH", out, 0x80 + entry, len(out) >> 4, (len(data) + 15) >> 4, 0, name)
    out += data
open(sys.argv[2], "wb").write(bytes(out) + b"\0")
PY
