#pragma once
// The colours the palette strip under the canvas offers for the image being edited: the two
// markers (transparent and inverting), then the colours that suit its depth.

#include <cstddef>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {

// The most colours an image's own palette shows (that of an 8-bit image).
inline constexpr std::size_t kMaxImageColors = 256;

// The distinct colours of an image (markers left out), in the order the pixel loops meet
// them (column by column: x outer, y inner), at most `limit`.
std::vector<PackedColor> DistinctColors(const IconImage& image,
                                        std::size_t limit = kMaxImageColors);

// The palette for images without one of their own (24 and 32 bits): the sixteen standard
// colours, twelve hues in full, light and dark shades, and four more greys.
const std::vector<PackedColor>& DefaultStripColors();

// TransparentColor and InverseColor, then: black and white for a 1-bit image, the sixteen
// standard colours for a 4-bit one, the image's own colours for an 8-bit one (the default
// palette while it has none), the default palette for 24 and 32 bits.
std::vector<PackedColor> PaletteStripColors(const IconImage& image);

}  // namespace iw
