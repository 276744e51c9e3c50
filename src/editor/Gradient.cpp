#include "editor/Gradient.h"

#include <algorithm>
#include <cmath>

#include "editor/PixelPlot.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

double Ratio(double part, double whole) {
    return whole <= 0.0 ? 0.0 : std::clamp(part / whole, 0.0, 1.0);
}

int Blend(int a, int b, double t) {
    return RoundHalfEven(a + (b - a) * t);
}

}  // namespace

double GradientPosition(GradientDirection direction, int x, int y, int width, int height) {
    const double lastX = width - 1;
    const double lastY = height - 1;
    switch (direction) {
        case GradientDirection::Vertical:
            return Ratio(y, lastY);
        case GradientDirection::Horizontal:
            return Ratio(x, lastX);
        case GradientDirection::Diagonal:
            return Ratio(x + y, lastX + lastY);
        case GradientDirection::Center: {
            const double dx = x - lastX / 2.0;
            const double dy = y - lastY / 2.0;
            return Ratio(std::hypot(dx, dy), std::hypot(lastX / 2.0, lastY / 2.0));
        }
    }
    return 0.0;
}

void PaintGradient(IconImage& image, GradientDirection direction, PackedColor from, int fromAlpha,
                   PackedColor to) {
    const int width = ImageWidth(image);
    const int height = ImageHeight(image);
    const int bits = image.info.bitCount;
    const bool split = IsMarker(from) || IsMarker(to);
    for (int x = 0; x < width; ++x) {
        for (int y = 0; y < height; ++y) {
            const double t = GradientPosition(direction, x, y, width, height);
            PackedColor color;
            int alpha;
            if (split) {
                color = t < 0.5 ? from : to;
                alpha = t < 0.5 ? fromAlpha : 255;
            } else {
                color = PackColor(Blend(RedOf(from), RedOf(to), t),
                                  Blend(GreenOf(from), GreenOf(to), t),
                                  Blend(BlueOf(from), BlueOf(to), t));
                alpha = Blend(fromAlpha, 255, t);
            }
            PlotPixel(image, x, y, ColorForDepth(color, bits), alpha);
        }
    }
}

}  // namespace iw
