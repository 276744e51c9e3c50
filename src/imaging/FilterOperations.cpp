#include "imaging/FilterOperations.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "imaging/OperationProgress.h"
#include "imaging/Premultiplied.h"
#include "imaging/Rounding.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

constexpr int kMaxRadius = 32;

enum class Edge { Repeat, Transparent };

// Interleaved float channels of a width x height picture.
struct FloatPlane {
    int width;
    int height;
    int channels;
    std::vector<float> values;
    float* At(int x, int y) {
        return values.data() + (static_cast<std::size_t>(y) * width + x) * channels;
    }
};

std::vector<float> GaussianKernel(int radius) {
    std::vector<float> kernel(static_cast<std::size_t>(2 * radius + 1));
    const double sigma = radius / 2.0;
    double sum = 0;
    for (int i = -radius; i <= radius; ++i) {
        const double w = std::exp(-(i * i) / (2 * sigma * sigma));
        kernel[static_cast<std::size_t>(i + radius)] = static_cast<float>(w);
        sum += w;
    }
    for (float& w : kernel)
        w = static_cast<float>(w / sum);
    return kernel;
}

// One pass of the separable blur along x (`alongX`) or y. The column pass runs column by
// column and reports each to `progress`.
void BlurPass(FloatPlane& plane, const std::vector<float>& kernel, Edge edge, bool alongX,
              OperationProgress* progress) {
    const int radius = static_cast<int>(kernel.size() / 2);
    const int length = alongX ? plane.width : plane.height;
    const int lines = alongX ? plane.height : plane.width;
    const int c = plane.channels;
    std::vector<float> line(static_cast<std::size_t>(length) * c);
    for (int l = 0; l < lines; ++l) {
        auto cell = [&](int i) { return alongX ? plane.At(i, l) : plane.At(l, i); };
        for (int i = 0; i < length; ++i) {
            for (int k = 0; k < c; ++k)
                line[static_cast<std::size_t>(i) * c + k] = cell(i)[k];
        }
        for (int i = 0; i < length; ++i) {
            float sum[4] = {};
            for (int d = -radius; d <= radius; ++d) {
                int j = i + d;
                if (j < 0 || j >= length) {
                    if (edge == Edge::Transparent) continue;
                    j = std::clamp(j, 0, length - 1);
                }
                const float w = kernel[static_cast<std::size_t>(d + radius)];
                for (int k = 0; k < c; ++k)
                    sum[k] += w * line[static_cast<std::size_t>(j) * c + k];
            }
            for (int k = 0; k < c; ++k)
                cell(i)[k] = sum[k];
        }
        if (!alongX && progress) progress->ColumnDone(l);
    }
}

void BlurPlane(FloatPlane& plane, int radius, Edge edge, OperationProgress* progress) {
    radius = std::clamp(radius, 0, kMaxRadius);
    if (radius == 0) return;
    const std::vector<float> kernel = GaussianKernel(radius);
    BlurPass(plane, kernel, edge, true, nullptr);
    BlurPass(plane, kernel, edge, false, progress);
}

}  // namespace

void Blur(RgbaBuffer& pixels, int radius, IProgressSink& progress) {
    OperationProgress status(progress, nullptr, pixels.Width());
    FloatPlane plane{pixels.Width(), pixels.Height(), 4, PremultiplyPixels(pixels)};
    BlurPlane(plane, radius, Edge::Repeat, &status);
    for (int y = 0; y < plane.height; ++y) {
        for (int x = 0; x < plane.width; ++x) {
            if (!pixels.IsInverse(x, y)) pixels.At(x, y) = UnpremultiplyPixel(plane.At(x, y));
        }
    }
}

