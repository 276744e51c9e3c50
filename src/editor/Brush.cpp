#include "editor/Brush.h"

#include <array>
#include <cmath>

#include "editor/PixelPlot.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

// The offsets of a brush ring of radius `radius` from its centre. The angle runs over the
// integers 1 to 360 taken as radians: the 360 points scatter round the ring instead of
// stepping evenly. That is how the brush has always looked, so it is kept.
std::array<Point, 360> RingOffsets(int radius) {
    std::array<Point, 360> offsets{};
    for (int a = 1; a <= 360; ++a) {
        const double angle = static_cast<double>(a);
        offsets[static_cast<std::size_t>(a - 1)] = {
            RoundHalfEven(radius * std::cos(angle) + radius) - radius,
            RoundHalfEven(radius - radius * std::sin(angle)) - radius};
    }
    return offsets;
}

const std::array<Point, 360>& Ring3() {
    static const std::array<Point, 360> ring = RingOffsets(3);
    return ring;
}

const std::array<Point, 360>& Ring2() {
    static const std::array<Point, 360> ring = RingOffsets(2);
    return ring;
}

// Calls plot(x, y) for every point of the shape, tested in this order so that the larger
// circles include the smaller ones.
template <typename Plot>
void ForEachBrushPoint(std::string_view shape, int x, int y, Plot&& plot) {
    const bool large = shape == "LCircle";
    const bool medium = large || shape == "MCircle";
    const bool small = medium || shape == "SCircle";
    if (large) {
        for (const Point& d : Ring3())
            plot(x + d.x, y + d.y);
    }
    if (medium) {
        for (const Point& d : Ring2())
            plot(x + d.x, y + d.y);
    }
    if (small) {
        plot(x, y);
        plot(x, y - 1);
        plot(x, y + 1);
        plot(x - 1, y);
        plot(x + 1, y);
    }
    int half = -1;
    if (shape == "LSquare") half = 2;
    if (shape == "MSquare") half = 1;
    if (shape == "SSquare") half = 0;
    if (half >= 0) {
        for (int px = x - half; px <= x + half; ++px) {
            for (int py = y - half; py <= y + half; ++py)
                plot(px, py);
        }
    }
}

}  // namespace

std::vector<Point> BrushPoints(std::string_view shape, int x, int y) {
    std::vector<Point> points;
    ForEachBrushPoint(shape, x, y, [&](int px, int py) { points.push_back({px, py}); });
    return points;
}

void StampBrush(IconImage& image, std::string_view shape, int x, int y, PackedColor color,
                int alpha) {
    ForEachBrushPoint(shape, x, y, [&](int px, int py) { PlotPixel(image, px, py, color, alpha); });
}

void BrushStroke(IconImage& image, std::string_view shape, Point from, Point to, PackedColor color,
                 int alpha) {
    const std::vector<Point> line = LinePoints(from, to);
    for (std::size_t i = 1; i < line.size(); ++i)
        StampBrush(image, shape, line[i].x, line[i].y, color, alpha);
}

}  // namespace iw
