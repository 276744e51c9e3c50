#pragma once
// The one routine through which every painting tool writes a pixel, and the colour a tool
// hands it for an image of a given depth.

#include "document/model/IconImage.h"

namespace iw {

// Writes `color` into plane 0 at (x, y), and `alpha` into plane 1 when the image has 32
// bits per pixel (plane 1 of other depths is left as it is). A point left of or above the
// image is dropped; so is a point right of or below it, which would otherwise land in cells
// the image does not use. The colour is stored as given: no palette matching happens here.
// Any written pixel drops the image's original PNG stream. Returns whether it wrote.
bool PlotPixel(IconImage& image, int x, int y, PackedColor color, int alpha);

// The image's sides as the pixel store can hold them (1..256 whatever its fields say).
int ImageWidth(const IconImage& image);
int ImageHeight(const IconImage& image);

inline bool InsideImage(const IconImage& image, int x, int y) {
    return x >= 0 && y >= 0 && x < ImageWidth(image) && y < ImageHeight(image);
}

// The colour a tool plots into an image of `bitCount` bits: 1-bit and 4-bit images only hold
// black and white or the sixteen standard colours, so a chosen colour is mapped onto them
// first; other depths take it as it is. Marker values pass unchanged.
PackedColor ColorForDepth(PackedColor color, int bitCount);

}  // namespace iw
