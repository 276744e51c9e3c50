#include "editor/FloatingPicture.h"

#include <algorithm>

#include "editor/DepthConversion.h"
#include "editor/PixelPlot.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

bool HasAlpha(const IconImage& image) {
    return image.info.bitCount == 32;
}

// `top` (colour and alpha) laid over the 32-bit cell (x, y) of `image`.
void Over(IconImage& image, int x, int y, PackedColor top, int topAlpha) {
    const int below = IsMarker(image.Color(x, y)) ? 0 : ShownAlpha(image, x, y);
    const PackedColor under = image.Color(x, y);
    const double coverBelow = below * (255 - topAlpha) / 255.0;
    const double alpha = topAlpha + coverBelow;
    const auto channel = [&](int (*of)(PackedColor)) {
        return RoundHalfEven((of(top) * topAlpha + of(under) * coverBelow) / alpha);
    };
    image.Color(x, y) = PackColor(channel(RedOf), channel(GreenOf), channel(BlueOf));
    image.Alpha(x, y) = RoundHalfEven(alpha);
}

}  // namespace

void FloatingPicture::Drop(IconImage& image, SelectionMode mode) {
    const CellRect over = Intersect(Rect(), {0, 0, ImageWidth(image), ImageHeight(image)});
    for (int x = over.x; x < over.x + over.width; ++x) {
        for (int y = over.y; y < over.y + over.height; ++y) {
            const int px = x - origin_.x;
            const int py = y - origin_.y;
            const PackedColor color = pixels_.Color(px, py);
            const int alpha = ShownAlpha(pixels_, px, py);
            if (mode == SelectionMode::Transparent) {
                if (alpha == 0) continue;
                if (HasAlpha(image) && alpha < 255) {
                    Over(image, x, y, color, alpha);
                    continue;
                }
            }
            image.Color(x, y) = color;
            if (HasAlpha(image)) image.Alpha(x, y) = alpha;
        }
    }
    image.DropOriginalPng();
}

std::unique_ptr<FloatingPicture> LiftOut(IconImage& image, const CellRect& rect) {
    IconImage pixels;
    pixels.info = image.info;
    pixels.info.widthMinus1 = static_cast<std::int16_t>(rect.width - 1);
    pixels.info.heightMinus1 = static_cast<std::int16_t>(rect.height - 1);
    pixels.info.png = 0;
    for (int x = 0; x < rect.width; ++x) {
        for (int y = 0; y < rect.height; ++y) {
            for (int plane = 0; plane < 2; ++plane) {
                std::int32_t& cell = image.At(rect.x + x, rect.y + y, plane);
                pixels.At(x, y, plane) = cell;
                cell = plane == IconImage::ColorPlane ? TransparentColor : 0;
            }
        }
    }
    image.DropOriginalPng();
    return std::make_unique<FloatingPicture>(std::move(pixels), Point{rect.x, rect.y});
}

Point KeepOverlapping(Point origin, const CellRect& size, const IconImage& image) {
    return {std::clamp(origin.x, 1 - size.width, ImageWidth(image) - 1),
            std::clamp(origin.y, 1 - size.height, ImageHeight(image) - 1)};
}

}  // namespace iw
