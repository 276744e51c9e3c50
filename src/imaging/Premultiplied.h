#pragma once
// Straight RGBA to premultiplied floating point and back, for the filters that mix
// neighbouring pixels: mixed premultiplied, a transparent pixel adds nothing of its colour.

#include <cstdint>
#include <vector>

#include "imaging/RgbaBuffer.h"

namespace iw {

// r, g, b, a a pixel in 0..1, the colours multiplied by the alpha; inverting pixels (which
// have no colour) are all 0.
std::vector<float> PremultiplyPixels(const RgbaBuffer& pixels);

// A channel in 0..1 as a byte, rounded (halves to even) and held to 0..255.
std::uint8_t UnitToByte(float unit);

// A mixed pixel back to straight bytes: alpha rounded, colours divided by the alpha;
// (0, 0, 0, 0) when the alpha rounds to 0.
Rgba UnpremultiplyPixel(const float* rgba);

}  // namespace iw
