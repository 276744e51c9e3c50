#include "ui/animation/FrameView.h"

#include <QPaintEvent>
#include <QPainter>

#include "ui/animation/FramePainting.h"

namespace iw::ui {
namespace {

constexpr int kMargin = 8;

}  // namespace

FrameView::FrameView(const IconSet& set, int zoom, QWidget* parent)
    : QWidget(parent), set_(set), zoom_(zoom) {
    for (int frame = 0; frame < set.Count(); ++frame) {
        pictures_.push_back(MakePixelPicture(set.Image(frame)));
        largest_ = largest_.expandedTo(pictures_.back().Size());
    }
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
}

void FrameView::ShowFrame(int frame) {
    if (frame == frame_) return;
    frame_ = frame;
    update();
}

QSize FrameView::sizeHint() const {
    return largest_ * zoom_ + QSize(2 * kMargin, 2 * kMargin);
}

void FrameView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    FillChecker(painter, rect());
    if (frame_ < 0 || frame_ >= static_cast<int>(pictures_.size())) return;
    const PixelPicture& picture = pictures_[static_cast<std::size_t>(frame_)];
    const QSize size = picture.Size() * zoom_;
    const QRect target((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                       size.height());
    DrawPictureOver(painter, target, picture);
}

}  // namespace iw::ui
