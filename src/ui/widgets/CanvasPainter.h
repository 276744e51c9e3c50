#pragma once
// Paints the canvas: the enlarged image over a checkerboard, the inverting pixels in a
// hatch of their own, the grid, the cursor's hotspot and a floating selection with its
// marching outline, or the rectangle the Select tool is dragging out. Only the exposed part
// is painted. Everything is in the canvas's logical
// coordinates, one cell `pixelSize` across; the painter's device supplies the scale.

#include <QPoint>
#include <QRect>
#include <optional>

#include "ui/widgets/PixelPicture.h"

class QPainter;
class QRegion;

namespace iw::ui {

struct CanvasScene {
    const PixelPicture* picture = nullptr;  // the image being edited
    int pixelSize = 1;
    bool showGrid = false;
    std::optional<QPoint> hotspot;           // the cell marked as a cursor's hotspot
    const PixelPicture* floating = nullptr;  // a picture floating above the image
    QPoint floatingOrigin;                   // the cell of its top-left corner
    std::optional<QRect> band;               // the cells of a rectangle being dragged out
    int dashOffset = 0;                      // moves the outlines' dashes: they march
};

// The logical pixels of a marching outline around `cells`: what must be repainted when its
// dashes move.
QRegion OutlineRegion(const QRect& cells, int pixelSize);

// The smallest cell on which the grid is drawn: below it the lines would hide the pixels.
inline constexpr int kMinGridPixelSize = 3;

void PaintCanvas(QPainter& painter, const QRect& exposed, const CanvasScene& scene);

}  // namespace iw::ui
