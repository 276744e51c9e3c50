#include "ui/widgets/SmallChecker.h"

#include <QImage>
#include <QPainter>

namespace iw::ui {

QBrush CheckerBrush(int square) {
    QImage tile(2 * square, 2 * square, QImage::Format_RGB32);
    tile.fill(QColor(255, 255, 255));
    QPainter p(&tile);
    const QColor dark(204, 209, 216);
    p.fillRect(0, 0, square, square, dark);
    p.fillRect(square, square, square, square, dark);
    return QBrush(tile);
}

const QBrush& SmallChecker() {
    static const QBrush brush = CheckerBrush(4);
    return brush;
}

void FillChecker(QPainter& painter, const QRect& area, int square) {
    painter.save();
    painter.setBrushOrigin(area.topLeft());
    painter.fillRect(area, square == 4 ? SmallChecker() : CheckerBrush(square));
    painter.restore();
}

}  // namespace iw::ui
