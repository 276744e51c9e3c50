#include "editor/ImageAttributes.h"

#include <algorithm>

#include "document/model/IconSet.h"
#include "editor/DepthConversion.h"
#include "editor/PixelPlot.h"

namespace iw {
namespace {

bool ValidSide(int side) {
    return side >= 1 && side <= IconSet::kMaxSide;
}

}  // namespace

bool ImageAttributes::Valid() const {
    const bool depth = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
    return ValidSide(width) && ValidSide(height) && depth;
}

TemplateEntry ImageAttributes::Entry() const {
    TemplateEntry entry;
    entry.widthMinus1 = static_cast<std::int16_t>(width - 1);
    entry.heightMinus1 = static_cast<std::int16_t>(height - 1);
    entry.bits = static_cast<std::int16_t>(bits);
    entry.compressed = compressed ? 1 : 0;
    return entry;
}

ImageAttributes AttributesOf(const IconInfo& info) {
    return {info.Width(), info.Height(), info.bitCount, info.png != 0};
}

void ApplyAttributes(IconImage& image, const ImageAttributes& attributes) {
    ConvertImageDepth(image, attributes.bits);
    const int oldWidth = ImageWidth(image);
    const int oldHeight = ImageHeight(image);
    // Only the cells inside the old or the new sides: the rest stays untouched zero pages.
    for (int x = 0; x < std::max(oldWidth, attributes.width); ++x) {
        for (int y = 0; y < std::max(oldHeight, attributes.height); ++y) {
            const bool kept = x < attributes.width && y < attributes.height;
            if (kept && x < oldWidth && y < oldHeight) continue;
            image.Color(x, y) = kept ? TransparentColor : 0;
            image.Alpha(x, y) = 0;
        }
    }
    image.info.widthMinus1 = static_cast<std::int16_t>(attributes.width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(attributes.height - 1);
    image.info.png = attributes.compressed ? 1 : 0;
    image.DropOriginalPng();
}

}  // namespace iw
