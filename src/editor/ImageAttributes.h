#pragma once
// An image's attributes as the attributes dialog (frmAttributes) offers them: width and
// height 1..256, a depth of 1, 4, 8, 24 or 32 bits, and whether it is stored compressed.

#include "document/model/IconImage.h"
#include "services/desktop/Template.h"

namespace iw {

struct ImageAttributes {
    int width = 32;
    int height = 32;
    int bits = 32;
    bool compressed = false;

    bool Valid() const;
    TemplateEntry Entry() const;
    friend bool operator==(const ImageAttributes&, const ImageAttributes&) = default;
};

ImageAttributes AttributesOf(const IconInfo& info);

// Gives `image` the attributes: its pixels go to the new depth (DepthConversion.h), and
// the sides change by cropping or padding at the right and bottom (new cells transparent,
// cells beyond the new sides cleared as in a fresh image); the pixels keep their place.
void ApplyAttributes(IconImage& image, const ImageAttributes& attributes);

}  // namespace iw
