#pragma once
// The Gradient tool: the whole image from the foreground colour to the background colour.

#include "document/model/IconImage.h"
#include "editor/ToolState.h"

namespace iw {

// The position of (x, y) along a gradient over a width x height image, 0 at the start and
// 1 at the end: vertical runs from the top row to the bottom row, horizontal from the left
// column to the right one, diagonal from the top-left corner to the bottom-right one, and
// centre from the middle of the image out to its corners.
double GradientPosition(GradientDirection direction, int x, int y, int width, int height);

// Paints the whole image. Each channel goes from `from` to `to`, rounded halves to even.
// In a 32-bit image the alpha goes with it, from `fromAlpha` at the start to opaque at the
// end, so the current alpha sets how far the foreground end fades out. When either end is
// a marker value (transparent or inverting) there is nothing to blend: the first half of
// the gradient takes `from` and the second half `to`. 1-bit and 4-bit images get every
// colour mapped to their palette.
void PaintGradient(IconImage& image, GradientDirection direction, PackedColor from, int fromAlpha,
                   PackedColor to);

}  // namespace iw