void Sharpen(RgbaBuffer& pixels, int strength, IProgressSink& progress) {
    OperationProgress status(progress, &texts::Sharpen, pixels.Width());
    const RgbaBuffer source = pixels;
    const double k = std::clamp(strength, 0, 500) / 100.0;
    constexpr int kSteps[4][2] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    for (int x = 0; x < source.Width(); ++x) {
        for (int y = 0; y < source.Height(); ++y) {
            const Rgba c = source.At(x, y);
            if (c.a == 0 || source.IsInverse(x, y)) continue;
            double neighbours[3] = {};
            for (const auto& step : kSteps) {
                const int nx = x + step[0];
                const int ny = y + step[1];
                Rgba n = c;
                int weight = 255;
                if (nx >= 0 && ny >= 0 && nx < source.Width() && ny < source.Height() &&
                    !source.IsInverse(nx, ny)) {
                    n = source.At(nx, ny);
                    weight = n.a;
                }
                // A neighbour counts as much as it shows; the rest of it is the pixel itself.
                neighbours[0] += (weight * n.r + (255 - weight) * c.r) / 255.0;
                neighbours[1] += (weight * n.g + (255 - weight) * c.g) / 255.0;
                neighbours[2] += (weight * n.b + (255 - weight) * c.b) / 255.0;
            }
            auto sharpened = [&](int own, double sum) {
                return std::clamp(RoundHalfEven(own + k * (4 * own - sum)), 0, 255);
            };
            Rgba& out = pixels.At(x, y);
            out.r = static_cast<std::uint8_t>(sharpened(c.r, neighbours[0]));
            out.g = static_cast<std::uint8_t>(sharpened(c.g, neighbours[1]));
            out.b = static_cast<std::uint8_t>(sharpened(c.b, neighbours[2]));
        }
        status.ColumnDone(x);
    }
}

void SmoothAlpha(RgbaBuffer& pixels, IProgressSink& progress) {
    OperationProgress status(progress, &texts::Smooth, pixels.Width());
    const RgbaBuffer source = pixels;
    for (int x = 0; x < source.Width(); ++x) {
        for (int y = 0; y < source.Height(); ++y) {
            if (source.IsInverse(x, y)) continue;
            int weights = 0, alpha = 0, red = 0, green = 0, blue = 0;
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    const int nx = x + dx;
                    const int ny = y + dy;
                    if (nx < 0 || ny < 0 || nx >= source.Width() || ny >= source.Height()) continue;
                    const int w = (dx == 0 ? 2 : 1) * (dy == 0 ? 2 : 1);
                    weights += w;
                    if (source.IsInverse(nx, ny)) continue;
                    const Rgba n = source.At(nx, ny);
                    alpha += w * n.a;
                    red += w * n.a * n.r;
                    green += w * n.a * n.g;
                    blue += w * n.a * n.b;
                }
            }
            Rgba& out = pixels.At(x, y);
            const Rgba own = source.At(x, y);
            out.a = static_cast<std::uint8_t>(RoundHalfEven(alpha, weights));
            if (own.a == 0 && out.a != 0) {
                out.r = static_cast<std::uint8_t>(RoundHalfEven(red, alpha));
                out.g = static_cast<std::uint8_t>(RoundHalfEven(green, alpha));
                out.b = static_cast<std::uint8_t>(RoundHalfEven(blue, alpha));
            }
        }
        status.ColumnDone(x);
    }
}

void DropShadow(RgbaBuffer& pixels, const DropShadowOptions& options, IProgressSink& progress) {
    OperationProgress status(progress, &texts::AddingDropshadow, pixels.Width());
    const int width = pixels.Width();
    const int height = pixels.Height();
    FloatPlane shadow{width, height, 1, std::vector<float>(pixels.Pixels().size())};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const long long sx = static_cast<long long>(x) - options.offsetX;
            const long long sy = static_cast<long long>(y) - options.offsetY;
            if (sx < 0 || sy < 0 || sx >= width || sy >= height) continue;
            const int ix = static_cast<int>(sx);
            const int iy = static_cast<int>(sy);
            if (!pixels.IsInverse(ix, iy)) *shadow.At(x, y) = pixels.At(ix, iy).a / 255.0f;
        }
    }
    BlurPlane(shadow, options.radius, Edge::Transparent, nullptr);
    const float opacity = static_cast<float>(std::clamp(options.opacity, 0, 100)) / 100.0f;
    const float shade[3] = {static_cast<float>(RedOf(options.color)),
                            static_cast<float>(GreenOf(options.color)),
                            static_cast<float>(BlueOf(options.color))};
    for (int x = 0; x < width; ++x) {
        for (int y = 0; y < height; ++y) {
            if (pixels.IsInverse(x, y)) continue;
            Rgba& p = pixels.At(x, y);
            const float a = p.a / 255.0f;
            const float s = *shadow.At(x, y) * opacity * (1 - a);
            const float out = a + s;
            if (out <= 0) continue;
            auto mix = [&](std::uint8_t own, float shadowChannel) {
                return UnitToByte((own * a + shadowChannel * s) / out / 255.0f);
            };
            p = {mix(p.r, shade[0]), mix(p.g, shade[1]), mix(p.b, shade[2]), UnitToByte(out)};
        }
        status.ColumnDone(x);
    }
}

}  // namespace iw
