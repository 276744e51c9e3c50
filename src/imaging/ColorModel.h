#pragma once
// Colours as the colour picker shows them: hue, saturation and value; the long integer the
// system stores (red + green * 256 + blue * 65536); and hexadecimal "#RRGGBB".

#include <optional>
#include <string>
#include <string_view>

#include "document/model/Colors.h"

namespace iw {

// Hue in degrees [0, 360), saturation and value in [0, 1].
struct Hsv {
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

// A grey (saturation 0) has no hue of its own: it comes back as 0.
Hsv RgbToHsv(PackedColor color);
// Out-of-range parts are brought into range first (hue wraps, the others are clamped);
// channels are rounded to the nearest integer, halves to even.
PackedColor HsvToRgb(const Hsv& hsv);

// "16777215" for white.
std::string LongText(PackedColor color);
// A whole number 0 .. 16777215 with optional blanks around it; markers and anything else
// give nothing.
std::optional<PackedColor> ParseLongText(std::string_view text);

// "#FF8000" for red 255, green 128, blue 0 (upper-case digits).
std::string HexText(PackedColor color);
// "#RRGGBB" or "RRGGBB", or the short "#RGB" / "RGB" (each digit doubled), either case,
// with optional blanks around it.
std::optional<PackedColor> ParseHexText(std::string_view text);

}  // namespace iw
