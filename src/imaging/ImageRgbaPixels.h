#pragma once
// Between an image's planes and straight RGBA, by the image's depth.
//
// Reading: a 32-bit image takes its alpha from plane 1; other depths are opaque.
// `TransparentColor` reads as colour (0, 0, 0) (alpha 0 below 32 bits) and `InverseColor`
// as (255, 255, 255) (alpha 0 below 32 bits) with the buffer's inverse flag set.
//
// Writing goes back through the depth rules (ColorAtDepth): flagged pixels become
// `InverseColor` again; below 32 bits a pixel with alpha under 128 becomes
// `TransparentColor` and the others are opaque, mapped to black and white for 1 bit and to
// the sixteen standard colours for 4 bits (8 and 24 bits keep the colour; an 8-bit image
// gets its palette when it is written). A 32-bit image keeps colour and alpha, except that
// a fully transparent black pixel is stored as `TransparentColor`, as the readers store a
// masked black pixel.

#include "document/model/IconImage.h"
#include "imaging/RgbaBuffer.h"

namespace iw {

// The sides the planes can hold for the image (1..256 whatever its fields say).
// Width is field 0 (the planes' x extent), height field 1.
int PlaneWidth(const IconImage& image);
int PlaneHeight(const IconImage& image);

// The part of `image` inside `region`, clipped to the image.
RgbaBuffer ReadImageRgba(const IconImage& image, PixelRect region);
// The whole image.
RgbaBuffer ReadImageRgba(const IconImage& image);

// The plane 0 value of a pixel written into an image of `bitCount` bits.
PackedColor ColorAtDepth(Rgba pixel, bool inverse, int bitCount);

// Writes `pixels` into `image` with their top left at (x, y); pixels outside the image are
// dropped. Plane 1 is written for 32-bit images only. Drops the image's original PNG.
void WriteImageRgba(IconImage& image, int x, int y, const RgbaBuffer& pixels);

// Gives `image` the sides of `pixels` (field 0 its width, field 1 its height), clears its
// planes and writes the pixels: for operations that change an image's size (rotation by a
// quarter turn, resizing, trimming). `pixels` must be 1..256 on each side.
void ReplaceImageRgba(IconImage& image, const RgbaBuffer& pixels);

}  // namespace iw
