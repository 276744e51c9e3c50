#!/bin/sh
# Builds the test programs from the .rc files beside this script and the icons and cursors
# in ../interop: each as a 64-bit library (PE32+) and programs.rc also as a 32-bit one
# (PE32), with the MinGW-w64 binutils (Debian: binutils-mingw-w64-x86-64 and -i686).
#
#   make_programs.sh OUTDIR
#
# Writes OUTDIR/programs64.dll, programs32.dll, cursors64.dll, noicons64.dll, small64.dll
# and small32.dll:
#   programs  icon groups APP (PNG entries), 1 (32-bit bitmaps in language 1033, 4-bit in
#             1031, which the table holds first), 2 (8-bit), 3 (4-bit, non-standard colours);
#             cursor groups POINTER and 7 (hotspot 5, 7). String names come first.
#   cursors   cursor group 7 and no icon group
#   noicons   no group; an RCDATA holding an icon file, whose bitmaps the scan finds
#   small     icon group 1 in two languages (1-bit, 4-bit) and cursor group 7: the fuzzer's seeds
# The .rc files carry no comments: they are read without a C preprocessor.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
out=$1
mkdir -p "$out"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

build() {  # build NAME ARCH-PREFIX BITS
  # The .rc files name the icons without a folder: windres runs in ../interop. No C
  # preprocessor is needed: the files use no directives.
  (cd "$here/../interop" &&
    "$2-windres" --preprocessor=cat "$here/$1.rc" -O coff -o "$work/$1$3.o")
  "$2-ld" --dll -e 0 --no-insert-timestamp "$work/$1$3.o" -o "$out/$1$3.dll"
}

for name in programs cursors noicons small; do
  build "$name" x86_64-w64-mingw32 64
done
for name in programs small; do
  build "$name" i686-w64-mingw32 32
done
