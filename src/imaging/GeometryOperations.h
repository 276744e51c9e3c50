#pragma once
// Flips, quarter turns, resizing and trimming of RGBA pictures (a whole image or the
// selection taken out of it). Inverting pixels move with their pixel.
//
// Operations that change the sides return a new buffer; the caller decides what to do
// with it: the editor gives the image the new sides (ReplaceImageRgba: width is field 0,
// the planes' x extent) or pastes a selection back.

#include "imaging/RgbaBuffer.h"

namespace iw {

void FlipHorizontal(RgbaBuffer& pixels);  // left and right swap
void FlipVertical(RgbaBuffer& pixels);    // top and bottom swap

// Turned clockwise by a quarter, a half and three quarters. A quarter turn swaps the sides.
RgbaBuffer Rotate90(const RgbaBuffer& pixels);
RgbaBuffer Rotate180(const RgbaBuffer& pixels);
RgbaBuffer Rotate270(const RgbaBuffer& pixels);

// Resampled to width x height (see Resampler.h). With `keepAspect` the result is the
// largest size with the picture's aspect inside width x height instead.
RgbaBuffer ResizePixels(const RgbaBuffer& pixels, int width, int height, bool keepAspect);

// The smallest rectangle that holds every pixel that shows (alpha above 0, or inverting);
// an empty rectangle when nothing shows.
PixelRect ContentBounds(const RgbaBuffer& pixels);
// The pixels inside ContentBounds; an empty buffer when nothing shows.
RgbaBuffer TrimToContent(const RgbaBuffer& pixels);

}  // namespace iw
