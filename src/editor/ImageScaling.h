#pragma once
// Scaling one image of a set into another of a different size and depth.

#include "document/model/IconImage.h"

namespace iw {

// Redraws `target` (its own size and depth kept) from `source`. Each target pixel is the
// area-weighted average of the source pixels it covers, in premultiplied alpha so that
// transparent pixels add no dark fringe; enlarging thereby keeps hard pixel edges, which
// suits icon art. Transparent and inverting source pixels count as fully transparent.
// A 32-bit target gets the alpha, with fully transparent pixels marked transparent; other
// depths have no alpha, so a pixel under half covered becomes transparent and any other
// is opaque, mapped to black and white or the sixteen colours for 1-bit and 4-bit images.
void ScaleImageInto(const IconImage& source, IconImage& target);

}  // namespace iw
