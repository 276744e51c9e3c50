#pragma once
// How the animated cursor windows draw a frame: over a light checker where it is
// transparent, as it is when it fits its box, else scaled down keeping its shape.

#include <QPixmap>
#include <QRect>

#include "document/model/IconImage.h"
#include "ui/widgets/PixelPicture.h"
#include "ui/widgets/SmallChecker.h"

class QPainter;

namespace iw::ui {

// The picture's place in `box`: centred, at its own size when it fits, else scaled down.
QRect FitInto(const QRect& box, QSize size);
// The picture drawn into `target` over the checker.
void DrawOnChecker(QPainter& painter, const QRect& target, const PixelPicture& picture);
// A side x side picture of a frame for a label, sharp at the given device pixel ratio.
QPixmap FrameThumbnail(const IconImage& image, int side, qreal devicePixelRatio);

}  // namespace iw::ui
