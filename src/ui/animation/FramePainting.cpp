#include "ui/animation/FramePainting.h"

#include <QPainter>

namespace iw::ui {
namespace {

const QBrush& Checker() {
    static const QBrush brush = [] {
        QImage tile(8, 8, QImage::Format_RGB32);
        tile.fill(QColor(255, 255, 255));
        QPainter p(&tile);
        p.fillRect(0, 0, 4, 4, QColor(204, 209, 216));
        p.fillRect(4, 4, 4, 4, QColor(204, 209, 216));
        return QBrush(tile);
    }();
    return brush;
}

}  // namespace

QRect FitInto(const QRect& box, QSize size) {
    if (size.width() > box.width() || size.height() > box.height())
        size.scale(box.size(), Qt::KeepAspectRatio);
    return {box.x() + (box.width() - size.width()) / 2,
            box.y() + (box.height() - size.height()) / 2, size.width(), size.height()};
}

void FillChecker(QPainter& painter, const QRect& rect) {
    painter.setBrushOrigin(rect.topLeft());
    painter.fillRect(rect, Checker());
}

void DrawOnChecker(QPainter& painter, const QRect& target, const PixelPicture& picture) {
    FillChecker(painter, target);
    DrawPictureOver(painter, target, picture);
}

QPixmap FrameThumbnail(const IconImage& image, int side, qreal devicePixelRatio) {
    QPixmap pixmap(QSize(side, side) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const PixelPicture picture = MakePixelPicture(image);
    DrawOnChecker(painter, FitInto(QRect(0, 0, side, side), picture.Size()), picture);
    return pixmap;
}

}  // namespace iw::ui
