#include "ui/widgets/OptionPictures.h"

#include <QPainter>
#include <algorithm>
#include <vector>

#include "editor/Airbrush.h"
#include "editor/Brush.h"
#include "editor/Gradient.h"
#include "editor/Shapes.h"
#include "ui/widgets/PixelPicture.h"

namespace iw::ui {
namespace {

const QColor kInk(43, 52, 64);

QPixmap EmptyPicture(qreal ratio) {
    QPixmap pixmap(QSize(kOptionPictureSide, kOptionPictureSide) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

// The cells, each `cell` pixels square, centred in the picture: a grid of `extent` cells
// whose top-left cell is `origin`.
QPixmap CellsPicture(const std::vector<Point>& points, Point origin, int extent, qreal ratio) {
    QPixmap pixmap = EmptyPicture(ratio);
    const int cell = std::max(1, kOptionPictureSide / extent);
    const int offset = (kOptionPictureSide - cell * extent) / 2;
    QPainter painter(&pixmap);
    for (const Point& p : points) {
        const int x = p.x - origin.x;
        const int y = p.y - origin.y;
        if (x < 0 || y < 0 || x >= extent || y >= extent) continue;
        painter.fillRect(offset + x * cell, offset + y * cell, cell, cell, kInk);
    }
    return pixmap;
}

// The spray's chances for its picture: the same dots every time, so the picture is steady.
class SteadyRandom final : public IRandomSource {
  public:
    void Reseed() override { state_ = 12345u; }
    double NextUnit() override {
        state_ = state_ * 1103515245u + 12345u;
        return static_cast<double>((state_ >> 8) & 0xFFFFFFu) / 16777216.0;
    }

  private:
    std::uint32_t state_ = 12345u;
};

}  // namespace

QPixmap BrushPicture(std::string_view shape, qreal ratio) {
    constexpr int kExtent = 7;  // the largest brush reaches 3 cells from its centre
    return CellsPicture(BrushPoints(shape, 3, 3), {0, 0}, kExtent, ratio);
}

QPixmap LinePicture(int width, qreal ratio) {
    constexpr int kExtent = 14;
    return CellsPicture(ThickLinePoints({2, 11}, {11, 2}, width), {0, 0}, kExtent, ratio);
}

QPixmap SprayPicture(int radius, qreal ratio) {
    SteadyRandom random;
    random.Reseed();
    constexpr int kExtent = 17;  // the widest spray: radius 8 each side of its centre
    return CellsPicture(SprayPoints(8, 8, radius, random), {0, 0}, kExtent, ratio);
}

QPixmap GradientPicture(GradientDirection direction, qreal ratio) {
    constexpr int kSide = 24;
    IconImage image;
    image.info.widthMinus1 = kSide - 1;
    image.info.heightMinus1 = kSide - 1;
    image.info.bitCount = 32;
    PaintGradient(image, direction, PackColor(43, 52, 64), 255, PackColor(255, 255, 255));
    QPixmap pixmap = EmptyPicture(ratio);
    QPainter painter(&pixmap);
    const int offset = (kOptionPictureSide - kSide) / 2;
    const QRect box(offset, offset, kSide, kSide);
    painter.drawImage(box, MakePixelPicture(image).colors);
    painter.setPen(kInk);
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    return pixmap;
}

}  // namespace iw::ui
