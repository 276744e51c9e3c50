#include "editor/Geometry.h"

#include <algorithm>
#include <cstdlib>

namespace iw {

CellRect RectBetween(Point a, Point b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x) + 1,
            std::abs(a.y - b.y) + 1};
}

CellRect Intersect(const CellRect& a, const CellRect& b) {
    const int left = std::max(a.x, b.x);
    const int top = std::max(a.y, b.y);
    const int right = std::min(a.x + a.width, b.x + b.width);
    const int bottom = std::min(a.y + a.height, b.y + b.height);
    if (right <= left || bottom <= top) return {};
    return {left, top, right - left, bottom - top};
}

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
