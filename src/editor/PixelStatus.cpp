#include "editor/PixelStatus.h"

#include "editor/EditorTexts.h"
#include "editor/PixelPlot.h"
#include "imaging/ColorMapping.h"
#include "imaging/StandardColors.h"
#include "services/core/Texts.h"

namespace iw {

std::string StandardColorName(PackedColor color) {
    const int index = Standard16Index(color);
    if (index < 0) return {};
    return GetText(texts::kStandardColorNames[static_cast<std::size_t>(index)]);
}

std::string PixelStatusText(const IconImage& image, int x, int y) {
    if (!InsideImage(image, x, y)) return {};
    const PackedColor color = image.Color(x, y);
    if (color == TransparentColor) return GetText(texts::TransparentPixel);
    if (color == InverseColor) return GetText(texts::InvertedPixel);
    std::string text = "R " + std::to_string(RedOf(color)) + ", G " +
                       std::to_string(GreenOf(color)) + ", B " + std::to_string(BlueOf(color));
    const int bits = image.info.bitCount;
    if (bits == 32) text += ", A " + std::to_string(image.Alpha(x, y));
    if (bits == 1 || bits == 4) text += " (" + StandardColorName(ColorForDepth(color, bits)) + ")";
    return text;
}

}  // namespace iw
