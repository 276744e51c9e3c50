#pragma once
// A row of an animated cursor's frames as small pictures with their numbers: the sequence
// editor's strip of images (picFrames) and its film strip of steps (picSequence). A press on
// a picture starts dragging it; while the mouse moves and when it is let go the strip tells
// where (in global coordinates), and the dialog decides what the drag does. The film strip
// shows where a dropped picture would go.
//
// The same by keys: the arrows choose a cell; Enter or Insert asks for it to be added,
// Delete for it to be removed, Ctrl with an arrow for it to be moved one place.

#include <QWidget>
#include <vector>

#include "document/model/IconSet.h"
#include "ui/widgets/PixelPicture.h"

namespace iw::ui {

class FrameStrip final : public QWidget {
    Q_OBJECT

  public:
    enum class Look { Frames, Film };
    FrameStrip(const IconSet& set, Look look, QWidget* parent = nullptr);

    // The set's images shown, one a cell, in this order.
    void SetFrames(std::vector<int> frames);
    const std::vector<int>& Frames() const { return frames_; }
    // The cell at a point, or -1; the gap nearest a point (0 before the first cell).
    int CellAt(QPoint point) const;
    int GapAt(QPoint point) const;
    QRect CellRect(int cell) const;
    // Where a drop would go (-1: nowhere).
    void ShowGap(int gap);
    // The cell the keys work on.
    int Current() const { return current_; }
    void SetCurrent(int cell);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    void DragStarted(int cell);
    void DragMoved(QPoint global);
    void DragReleased(QPoint global);
    void AddPressed(int cell);
    void RemovePressed(int cell);
    void MovePressed(int cell, int gap);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    const PixelPicture& Picture(int frame);

    const IconSet& set_;
    Look look_;
    std::vector<int> frames_;
    std::vector<PixelPicture> pictures_;  // by image, made on first use
    int gap_ = -1;
    int dragged_ = -1;
    int current_ = 0;
};

}  // namespace iw::ui
