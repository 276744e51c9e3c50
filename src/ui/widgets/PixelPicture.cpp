#include "ui/widgets/PixelPicture.h"

#include <QPainter>
#include <algorithm>

#include "editor/PixelPlot.h"

namespace iw::ui {

QRgb DisplayColor(PackedColor color, int alpha, int bitCount) {
    if (IsMarker(color)) return 0;
    const int a = bitCount == 32 ? std::clamp(alpha, 0, 255) : 255;
    return qPremultiply(qRgba(RedOf(color), GreenOf(color), BlueOf(color), a));
}

PixelPicture MakePixelPicture(const IconImage& image) {
    return MakePixelPicture(image, ImageWidth(image), ImageHeight(image));
}

PixelPicture MakePixelPicture(const IconImage& image, int width, int height) {
    width = std::clamp(width, 1, IconImage::kSide);
    height = std::clamp(height, 1, IconImage::kSide);
    PixelPicture picture;
    picture.colors = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
    const int bits = image.info.bitCount;
    bool inverts = false;
    for (int y = 0; y < height; ++y) {
        const auto colors = image.Row(y, IconImage::ColorPlane);
        const auto alphas = image.Row(y, IconImage::AlphaPlane);
        auto* line = reinterpret_cast<QRgb*>(picture.colors.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const PackedColor color = colors[static_cast<std::size_t>(x)];
            line[x] = DisplayColor(color, alphas[static_cast<std::size_t>(x)], bits);
            inverts = inverts || color == InverseColor;
        }
    }
    if (!inverts) return picture;
    picture.inverted = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        const auto colors = image.Row(y, IconImage::ColorPlane);
        auto* line = reinterpret_cast<QRgb*>(picture.inverted.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const bool here = colors[static_cast<std::size_t>(x)] == InverseColor;
            line[x] = here ? 0xFFFFFFFFu : 0u;
            if (here) picture.invertedCells |= QRect(x, y, 1, 1);
        }
    }
    return picture;
}

void DrawPictureOver(QPainter& painter, const QRect& target, const PixelPicture& picture) {
    const bool shrinks =
        target.width() < picture.Size().width() || target.height() < picture.Size().height();
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, shrinks);
    painter.drawImage(target, picture.colors);
    if (!picture.inverted.isNull()) {
        // White through "difference" turns each colour beneath to its opposite.
        painter.setCompositionMode(QPainter::CompositionMode_Difference);
        painter.drawImage(target, picture.inverted);
    }
    painter.restore();
}

}  // namespace iw::ui
