#pragma once
// The palette and per-pixel indexes of a 1, 4 or 8-bit image, as the bitmap encoder
// writes them.

#include <cstdint>
#include <vector>

#include "document/model/IconImage.h"
#include "services/core/UserInterface.h"

namespace iw {

struct IndexedPixels {
    int width = 0;
    int height = 0;
    std::vector<PackedColor> palette;   // 2, 16 or 256 entries
    std::vector<std::uint8_t> indexes;  // row-major, row 0 the top row

    std::uint8_t At(int x, int y) const {
        return indexes[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                       static_cast<std::size_t>(x)];
    }
};

// 1 bit: black and white; 4 bits: the sixteen standard colours; 8 bits: the palette built
// for the image. A transparent pixel takes the index of black and an inverting pixel the
// index of white (their mask bits are set apart from this).
IndexedPixels IndexPixels(const IconImage& image, int width, int height, int imageIndex,
                          IProgressSink& progress);

}  // namespace iw
