#pragma once
// The Line, Rectangle and Ellipse tools. Each draws between the point where the button went
// down and the point where it is now, through PlotPixel.

#include <vector>

#include "document/model/IconImage.h"
#include "editor/Geometry.h"

namespace iw {

// The cells of a line `width` cells thick (1..4; others count as 1): a width by width block
// at every cell of the 8-connected line, the block's extra cells going right and down first
// (width 2 covers the cell and its right and lower neighbours; width 3 is centred).
std::vector<Point> ThickLinePoints(Point from, Point to, int width);

// The cells of the rectangle with corners `a` and `b` (either order): its one-cell border,
// or every cell inside it as well when `filled`.
std::vector<Point> RectanglePoints(Point a, Point b, bool filled);

// The cells of the ellipse inscribed in the rectangle with corners `a` and `b`. A cell
// belongs to the filled ellipse when its centre lies inside the ellipse through the
// rectangle's outer edges; the outline is the cells of the filled ellipse that have a left,
// right, upper or lower neighbour outside it, so it is closed and one cell thick.
std::vector<Point> EllipsePoints(Point a, Point b, bool filled);

void PlotPoints(IconImage& image, const std::vector<Point>& points, PackedColor color, int alpha);

}  // namespace iw
