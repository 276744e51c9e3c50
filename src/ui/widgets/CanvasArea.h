#pragma once
// picBackground: the area the canvas lies in. Reports its size to the editor's layout
// (fit in window), scrolls a canvas larger than itself, and zooms with Ctrl and the wheel
// about the cell under the mouse.

#include <QScrollArea>

#include "editor/Editor.h"

namespace iw::ui {

class CanvasWidget;

class CanvasArea final : public QScrollArea {
    Q_OBJECT

  public:
    CanvasArea(Editor& editor, CanvasWidget* canvas, QWidget* parent = nullptr);

    // Zoom in (steps > 0) or out, keeping the image point under `viewportPoint` where it is.
    void ZoomAbout(QPointF viewportPoint, int steps);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    Editor& editor_;
    CanvasWidget* canvas_;
    int wheelRemainder_ = 0;  // angle not yet spent on a step (fine-grained wheels)
};

}  // namespace iw::ui
