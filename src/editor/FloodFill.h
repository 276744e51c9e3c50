#pragma once
// The Fill tool: a 4-connected flood fill in two phases, first finding the region, then
// painting it.

#include <vector>

#include "document/model/IconImage.h"

namespace iw {

// The region of (x, y): every pixel reachable from it through left, right, up and down
// steps over pixels whose colour equals that of (x, y) and, in a 32-bit image, whose alpha
// equals it too. Plane 1 only means something in 32-bit images, so other depths match on
// colour alone. The result is one flag per cell of the 256 x 256 store, row after row;
// it is empty when (x, y) lies outside the image.
std::vector<bool> FloodRegion(const IconImage& image, int x, int y);

// Fills the region of (x, y) with `color` and `alpha` through PlotPixel. Returns the number
// of pixels painted (0 for a point outside the image).
int FloodFill(IconImage& image, int x, int y, PackedColor color, int alpha);

}  // namespace iw
