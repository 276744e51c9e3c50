#include "editor/Shapes.h"

#include <algorithm>

#include "editor/PixelPlot.h"

namespace iw {
namespace {

// Shapes are only walked where the pixel store has cells, however far the pointer went.
int ClampToStore(int v) {
    return std::clamp(v, 0, IconImage::kSide - 1);
}

}  // namespace

std::vector<Point> ThickLinePoints(Point from, Point to, int width) {
    if (width < 1 || width > 4) width = 1;
    const int before = (width - 1) / 2;
    const int after = width / 2;
    std::vector<Point> points;
    for (const Point& p : LinePoints(from, to)) {
        for (int dx = -before; dx <= after; ++dx) {
            for (int dy = -before; dy <= after; ++dy)
                points.push_back({p.x + dx, p.y + dy});
        }
    }
    return points;
}

std::vector<Point> RectanglePoints(Point a, Point b, bool filled) {
    const int left = std::min(a.x, b.x);
    const int right = std::max(a.x, b.x);
    const int top = std::min(a.y, b.y);
    const int bottom = std::max(a.y, b.y);
    std::vector<Point> points;
    if (right < 0 || bottom < 0 || left >= IconImage::kSide || top >= IconImage::kSide)
        return points;
    for (int x = ClampToStore(left); x <= ClampToStore(right); ++x) {
        for (int y = ClampToStore(top); y <= ClampToStore(bottom); ++y) {
            const bool border = x == left || x == right || y == top || y == bottom;
            if (filled || border) points.push_back({x, y});
        }
    }
    return points;
}

std::vector<Point> EllipsePoints(Point a, Point b, bool filled) {
    const int left = std::min(a.x, b.x);
    const int right = std::max(a.x, b.x);
    const int top = std::min(a.y, b.y);
    const int bottom = std::max(a.y, b.y);
    const double cx = (left + right) / 2.0;
    const double cy = (top + bottom) / 2.0;
    const double rx = (right - left + 1) / 2.0;
    const double ry = (bottom - top + 1) / 2.0;
    auto inside = [&](int x, int y) {
        if (x < left || x > right || y < top || y > bottom) return false;
        const double nx = (x - cx) / rx;
        const double ny = (y - cy) / ry;
        return nx * nx + ny * ny <= 1.0 + 1e-9;
    };
    std::vector<Point> points;
    if (right < 0 || bottom < 0 || left >= IconImage::kSide || top >= IconImage::kSide)
        return points;
    for (int x = ClampToStore(left); x <= ClampToStore(right); ++x) {
        for (int y = ClampToStore(top); y <= ClampToStore(bottom); ++y) {
            if (!inside(x, y)) continue;
            const bool edge =
                !inside(x - 1, y) || !inside(x + 1, y) || !inside(x, y - 1) || !inside(x, y + 1);
            if (filled || edge) points.push_back({x, y});
        }
    }
    return points;
}

void PlotPoints(IconImage& image, const std::vector<Point>& points, PackedColor color, int alpha) {
    for (const Point& p : points)
        PlotPixel(image, p.x, p.y, color, alpha);
}

}  // namespace iw
