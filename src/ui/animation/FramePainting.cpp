#include "ui/animation/FramePainting.h"

#include <QPainter>

#include "ui/widgets/SmallChecker.h"

namespace iw::ui {

QRect FitInto(const QRect& box, QSize size) {
    if (size.width() > box.width() || size.height() > box.height())
        size.scale(box.size(), Qt::KeepAspectRatio);
    return {box.x() + (box.width() - size.width()) / 2,
            box.y() + (box.height() - size.height()) / 2, size.width(), size.height()};
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
