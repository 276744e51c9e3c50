#!/bin/sh
# Writes the seeds of fuzz_pe into fuzz/corpus/pe: the small test libraries (PE32+ and
# PE32, an icon group in two languages and a cursor group), the cursor-only and the
# group-less library, each with a last byte that picks the first group. Needs the MinGW-w64
# binutils (tests/data/pe/make_programs.sh).
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
