#include "editor/RgbaPicture.h"

#include <algorithm>

#include "document/io/ImageRgba.h"
#include "document/model/IconSet.h"
#include "editor/DepthConversion.h"

namespace iw {

bool RgbaPicture::WellFormed() const {
    // Far beyond any real picture, and small enough that the product cannot overflow.
    constexpr int kMaxSide = 1 << 20;
    if (width < 1 || height < 1 || width > kMaxSide || height > kMaxSide) return false;
    return rgba.size() ==
           static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) * 4;
}

RgbaPicture FitToIconSide(const RgbaPicture& picture) {
    RgbaPicture fitted;
    fitted.width = std::min(picture.width, IconSet::kMaxSide);
    fitted.height = std::min(picture.height, IconSet::kMaxSide);
    const auto rowBytes = static_cast<std::size_t>(fitted.width) * 4;
    fitted.rgba.reserve(rowBytes * static_cast<std::size_t>(fitted.height));
    for (int y = 0; y < fitted.height; ++y) {
        const std::uint8_t* row = picture.Pixel(0, y);
        fitted.rgba.insert(fitted.rgba.end(), row, row + rowBytes);
    }
    return fitted;
}

IconImage ImageFromPicture(const RgbaPicture& picture, int bitCount) {
    IconImage image;
    image.info.widthMinus1 = static_cast<std::int16_t>(picture.width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(picture.height - 1);
    image.info.bitCount = static_cast<std::int16_t>(bitCount);
    for (int x = 0; x < picture.width; ++x) {
        for (int y = 0; y < picture.height; ++y) {
            const std::uint8_t* p = picture.Pixel(x, y);
            const DepthPixel pixel = PixelForDepth(PackColor(p[0], p[1], p[2]), p[3], bitCount);
            image.Color(x, y) = pixel.color;
            image.Alpha(x, y) = pixel.alpha;
        }
    }
    return image;
}

RgbaPicture PictureOfImage(const IconImage& image) {
    return {image.info.Width(), image.info.Height(), ImageToRgba(image)};
}

}  // namespace iw
