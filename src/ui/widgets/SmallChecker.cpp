#include "ui/widgets/SmallChecker.h"

#include <QImage>
#include <QPainter>

namespace iw::ui {

const QBrush& SmallChecker() {
    static const QBrush brush = [] {
        constexpr int square = 4;
        QImage tile(2 * square, 2 * square, QImage::Format_RGB32);
        tile.fill(QColor(255, 255, 255));
        QPainter p(&tile);
        const QColor dark(204, 209, 216);
        p.fillRect(0, 0, square, square, dark);
        p.fillRect(square, square, square, square, dark);
        return QBrush(tile);
    }();
    return brush;
}

}  // namespace iw::ui
