#include "ui/widgets/CanvasArea.h"

#include <QScrollBar>
#include <QWheelEvent>

#include "ui/widgets/CanvasWidget.h"

namespace iw::ui {
namespace {
constexpr int kWheelStep = 120;  // one notch of an ordinary wheel
}

CanvasArea::CanvasArea(Editor& editor, CanvasWidget* canvas, QWidget* parent)
    : QScrollArea(parent), editor_(editor), canvas_(canvas) {
    setObjectName(QStringLiteral("picBackground"));
    setWidget(canvas);
    setWidgetResizable(false);
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Dark);
    setFrameShape(QFrame::NoFrame);
}

void CanvasArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    const QSize size = maximumViewportSize();
    editor_.View().SetViewport({size.width(), size.height()});
}

void CanvasArea::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    wheelRemainder_ += event->angleDelta().y();
    const int steps = wheelRemainder_ / kWheelStep;
    wheelRemainder_ -= steps * kWheelStep;
    if (steps != 0) ZoomAbout(event->position(), steps);
    event->accept();
}

void CanvasArea::ZoomAbout(QPointF viewportPoint, int steps) {
    const int before = editor_.View().State().PixelSize;
    const QPointF cell = (viewportPoint - QPointF(canvas_->pos())) / before;
    for (int i = 0; i < std::abs(steps); ++i) {
        if (steps > 0) {
            editor_.View().ZoomIn();
        } else {
            editor_.View().ZoomOut();
        }
    }
    // The canvas has its new size now; scroll so the same point lies under the mouse.
    const QPointF wanted = cell * editor_.View().State().PixelSize - viewportPoint;
    horizontalScrollBar()->setValue(qRound(wanted.x()));
    verticalScrollBar()->setValue(qRound(wanted.y()));
}

}  // namespace iw::ui
