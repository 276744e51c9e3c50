#pragma once
// The light checkerboard drawn under pictures (previews, thumbnails, animation frames) so
// their clear pixels show.

#include <QBrush>

class QPainter;
class QRect;

namespace iw::ui {

// A checkerboard of `square`-pixel squares.
QBrush CheckerBrush(int square);
// The one of 4-pixel squares, made once.
const QBrush& SmallChecker();
// `area` filled with the checkerboard of `square`-pixel squares, starting at its corner.
void FillChecker(QPainter& painter, const QRect& area, int square = 4);

}  // namespace iw::ui
