#pragma once
// The palette strip under the canvas: the colours the core offers for the image being
// edited, in rows that wrap with the window's width. A left click takes a colour as the
// foreground colour, a right click as the background colour.

#include <QWidget>
#include <vector>

#include "document/model/Colors.h"

namespace iw::ui {

class PaletteStrip final : public QWidget {
    Q_OBJECT

  public:
    explicit PaletteStrip(QWidget* parent = nullptr);

    void SetColors(std::vector<PackedColor> colors);
    const std::vector<PackedColor>& Colors() const { return colors_; }
    // The cell of colour `index`, in the strip's coordinates.
    QRect CellRect(int index) const;

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

  signals:
    void ForeColorPicked(PackedColor color);
    void BackColorPicked(PackedColor color);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void FitHeight();
    int Columns(int width) const;
    int IndexAt(QPoint point) const;

    std::vector<PackedColor> colors_;
};

}  // namespace iw::ui
