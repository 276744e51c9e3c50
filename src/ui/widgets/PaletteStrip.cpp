#include "ui/widgets/PaletteStrip.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/widgets/ColorSwatch.h"

namespace iw::ui {
namespace {
constexpr int kCell = 18;  // a cell's pitch, logical pixels
constexpr int kGap = 2;
}  // namespace

PaletteStrip::PaletteStrip(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picPalette"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PaletteStrip::SetColors(std::vector<PackedColor> colors) {
    if (colors == colors_) return;
    colors_ = std::move(colors);
    FitHeight();
    update();
}

int PaletteStrip::Columns(int width) const {
    return std::max(1, (width - kGap) / kCell);
}

int PaletteStrip::heightForWidth(int width) const {
    const int count = std::max<int>(static_cast<int>(colors_.size()), 1);
    const int rows = (count + Columns(width) - 1) / Columns(width);
    return rows * kCell + kGap;
}

QSize PaletteStrip::sizeHint() const {
    return {kCell * 16, heightForWidth(std::max(width(), kCell * 16))};
}

void PaletteStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    FitHeight();
}

void PaletteStrip::FitHeight() {
    // The rows depend on the width; the height follows them.
    const int wanted = heightForWidth(width());
    if (minimumHeight() != wanted || maximumHeight() != wanted) setFixedHeight(wanted);
}

QRect PaletteStrip::CellRect(int index) const {
    const int columns = Columns(width());
    return {kGap + (index % columns) * kCell, kGap + (index / columns) * kCell, kCell - kGap,
            kCell - kGap};
}

int PaletteStrip::IndexAt(QPoint point) const {
    for (int i = 0; i < static_cast<int>(colors_.size()); ++i) {
        if (CellRect(i).contains(point)) return i;
    }
    return -1;
}

void PaletteStrip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (int i = 0; i < static_cast<int>(colors_.size()); ++i) {
        const QRect cell = CellRect(i);
        if (cell.intersects(event->rect()))
            PaintColorCell(painter, cell, colors_[static_cast<std::size_t>(i)]);
    }
}

void PaletteStrip::mousePressEvent(QMouseEvent* event) {
    const int index = IndexAt(event->position().toPoint());
    if (index < 0) return;
    const PackedColor color = colors_[static_cast<std::size_t>(index)];
    if (event->button() == Qt::LeftButton) emit ForeColorPicked(color);
    if (event->button() == Qt::RightButton) emit BackColorPicked(color);
}

bool PaletteStrip::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int index = IndexAt(help->pos());
        if (index >= 0) {
            QToolTip::showText(help->globalPos(),
                               ColorWords(colors_[static_cast<std::size_t>(index)]), this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(event);
}

}  // namespace iw::ui
