#include "ui/widgets/PreviewWidget.h"

#include <QPainter>

namespace iw::ui {
namespace {

// Room for the largest image, so the panels below keep their place whatever is shown.
constexpr int kSide = IconImage::kSide;
constexpr int kCheckerSquare = 4;

const QBrush& PreviewChecker() {
    static const QBrush brush = [] {
        QImage tile(2 * kCheckerSquare, 2 * kCheckerSquare, QImage::Format_RGB32);
        tile.fill(QColor(255, 255, 255));
        QPainter p(&tile);
        const QColor dark(204, 209, 216);
        p.fillRect(0, 0, kCheckerSquare, kCheckerSquare, dark);
        p.fillRect(kCheckerSquare, kCheckerSquare, kCheckerSquare, kCheckerSquare, dark);
        return QBrush(tile);
    }();
    return brush;
}

}  // namespace

PreviewWidget::PreviewWidget(CurrentPicture& picture, QWidget* parent)
    : QWidget(parent), picture_(picture) {
    setObjectName(QStringLiteral("picPreview"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PreviewWidget::SetBackground(PreviewBackground background) {
    background_ = background;
    update();
}

void PreviewWidget::ImageChanged() {
    update();
}

QSize PreviewWidget::sizeHint() const {
    return {kSide, kSide};
}

void PreviewWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const PixelPicture& picture = picture_.Get();
    const QRect box(
        QPoint((width() - picture.Size().width()) / 2, (height() - picture.Size().height()) / 2),
        picture.Size());
    switch (background_) {
        case PreviewBackground::Grid:
            painter.setBrushOrigin(box.topLeft());
            painter.fillRect(box, PreviewChecker());
            break;
        case PreviewBackground::White:
            painter.fillRect(box, Qt::white);
            break;
        case PreviewBackground::Transparent:
            break;  // the window's own background
    }
    DrawPictureOver(painter, box, picture);
}

}  // namespace iw::ui
