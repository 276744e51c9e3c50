#include "ui/animation/FrameStrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>

#include "ui/animation/FramePainting.h"

namespace iw::ui {
namespace {

constexpr int kPicture = 48;   // the picture's box
constexpr int kMargin = 6;     // around the box inside a cell
constexpr int kNumber = 18;    // the number's line under the box
constexpr int kSprocket = 10;  // the film strip's perforated edges
constexpr int kCellWidth = kPicture + 2 * kMargin;

}  // namespace

FrameStrip::FrameStrip(const IconSet& set, Look look, QWidget* parent)
    : QWidget(parent), set_(set), look_(look) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(false);
}

void FrameStrip::SetFrames(std::vector<int> frames) {
    frames_ = std::move(frames);
    gap_ = -1;
    current_ = std::clamp(current_, 0, std::max(0, static_cast<int>(frames_.size()) - 1));
    updateGeometry();
    update();
}

QSize FrameStrip::sizeHint() const {
    const int edges = look_ == Look::Film ? 2 * kSprocket : 0;
    // An empty film strip keeps room for one cell to drop into.
    const int cells = std::max<int>(static_cast<int>(frames_.size()), 1);
    return {cells * kCellWidth + kMargin, kPicture + 2 * kMargin + kNumber + edges};
}

QRect FrameStrip::CellRect(int cell) const {
    // The cells keep to the middle when the strip is stretched taller than it needs.
    const int cellHeight = kPicture + 2 * kMargin + kNumber;
    const int top = std::max(look_ == Look::Film ? kSprocket : 0, (height() - cellHeight) / 2);
    return {kMargin / 2 + cell * kCellWidth, top, kCellWidth, cellHeight};
}

int FrameStrip::CellAt(QPoint point) const {
    for (int cell = 0; cell < static_cast<int>(frames_.size()); ++cell) {
        if (CellRect(cell).contains(point)) return cell;
    }
    return -1;
}

int FrameStrip::GapAt(QPoint point) const {
    const int gap = (point.x() - kMargin / 2 + kCellWidth / 2) / kCellWidth;
    return std::clamp(gap, 0, static_cast<int>(frames_.size()));
}

void FrameStrip::ShowGap(int gap) {
    if (gap == gap_) return;
    gap_ = gap;
    update();
}

const PixelPicture& FrameStrip::Picture(int frame) {
    if (pictures_.size() != static_cast<std::size_t>(set_.Count()))
        pictures_.assign(static_cast<std::size_t>(set_.Count()), {});
    PixelPicture& picture = pictures_[static_cast<std::size_t>(frame)];
    if (picture.colors.isNull()) picture = MakePixelPicture(set_.Image(frame));
    return picture;
}

void FrameStrip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (look_ == Look::Film) {
        // A strip of film: dark, with a row of holes along each edge.
        painter.fillRect(rect(), QColor(43, 52, 64));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(232, 235, 239));
        for (int x = 4; x < width(); x += 12) {
            painter.drawRoundedRect(QRect(x, 2, 6, kSprocket - 4), 1, 1);
            painter.drawRoundedRect(QRect(x, height() - kSprocket + 2, 6, kSprocket - 4), 1, 1);
        }
    }
    const QColor text =
        look_ == Look::Film ? QColor(232, 235, 239) : palette().color(QPalette::Text);
    for (int cell = 0; cell < static_cast<int>(frames_.size()); ++cell) {
        const QRect rect = CellRect(cell);
        if (!rect.intersects(event->rect())) continue;
        const int frame = frames_[static_cast<std::size_t>(cell)];
        if (frame < 0 || frame >= set_.Count()) continue;
        const QRect box(rect.x() + kMargin, rect.y() + kMargin, kPicture, kPicture);
        const PixelPicture& picture = Picture(frame);
        DrawOnChecker(painter, FitInto(box, picture.Size()), picture);
        painter.setPen(cell == dragged_ ? palette().color(QPalette::Highlight) : text);
        painter.drawText(QRect(rect.x(), box.bottom() + 1, rect.width(), kNumber), Qt::AlignCenter,
                         QString::number(frame + 1));
    }
    if (hasFocus() && current_ < static_cast<int>(frames_.size())) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(CellRect(current_).adjusted(2, 2, -2, -2));
    }
    if (gap_ >= 0) {
        const int x = kMargin / 2 + gap_ * kCellWidth;
        painter.fillRect(QRect(x - 1, 0, 3, height()), palette().color(QPalette::Highlight));
    }
}

void FrameStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragged_ = CellAt(event->position().toPoint());
    if (dragged_ < 0) return;
    current_ = dragged_;
    update();
    emit DragStarted(dragged_);
}

void FrameStrip::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_ >= 0) emit DragMoved(event->globalPosition().toPoint());
}

void FrameStrip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || dragged_ < 0) return;
    dragged_ = -1;
    update();
    emit DragReleased(event->globalPosition().toPoint());
}

void FrameStrip::SetCurrent(int cell) {
    if (cell < 0 || cell >= static_cast<int>(frames_.size())) return;
    current_ = cell;
    // In a scroll area (the strip's parent is its viewport) the cell scrolls into view.
    QWidget* viewport = parentWidget();
    if (auto* area = qobject_cast<QScrollArea*>(viewport ? viewport->parentWidget() : nullptr)) {
        const QRect rect = CellRect(cell);
        area->ensureVisible(rect.center().x(), rect.center().y(), rect.width(), 0);
    }
    update();
}

void FrameStrip::keyPressEvent(QKeyEvent* event) {
    const int count = static_cast<int>(frames_.size());
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right: {
            const bool right = event->key() == Qt::Key_Right;
            if (control && look_ == Look::Film) {
                // Past the next cell: the gap after it, or before the one before.
                emit MovePressed(current_, right ? current_ + 2 : current_ - 1);
            } else {
                SetCurrent(current_ + (right ? 1 : -1));
            }
            return;
        }
        case Qt::Key_Home:
            SetCurrent(0);
            return;
        case Qt::Key_End:
            SetCurrent(count - 1);
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Insert:
            if (look_ == Look::Frames && current_ < count) {
                emit AddPressed(current_);
                return;
            }
            break;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            if (look_ == Look::Film && current_ < count) {
                emit RemovePressed(current_);
                return;
            }
            break;
        default:
            break;
    }
    QWidget::keyPressEvent(event);
}

void FrameStrip::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void FrameStrip::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace iw::ui
