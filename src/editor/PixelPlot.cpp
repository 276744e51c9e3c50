#include "editor/PixelPlot.h"

#include "imaging/ColorMapping.h"

namespace iw {

namespace {

int UsableSide(int side) {
    return side < 1 ? 1 : (side > IconImage::kSide ? IconImage::kSide : side);
}

}  // namespace

int ImageWidth(const IconImage& image) {
    return UsableSide(image.info.Width());
}

int ImageHeight(const IconImage& image) {
    return UsableSide(image.info.Height());
}

bool PlotPixel(IconImage& image, int x, int y, PackedColor color, int alpha) {
    if (x < 0 || y < 0) return false;
    if (!InsideImage(image, x, y)) return false;
    image.Color(x, y) = color;
    if (image.info.bitCount == 32) image.Alpha(x, y) = alpha;
    if (!image.OriginalPng().empty()) image.DropOriginalPng();
    return true;
}

PackedColor ColorForDepth(PackedColor color, int bitCount) {
    if (IsMarker(color)) return color;
    if (bitCount == 1) return ConvertToMonoColor(color);
    if (bitCount == 4) return ConvertTo16Color(color);
    return color;
}

}  // namespace iw
