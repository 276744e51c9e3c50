#include "ui/adapters/RgbaImage.h"

#include <cstring>

namespace iw::ui {

QImage ImageOfPicture(const RgbaPicture& picture) {
    if (!picture.WellFormed()) return {};
    QImage image(picture.width, picture.height, QImage::Format_RGBA8888);
    if (image.isNull()) return {};
    const auto rowBytes = static_cast<std::size_t>(picture.width) * 4;
    for (int y = 0; y < picture.height; ++y)
        std::memcpy(image.scanLine(y), picture.Pixel(0, y), rowBytes);
    return image;
}

RgbaPicture PictureOfQImage(const QImage& image) {
    if (image.isNull()) return {};
    const QImage straight = image.convertToFormat(QImage::Format_RGBA8888);
    if (straight.isNull()) return {};
    RgbaPicture picture;
    picture.width = straight.width();
    picture.height = straight.height();
    const auto rowBytes = static_cast<std::size_t>(picture.width) * 4;
    picture.rgba.resize(rowBytes * static_cast<std::size_t>(picture.height));
    for (int y = 0; y < picture.height; ++y)
        std::memcpy(picture.rgba.data() + rowBytes * static_cast<std::size_t>(y),
                    straight.constScanLine(y), rowBytes);
    return picture;
}

}  // namespace iw::ui
