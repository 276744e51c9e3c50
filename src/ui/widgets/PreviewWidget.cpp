#include "ui/widgets/PreviewWidget.h"

#include <QPainter>

#include "ui/widgets/SmallChecker.h"

namespace iw::ui {
namespace {

// Room for the largest image, so the panels below keep their place whatever is shown.
constexpr int kSide = IconImage::kSide;

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
            painter.fillRect(box, SmallChecker());
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
