#pragma once
// Points in image coordinates and the straight line between two of them.

#include <vector>

namespace iw {

struct Point {
    int x = 0;
    int y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

// Every cell of the 8-connected line from `from` to `to`, both ends included (Bresenham).
std::vector<Point> LinePoints(Point from, Point to);

}  // namespace iw
