#pragma once
// Per-pixel colour effects on RGBA pictures (a whole image or a selection). They change
// the colour of each pixel and keep its alpha; inverting pixels are left as they are.

#include "document/model/Colors.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/UserInterface.h"

namespace iw {

// The pixel's brightness, 0..255: 0.299 R + 0.587 G + 0.114 B, rounded.
int Luma(Rgba pixel);

// Each pixel becomes the grey of its luma. Status "Converting to Greyscale...".
void Greyscale(RgbaBuffer& pixels, IProgressSink& progress);

// Each channel c becomes 255 - c.
void Invert(RgbaBuffer& pixels);

// Pixels whose colour lies within `tolerance` (city-block distance, 0 = exactly) of `key`
// become fully transparent; their colour stays.
void MakeColorTransparent(RgbaBuffer& pixels, PackedColor key, int tolerance = 0);

// Tints the picture with `tint`: black stays black, white stays white, and a mid grey
// (luma 128) becomes the tint itself. Status "Colorizing Icon...".
void Colorize(RgbaBuffer& pixels, PackedColor tint, IProgressSink& progress);

// Pixels whose luma is below `threshold` (0..256) become `dark`, the others `light`.
void TwoTone(RgbaBuffer& pixels, int threshold, PackedColor dark, PackedColor light);

}  // namespace iw
