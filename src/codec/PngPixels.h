#pragma once
// Conversion of unfiltered PNG rows into the 32-bpp image: every PNG pixel becomes one
// blue, green, red, alpha quadruple (straight alpha).

#include <array>
#include <cstdint>
#include <optional>

#include "codec/PngFormat.h"

namespace iw {

class c32bppDIB;

namespace png {

// Everything besides the header that decides a pixel's colour.
struct PixelSource {
    std::uint8_t colorType = 0;
    std::uint8_t bitDepth = 0;
    // Palette entries as B, G, R, A; indices past the palette read as opaque black.
    std::array<std::array<std::uint8_t, 4>, 256> palette{};
    // The tRNS colour of types 0 and 2, as stored (grey in [0], or R, G, B) at the image's
    // own bit depth; a pixel with exactly these samples becomes transparent.
    std::optional<std::array<std::uint16_t, 3>> transparent;
};

// Places one image or interlace pass. `rows` points at the pass's first row of 1 +
// pass.rowBytes bytes (filter byte first, already unfiltered). `dib` has the image's size.
void PlacePass(const PassLayout& pass, const std::uint8_t* rows, const PixelSource& source,
               c32bppDIB& dib);

}  // namespace png
}  // namespace iw
