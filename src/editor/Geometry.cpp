#include "editor/Geometry.h"

#include <cstdlib>

namespace iw {

std::vector<Point> LinePoints(Point from, Point to) {
    const int dx = std::abs(to.x - from.x);
    const int dy = -std::abs(to.y - from.y);
    const int sx = from.x < to.x ? 1 : -1;
    const int sy = from.y < to.y ? 1 : -1;
    std::vector<Point> points;
    points.reserve(static_cast<std::size_t>((dx > -dy ? dx : -dy) + 1));
    int error = dx + dy;
    Point p = from;
    for (;;) {
        points.push_back(p);
        if (p == to) break;
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            p.x += sx;
        }
        if (twice <= dx) {
            error += dx;
            p.y += sy;
        }
    }
    return points;
}

}  // namespace iw
