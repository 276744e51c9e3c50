#pragma once
// The PNG codec in two calls, for the icon reader and writer: a PNG stream in memory to
// straight RGBA pixels and back.

#include <cstdint>
#include <span>
#include <vector>

#include "codec/png/DecodeLimits.h"
#include "codec/png/PngProperties.h"
#include "codec/png/cPNGWriter.h"

namespace iw {

class c32bppDIB;
namespace png {
class RowSink;
}

// Straight (not premultiplied) RGBA, 4 bytes a pixel, top row first, no row padding.
struct RgbaImage {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint8_t> rgba;
};

// Decodes the PNG `stream` (an icon entry's bytes). False on any failure: not a PNG,
// corrupt, or larger than `limits` (an icon entry is at most 256 x 256).
bool DecodePngStream(std::span<const std::uint8_t> stream, RgbaImage& image,
                     const DecodeLimits& limits = IconEntryLimits());
bool DecodePngStream(std::span<const std::uint8_t> stream, c32bppDIB& image,
                     const DecodeLimits& limits = IconEntryLimits());
// Hands the rows to `sink` as they are decoded (B, G, R, A bytes, top row first), for
// callers that keep pixels in a layout of their own. The sink hears nothing of a stream
// that fails.
bool DecodePngStream(std::span<const std::uint8_t> stream, png::RowSink& sink,
                     const DecodeLimits& limits = IconEntryLimits());

// Encodes `width` x `height` straight RGBA pixels (top row first) as a PNG stream into
// `png` (replaced), in the smallest lossless layout or, for icon entries, always 8-bit
// RGBA. False when the sizes do not match the pixels or compression fails.
bool EncodePngStream(std::int32_t width, std::int32_t height, std::span<const std::uint8_t> rgba,
                     std::vector<std::uint8_t>& png, const PngProperties& properties = {},
                     PngPixelLayout layout = PngPixelLayout::Smallest);

}  // namespace iw
