#pragma once
// Conversion of unfiltered PNG rows into the 32-bpp image: every PNG pixel becomes one
// blue, green, red, alpha quadruple (straight alpha).

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "codec/png/PngFormat.h"

namespace iw::png {

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

// Converts `count` unfiltered pixels at `in` into B, G, R, A quadruples at `out`, `step`
// bytes apart.
void ConvertRow(const std::uint8_t* in, std::uint32_t count, const PixelSource& source,
                std::uint8_t* out, std::size_t step);

// Places one image or interlace pass. `rows` points at the pass's first row of 1 +
// pass.rowBytes bytes (filter byte first, already unfiltered). `top` is the image's top
// row of 4-byte pixels and `pitch` the distance from one row to the row below it.
void PlacePass(const PassLayout& pass, const std::uint8_t* rows, const PixelSource& source,
               std::uint8_t* top, std::ptrdiff_t pitch);

// Receives a decoded image row by row, top row first, each pixel as blue, green, red and
// alpha bytes (straight alpha).
class RowSink {
  public:
    virtual ~RowSink() = default;
    // The image's size, once, before any row. False refuses the image; the decode then
    // fails as out of memory.
    virtual bool Begin(std::uint32_t width, std::uint32_t height) = 0;
    // Where row `y` goes: 4 x width bytes. The decoder reads row y - 1 back from where it
    // was written while it reconstructs row y, so the bytes given for a row must stay as
    // the decoder left them until the next row is done.
    virtual std::uint8_t* Row(std::uint32_t y) = 0;
    // Row `y` is complete.
    virtual void RowDone(std::uint32_t y) = 0;
};

}  // namespace iw::png
