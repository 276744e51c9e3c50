#pragma once
// A square showing one colour of the editor: a packed colour (with an alpha, for the
// foreground), the transparent marker as a checkerboard or the inverting marker as a hatch.
// Used for picForeColor, picBackcolor and the palette strip's cells.

#include <QWidget>

#include "document/model/Colors.h"

class QPainter;

namespace iw::ui {

// Paints `color` (with `alpha` over a checkerboard) into `box`.
void PaintColorCell(QPainter& painter, const QRect& box, PackedColor color, int alpha = 255);

// The words for a colour in tool tips: "Transparent", "Inverted" or "R 1, G 2, B 3".
QString ColorWords(PackedColor color);

class ColorSwatch final : public QWidget {
    Q_OBJECT

  public:
    explicit ColorSwatch(QWidget* parent = nullptr);
    void SetColor(PackedColor color, int alpha = 255);

  signals:
    void Clicked();
    void DoubleClicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    PackedColor color_ = 0;
    int alpha_ = 255;
};

}  // namespace iw::ui
