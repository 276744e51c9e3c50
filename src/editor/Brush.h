#pragma once
// The Pencil tool's six brush shapes and the strokes drawn with them.

#include <string_view>
#include <vector>

#include "document/model/IconImage.h"
#include "editor/Geometry.h"

namespace iw {

// The points a brush of `shape` plots around (x, y), in plotting order; the larger circles
// repeat the points of the smaller ones. An unknown shape plots nothing.
std::vector<Point> BrushPoints(std::string_view shape, int x, int y);

// Stamps the brush at (x, y) through PlotPixel.
void StampBrush(IconImage& image, std::string_view shape, int x, int y, PackedColor color,
                int alpha);

// A drag of the Pencil from `from` to `to`: the brush is stamped at every cell of the line
// between them except `from`, which the previous press or move already stamped. Fast mouse
// moves thereby leave no gaps in the stroke.
void BrushStroke(IconImage& image, std::string_view shape, Point from, Point to, PackedColor color,
                 int alpha);

}  // namespace iw
