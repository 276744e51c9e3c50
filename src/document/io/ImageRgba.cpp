#include "document/io/ImageRgba.h"

namespace iw {

std::vector<std::uint8_t> ImageToRgba(const IconImage& image) {
    const int width = image.info.Width();
    const int height = image.info.Height();
    const bool hasAlpha = image.info.bitCount == 32;
    std::vector<std::uint8_t> rgba(static_cast<std::size_t>(width) * height * 4);
    std::uint8_t* out = rgba.data();
    for (int y = 0; y < height; ++y) {
        auto colors = image.Row(y, IconImage::ColorPlane);
        auto alphas = image.Row(y, IconImage::AlphaPlane);
        for (int x = 0; x < width; ++x, out += 4) {
            const PackedColor c = colors[static_cast<std::size_t>(x)];
            std::uint8_t alpha =
                hasAlpha ? static_cast<std::uint8_t>(alphas[static_cast<std::size_t>(x)]) : 255;
            if (c == TransparentColor) {
                out[0] = out[1] = out[2] = 0;
                if (!hasAlpha) alpha = 0;
            } else if (c == InverseColor) {
                out[0] = out[1] = out[2] = 255;
                if (!hasAlpha) alpha = 0;
            } else {
                out[0] = static_cast<std::uint8_t>(RedOf(c));
                out[1] = static_cast<std::uint8_t>(GreenOf(c));
                out[2] = static_cast<std::uint8_t>(BlueOf(c));
            }
            out[3] = alpha;
        }
    }
    return rgba;
}

}  // namespace iw
