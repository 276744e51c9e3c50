#pragma once
// The status bar text for the pixel under the mouse.

#include <string>

#include "document/model/IconImage.h"

namespace iw {

// "Transparent", "Inverted", or "R 12, G 34, B 56", followed by ", A 78" for a 32-bit
// image. For 1-bit and 4-bit images the colour's name among the sixteen standard colours
// follows in brackets: "R 255, G 0, B 0 (Red)"; a colour that is not one of them is named
// after the standard colour it is saved as. Empty for a point outside the image.
std::string PixelStatusText(const IconImage& image, int x, int y);

// The name of a standard colour ("Maroon"), or "" for any other colour.
std::string StandardColorName(PackedColor color);

}  // namespace iw
