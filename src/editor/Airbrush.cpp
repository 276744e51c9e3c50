#include "editor/Airbrush.h"

#include <chrono>
#include <cmath>

#include "editor/PixelPlot.h"
#include "imaging/Rounding.h"

namespace iw {

void ClockRandomSource::Reseed() {
    const auto ticks = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    engine_.seed(static_cast<std::mt19937::result_type>(ticks ^ (ticks >> 32)));
}

double ClockRandomSource::NextUnit() {
    // 32 random bits over 2^32: never reaches 1.
    return static_cast<double>(engine_()) / 4294967296.0;
}

std::vector<Point> SprayPoints(int x, int y, int radius, IRandomSource& random) {
    random.Reseed();
    std::vector<Point> dots;
    if (radius < 0) return dots;
    for (int i = 0; i <= radius; ++i) {
        const int r = radius - i;
        for (int a = 1; a <= 360; ++a) {
            const double u = random.NextUnit();
            if (static_cast<int>(u * 33.0) != 2) continue;
            const double angle = static_cast<double>(a);
            dots.push_back(
                {RoundHalfEven(x + r * std::cos(angle)), RoundHalfEven(y - r * std::sin(angle))});
        }
    }
    return dots;
}

void Spray(IconImage& image, int x, int y, int radius, PackedColor color, int alpha,
           IRandomSource& random) {
    for (const Point& dot : SprayPoints(x, y, radius, random))
        PlotPixel(image, dot.x, dot.y, color, alpha);
}

}  // namespace iw
