#pragma once
// What a pixel becomes at another colour depth. Every image keeps packed colours whatever
// its depth; a lower depth only limits them:
// - 32 bits keep the alpha; a marker (transparent or inverting) gets alpha 0;
// - below 32 bits there is no alpha: a pixel under half covered (alpha below 128) becomes
//   TransparentColor, any other is opaque; 4-bit colours go through ConvertTo16Color and
//   1-bit colours through ConvertToMonoColor; 8 and 24 bits keep the colour (an 8-bit
//   image gets its palette when it is written);
// - the markers stay what they are at every depth.

#include "document/model/IconImage.h"

namespace iw {

struct DepthPixel {
    PackedColor color;
    int alpha;
    friend bool operator==(const DepthPixel&, const DepthPixel&) = default;
};

// `color` with `alpha` (0..255) as a pixel of a `bitCount`-bit image.
DepthPixel PixelForDepth(PackedColor color, int alpha, int bitCount);

// Brings every cell of the image (its width by height) to `bitCount` bits as above and sets
// its bit count. A lower depth loses colours and alpha for good.
void ConvertImageDepth(IconImage& image, int bitCount);

// A cell's alpha as it shows: 0 for the transparent marker, plane 1 in a 32-bit image,
// otherwise 255 (an inverting pixel included).
int ShownAlpha(const IconImage& image, int x, int y);

}  // namespace iw
