#pragma once
// Error diffusion of an image onto a palette.

#include <span>
#include <vector>

#include "document/model/Colors.h"
#include "services/core/UserInterface.h"

namespace iw {

// Replaces every colour pixel of `image` (width x height, row-major, pixel (x, y) at
// y * width + x) by the nearest of entries 0..`paletteLast` of `palette`, passing the
// error on. Transparent and inverting pixels keep their value and pass no error. Lets
// `progress` yield every few columns.
void DitherToPalette(std::span<PackedColor> image, int width, int height,
                     const std::vector<PackedColor>& palette, int paletteLast,
                     IProgressSink* progress = nullptr);

}  // namespace iw
