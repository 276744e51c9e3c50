#include "document/io/PngEntryDecoder.h"

#include "codec/c32bppDIB.h"

namespace iw {

bool DecodePngEntry(std::span<const std::uint8_t> stream, IconImage& image) {
    c32bppDIB picture;
    if (!picture.LoadPicture_Stream(stream, false, IconEntryLimits())) return false;
    const int width = picture.Width();
    const int height = picture.Height();
    image.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* bgra = picture.TopDownRow(y);
        auto colors = image.Row(y, IconImage::ColorPlane);
        auto alphas = image.Row(y, IconImage::AlphaPlane);
        for (int x = 0; x < width; ++x, bgra += 4) {
            colors[static_cast<std::size_t>(x)] = PackColor(bgra[2], bgra[1], bgra[0]);
            alphas[static_cast<std::size_t>(x)] = bgra[3];
        }
    }
    // Kept so that a save can write the same bytes while the pixels stay as they are.
    image.originalPng.assign(stream.begin(), stream.end());
    return true;
}

}  // namespace iw
