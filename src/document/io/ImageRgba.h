#pragma once
// Conversions between an image's planes and straight (non-premultiplied) RGBA bytes.

#include <cstdint>
#include <span>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {

// The image as it shows, width x height x 4 bytes, row 0 the top row. For 32-bit images
// every pixel takes the alpha of plane 1, with colour (0, 0, 0) for a transparent pixel and
// (255, 255, 255) for an inverting one; for other depths a transparent pixel is
// (0, 0, 0, 0), an inverting one (255, 255, 255, 0) and every other pixel is opaque.
std::vector<std::uint8_t> ImageToRgba(const IconImage& image);

}  // namespace iw
