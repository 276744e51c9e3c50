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

void RgbaToImage(std::span<const std::uint8_t> rgba, int width, int height, IconImage& image) {
    const std::uint8_t* in = rgba.data();
    for (int y = 0; y < height; ++y) {
        auto colors = image.Row(y, IconImage::ColorPlane);
        auto alphas = image.Row(y, IconImage::AlphaPlane);
        for (int x = 0; x < width; ++x, in += 4) {
            colors[static_cast<std::size_t>(x)] = PackColor(in[0], in[1], in[2]);
            alphas[static_cast<std::size_t>(x)] = in[3];
        }
    }
}

bool ImageToPicture(const IconImage& image, c32bppDIB& picture) {
    const int width = image.info.Width();
    const int height = image.info.Height();
    if (!picture.InitializeDIB(width, height)) return false;
    const std::vector<std::uint8_t> rgba = ImageToRgba(image);
    const std::uint8_t* in = rgba.data();
    for (int y = 0; y < height; ++y) {
        std::uint8_t* out = picture.TopDownRow(y);
        for (int x = 0; x < width; ++x, in += 4, out += 4) {
            out[0] = in[2];
            out[1] = in[1];
            out[2] = in[0];
            out[3] = in[3];
        }
    }
    picture.Alpha(true);
    return true;
}

}  // namespace iw
