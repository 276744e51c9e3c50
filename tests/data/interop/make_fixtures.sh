#!/usr/bin/env bash
# Makes the interop fixtures: icons and cursors written by independent tools (icotool from
# icoutils, ImageMagick, Pillow) from source pictures drawn here. The files are committed;
# run this again only to change the set. Needs: icoutils, imagemagick, python3-pil.
set -euo pipefail
cd "$(dirname "$0")"
py=/usr/bin/python3
magick=/usr/bin/convert
src=$(mktemp -d)
trap 'rm -rf "$src"' EXIT

# Source pictures, drawn deterministically.
"$py" - "$src" <<'PY'
import sys, math
from PIL import Image
out = sys.argv[1]

def art(size):
    im = Image.new("RGBA", (size, size))
    c = (size - 1) / 2.0
    for y in range(size):
        for x in range(size):
            d = math.hypot(x - c, y - c) / (size / 2.0)
            a = max(0, min(255, int((1.05 - d) * 600)))
            im.putpixel((x, y), (int(255 * x / size), int(255 * y / size), 160, a))
    return im

for s in (16, 24, 32, 48, 64, 128, 256):
    art(s).save(f"{out}/art{s}.png")

std16 = [(0,0,0),(128,0,0),(0,128,0),(128,128,0),(0,0,128),(128,0,128),(0,128,128),(192,192,192),
         (128,128,128),(255,0,0),(0,255,0),(255,255,0),(0,0,255),(255,0,255),(0,255,255),(255,255,255)]
for s in (16, 32, 48):
    im = Image.new("P", (s, s))
    im.putpalette([v for c in std16 for v in c])
    for y in range(s):
        for x in range(s):
            im.putpixel((x, y), ((x // 3) + (y // 5)) % 16)
    im.save(f"{out}/std16_{s}.png")

odd = Image.new("P", (48, 48))
odd.putpalette([v for i in range(16) for v in (i * 13 % 256, i * 29 % 256, i * 47 % 256)])
for y in range(48):
    for x in range(48):
        odd.putpixel((x, y), (x * 7 + y * 3) % 16)
odd.save(f"{out}/odd16_48.png")

p200 = Image.new("P", (48, 48))
p200.putpalette([v for i in range(256) for v in (i, (i * 5) % 256, 255 - i)])
for y in range(48):
    for x in range(48):
        p200.putpixel((x, y), (x * 48 + y) % 200)
p200.save(f"{out}/pal200_48.png")

mono = Image.new("P", (32, 32))
mono.putpalette([0, 0, 0, 255, 255, 255])
for y in range(32):
    for x in range(32):
        mono.putpixel((x, y), 1 if (x * x + y * y) % 7 < 3 else 0)
mono.save(f"{out}/mono32.png")

rgb = art(48).convert("RGB")
rgb.save(f"{out}/rgb48.png")
rgb.resize((16, 16)).save(f"{out}/rgb16.png")
rgb.resize((32, 32)).save(f"{out}/rgb32.png")

full = art(256)
full.save(f"{out}/pillow_src.png")
full.save("pillow-png-16-256.ico", sizes=[(16, 16), (24, 24), (32, 32), (48, 48), (64, 64), (128, 128), (256, 256)])
art(48).save("pillow-bmp-16-48.ico", sizes=[(16, 16), (32, 32), (48, 48)], bitmap_format="bmp")
PY

# icotool
icotool -c -b 1 -o icotool-1bpp-32.ico "$src/mono32.png"
icotool -c -b 4 -o icotool-4bpp-16-48.ico "$src/std16_16.png" "$src/std16_32.png" "$src/std16_48.png"
icotool -c -b 4 -o icotool-4bpp-nonstandard-48.ico "$src/odd16_48.png"
icotool -c -b 8 -o icotool-8bpp-48.ico "$src/pal200_48.png"
icotool -c -b 24 -o icotool-24bpp-16-48.ico "$src/rgb16.png" "$src/rgb32.png" "$src/rgb48.png"
icotool -c -b 32 -o icotool-32bpp-16-256.ico "$src/art16.png" "$src/art24.png" "$src/art32.png" \
  "$src/art48.png" "$src/art64.png" "$src/art128.png" --raw="$src/art256.png"
icotool -c --cursor --hotspot-x=5 --hotspot-y=7 -o icotool-cursor-32.cur "$src/art32.png"

# ImageMagick
"$magick" "$src/art256.png" -define icon:auto-resize=256,128,64,48,32,24,16 magick-32bpp-16-256.ico
"$magick" "$src/std16_48.png" -type palette magick-4bpp-48.ico
"$magick" "$src/pal200_48.png" magick-8bpp-48.ico
"$magick" "$src/art48.png" magick-cursor-48.cur

echo "fixtures written:"
ls -l ./*.ico ./*.cur
