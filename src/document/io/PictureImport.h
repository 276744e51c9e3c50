#pragma once
// Turning a 32-bit picture into an image of the set at a chosen depth.

#include "codec/png/c32bppDIB.h"
#include "document/model/IconSet.h"

namespace iw {

// Adds `picture` (at most 256 x 256) as a new image of `bitCount` bits, stored
// PNG-compressed when `png` is set. For depths below 32 a pixel with alpha below 128
// becomes `TransparentColor`; 4-bit colours go through the 16-colour mapping and 1-bit
// colours through the monochrome mapping; 8 and 24 bits keep the colour (an 8-bit image
// gets its palette when it is written). Returns the new index, or -1 when the picture does
// not fit or the set is full.
int AddPictureImage(IconSet& set, const c32bppDIB& picture, int bitCount, bool png);

}  // namespace iw
