#include "editor/DepthConversion.h"

#include <algorithm>

#include "editor/PixelPlot.h"

namespace iw {

DepthPixel PixelForDepth(PackedColor color, int alpha, int bitCount) {
    if (IsMarker(color)) return {color, 0};
    if (bitCount == 32) return {color, std::clamp(alpha, 0, 255)};
    if (alpha < 128) return {TransparentColor, 0};
    return {ColorForDepth(color, bitCount), 255};
}

void ConvertImageDepth(IconImage& image, int bitCount) {
    const bool hadAlpha = image.info.bitCount == 32;
    for (int x = 0; x < ImageWidth(image); ++x) {
        for (int y = 0; y < ImageHeight(image); ++y) {
            const int alpha = hadAlpha ? image.Alpha(x, y) : 255;
            const DepthPixel pixel = PixelForDepth(image.Color(x, y), alpha, bitCount);
            image.Color(x, y) = pixel.color;
            image.Alpha(x, y) = pixel.alpha;
        }
    }
    image.info.bitCount = static_cast<std::int16_t>(bitCount);
    image.DropOriginalPng();
}

int ShownAlpha(const IconImage& image, int x, int y) {
    if (image.Color(x, y) == TransparentColor) return 0;
    return image.info.bitCount == 32 ? std::clamp(image.Alpha(x, y), 0, 255) : 255;
}

}  // namespace iw
