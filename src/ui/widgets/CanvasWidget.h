#pragma once
// picIcon: the drawing surface. Paints the image being edited at PixelSize screen pixels a
// cell, and hands mouse and key events to the editor's canvas in image cells. A floating
// selection and the rectangle being dragged out are outlined with marching dashes.

#include <QBasicTimer>
#include <QCursor>
#include <QWidget>
#include <optional>

#include "editor/Editor.h"
#include "ui/widgets/CurrentPicture.h"

namespace iw::ui {

class CanvasWidget final : public QWidget {
    Q_OBJECT

  public:
    CanvasWidget(Editor& editor, CurrentPicture& picture, QWidget* parent = nullptr);

    // What the editor's events name: the pixels, the view (size), the tool (cursor).
    void ImageChanged() { update(); }
    void ViewChanged();
    void ToolChanged();
    // The floating selection or the dragged rectangle changed: repaint, and let the dashes
    // march while either shows.
    void SelectionChanged();
    // The hotspot moved, or setting it began or ended: the marker and the cursor.
    void HotspotChanged();

  signals:
    // The status bar text for the pixel under the mouse ("" when it leaves the image).
    void StatusTextChanged(const QString& text);
    void Painted();      // after every paint
    void StrokeEnded();  // the button of a stroke came up

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    Point CellAt(const QPointF& position) const;
    // The status text and the cursor for the cell under the mouse.
    void Hover(Point cell);
    const QCursor& CurrentToolCursor();
    // The cells outlined with marching dashes (floating selection, dragged rectangle).
    std::vector<QRect> Outlined() const;

    Editor& editor_;
    CurrentPicture& picture_;
    std::optional<Qt::MouseButton> pressed_;  // the button of the stroke under way
    std::optional<QCursor> toolCursor_;
    qreal cursorRatio_ = 0;
    std::optional<Point> hover_;  // the cell under the mouse
    QBasicTimer march_;
    int dashOffset_ = 0;
};

}  // namespace iw::ui
