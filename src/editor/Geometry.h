#pragma once
// Points and rectangles in image coordinates, and the straight line between two points.

#include <vector>

namespace iw {

struct Point {
    int x = 0;
    int y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

// A rectangle of cells: its top-left cell and its sides (empty when a side is not positive).
struct CellRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool Empty() const { return width <= 0 || height <= 0; }
    bool Contains(Point cell) const {
        return cell.x >= x && cell.y >= y && cell.x - x < width && cell.y - y < height;
    }
    friend bool operator==(const CellRect&, const CellRect&) = default;
};

// The rectangle with `a` and `b` as opposite corners, both included.
CellRect RectBetween(Point a, Point b);
// The cells the two rectangles share (empty when none).
CellRect Intersect(const CellRect& a, const CellRect& b);

// Every cell of the 8-connected line from `from` to `to`, both ends included (Bresenham).
std::vector<Point> LinePoints(Point from, Point to);

}  // namespace iw
