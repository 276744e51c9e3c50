#!/usr/bin/env bash
# Makes the application icon, iconwright.ico, from its drawing, iconwright.svg: the drawing is
# rendered at each size (rsvg-convert, Debian's librsvg2-bin) and the renderings are packed by
# Iconwright itself, the 256 px image PNG-compressed.
#   data/icons/make_icon.sh BUILD_DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cli=${1:-build/default}/src/app/iconwright-cli
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for side in 256 128 64 48 32 24 16; do
  rsvg-convert -w "$side" -h "$side" "$here/iconwright.svg" -o "$work/$side.png"
done
"$cli" pack "$here/iconwright.ico" "$work/256.png:32:png" "$work/128.png" "$work/64.png" \
  "$work/48.png" "$work/32.png" "$work/24.png" "$work/16.png"
