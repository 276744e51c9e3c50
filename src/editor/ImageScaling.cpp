#include "editor/ImageScaling.h"

#include <algorithm>
#include <vector>

#include "editor/PixelPlot.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

struct Premultiplied {
    double r = 0, g = 0, b = 0, a = 0;
};

Premultiplied SourcePixel(const IconImage& image, int x, int y) {
    const PackedColor color = image.Color(x, y);
    if (IsMarker(color)) return {};
    const double alpha = image.info.bitCount == 32 ? std::clamp(image.Alpha(x, y), 0, 255) : 255;
    const double f = alpha / 255.0;
    return {RedOf(color) * f, GreenOf(color) * f, BlueOf(color) * f, alpha};
}

// How much of the source cell [cell, cell + 1) lies inside [from, to).
double Overlap(int cell, double from, double to) {
    return std::max(0.0, std::min<double>(cell + 1, to) - std::max<double>(cell, from));
}

}  // namespace

void ScaleImageInto(const IconImage& source, IconImage& target) {
    const int sw = ImageWidth(source);
    const int sh = ImageHeight(source);
    const int tw = ImageWidth(target);
    const int th = ImageHeight(target);
    const int bits = target.info.bitCount;
    const double sx = static_cast<double>(sw) / tw;
    const double sy = static_cast<double>(sh) / th;
    for (int tx = 0; tx < tw; ++tx) {
        const double x0 = tx * sx;
        const double x1 = x0 + sx;
        for (int ty = 0; ty < th; ++ty) {
            const double y0 = ty * sy;
            const double y1 = y0 + sy;
            Premultiplied sum;
            double weight = 0;
            for (int x = static_cast<int>(x0); x < sw && x < x1; ++x) {
                const double wx = Overlap(x, x0, x1);
                for (int y = static_cast<int>(y0); y < sh && y < y1; ++y) {
                    const double w = wx * Overlap(y, y0, y1);
                    const Premultiplied p = SourcePixel(source, x, y);
                    sum.r += p.r * w;
                    sum.g += p.g * w;
                    sum.b += p.b * w;
                    sum.a += p.a * w;
                    weight += w;
                }
            }
            const double alpha = weight > 0 ? sum.a / weight : 0;
            const int a = std::clamp(RoundHalfEven(alpha), 0, 255);
            PackedColor color = TransparentColor;
            if (alpha > 0) {
                const double f = 255.0 / sum.a;
                color = PackColor(RoundHalfEven(sum.r * f), RoundHalfEven(sum.g * f),
                                  RoundHalfEven(sum.b * f));
            }
            if (bits == 32) {
                PlotPixel(target, tx, ty, a == 0 ? TransparentColor : color, a);
            } else {
                PlotPixel(target, tx, ty, a < 128 ? TransparentColor : ColorForDepth(color, bits),
                          0);
            }
        }
    }
}

}  // namespace iw
