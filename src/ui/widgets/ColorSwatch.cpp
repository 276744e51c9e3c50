#include "ui/widgets/ColorSwatch.h"

#include <QMouseEvent>
#include <QPainter>

#include "editor/EditorTexts.h"
#include "ui/UiText.h"

namespace iw::ui {

void PaintColorCell(QPainter& painter, const QRect& box, PackedColor color, int alpha) {
    painter.save();
    if (color == InverseColor) {
        painter.fillRect(box, QColor(74, 85, 104));
        painter.fillRect(box, QBrush(QColor(230, 235, 242), Qt::BDiagPattern));
    } else {
        const int half = std::max(box.width() / 2, 2);
        painter.fillRect(box, Qt::white);
        painter.fillRect(QRect(box.topLeft(), QSize(half, box.height() / 2)),
                         QColor(204, 209, 216));
        painter.fillRect(QRect(box.topLeft() + QPoint(half, box.height() / 2),
                               QSize(box.width() - half, box.height() - box.height() / 2)),
                         QColor(204, 209, 216));
        if (color != TransparentColor)
            painter.fillRect(box, QColor(RedOf(color), GreenOf(color), BlueOf(color), alpha));
    }
    painter.setPen(QColor(60, 66, 76));
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    painter.restore();
}

QString ColorWords(PackedColor color) {
    if (color == TransparentColor) return Tr(texts::TransparentPixel);
    if (color == InverseColor) return Tr(texts::InvertedPixel);
    return QStringLiteral("R %1, G %2, B %3")
        .arg(RedOf(color))
        .arg(GreenOf(color))
        .arg(BlueOf(color));
}

ColorSwatch::ColorSwatch(QWidget* parent) : QWidget(parent) {
    setCursor(Qt::PointingHandCursor);
}

void ColorSwatch::SetColor(PackedColor color, int alpha) {
    color_ = color;
    alpha_ = alpha;
    setToolTip(ColorWords(color));
    update();
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    PaintColorCell(painter, rect(), color_, alpha_);
}

void ColorSwatch::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Clicked();
}

void ColorSwatch::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit DoubleClicked();
}

}  // namespace iw::ui
