#!/usr/bin/python3
"""End-to-end checks of iconwright-cli's picture commands.

  - convert a JPEG with --template "Windows All Sizes": fourteen images of the template's
    sizes, Pillow reads the largest with the picture's colours;
  - convert a picture larger than 256 x 256 without a template: one image fitted to 256;
  - an unknown template is a usage error;
  - favicon: 16, 32 and 48 px; a second run without --force changes nothing and fails;
    --force replaces; --touch-icons writes the PNG icons at 180, 192 and 512 px.

usage: check_cli_pictures.py ICONWRIGHT_CLI
"""
import os
import sys
import tempfile

from PIL import Image

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "support"))
from cli_check import expect, problems, report  # noqa: E402
import cli_check  # noqa: E402

CLI = sys.argv[1] if len(sys.argv) > 1 else None


def cli(*args):
    return cli_check.run(CLI, *args)


def info(path):
    return cli_check.info(CLI, path)


def check_convert(tmp):
    photo = os.path.join(tmp, "photo.jpg")
    Image.new("RGB", (640, 480), (30, 140, 220)).save(photo, quality=95)
    out = os.path.join(tmp, "photo.ico")
    run = cli("convert", photo, out, "--template", "Windows All Sizes")
    expect(run.returncode == 0, f"convert --template failed: {run.stderr}")
    images = info(out)["images"]
    sides = [i["width"] for i in images]
    expect(sides == [256, 96, 80, 72, 64, 60, 48, 40, 36, 32, 30, 24, 20, 16], f"sizes {sides}")
    expect(images and images[0]["png"] and all(i["bpp"] == 32 for i in images), "depths or PNG flag")
    largest = Image.open(out).ico.getimage((256, 256)).convert("RGBA")
    centre, corner = largest.getpixel((128, 128)), largest.getpixel((128, 4))
    expect(all(abs(a - b) <= 3 for a, b in zip(centre, (30, 140, 220, 255))), f"centre {centre}")
    expect(corner[3] == 0, f"the 4:3 picture leaves the top clear, got {corner}")

    wide = os.path.join(tmp, "wide.png")
    Image.new("RGBA", (600, 300), (200, 10, 10, 255)).save(wide)
    run = cli("convert", wide, os.path.join(tmp, "wide.ico"))
    expect(run.returncode == 0 and "resampled to 256 x 128" in run.stderr, f"fit to 256: {run.stderr}")
    one = info(os.path.join(tmp, "wide.ico"))["images"]
    expect(len(one) == 1 and sorted((one[0]["width"], one[0]["height"])) == [128, 256], f"{one}")

    run = cli("convert", photo, out, "--template", "No Such Template")
    expect(run.returncode == 2 and "Windows All Sizes" in run.stderr, "an unknown template")


def check_favicon(tmp):
    logo = os.path.join(tmp, "logo.png")
    Image.new("RGBA", (100, 50), (0, 128, 0, 255)).save(logo)
    site = os.path.join(tmp, "site")
    run = cli("favicon", logo, site)
    expect(run.returncode == 0, f"favicon failed: {run.stderr}")
    expect(run.stdout == '<link rel="shortcut icon" href="/favicon.ico"/>\n', f"markup {run.stdout!r}")
    target = os.path.join(site, "favicon.ico")
    images = info(target)["images"]
    expect([(i["width"], i["bpp"]) for i in images] == [(16, 32), (32, 32), (48, 32)], f"{images}")
    before = open(target, "rb").read()

    again = cli("favicon", os.path.join(tmp, "photo.ico"), site)
    expect(again.returncode == 1 and "already exists" in again.stderr, "a second run must refuse")
    expect(open(target, "rb").read() == before, "a second run changed favicon.ico")
    touch = cli("favicon", logo, site, "--touch-icons")
    expect(touch.returncode == 1 and not os.path.exists(os.path.join(site, "icon-192.png")),
           "--touch-icons without --force must write nothing beside an existing favicon")

    forced = cli("favicon", os.path.join(tmp, "photo.ico"), site, "--force", "--touch-icons")
    expect(forced.returncode == 0 and forced.stdout.count("\n") == 4, f"--force: {forced.stderr}")
    expect(open(target, "rb").read() != before, "--force did not replace favicon.ico")
    for name, side in (("apple-touch-icon.png", 180), ("icon-192.png", 192), ("icon-512.png", 512)):
        size = Image.open(os.path.join(site, name)).size
        expect(size == (side, side), f"{name} is {size}")


def main():
    if not CLI:
        print(__doc__)
        return 2
    with tempfile.TemporaryDirectory() as tmp:
        check_convert(tmp)
        check_favicon(tmp)
    return report("problem:", f"{len(problems)} problem(s)")


if __name__ == "__main__":
    sys.exit(main())
