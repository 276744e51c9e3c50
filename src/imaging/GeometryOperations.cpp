#include "imaging/GeometryOperations.h"

#include <algorithm>
#include <utility>

#include "imaging/Resampler.h"

namespace iw {
namespace {

// A new buffer of width x height whose pixel (x, y) is the source's at from(x, y).
template <typename From>
RgbaBuffer Remap(const RgbaBuffer& source, int width, int height, From from) {
    RgbaBuffer out(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto [sx, sy] = from(x, y);
            out.At(x, y) = source.At(sx, sy);
            if (source.IsInverse(sx, sy)) out.SetInverse(x, y, true);
        }
    }
    return out;
}

}  // namespace

void FlipHorizontal(RgbaBuffer& pixels) {
    const int w = pixels.Width();
    pixels =
        Remap(pixels, w, pixels.Height(), [w](int x, int y) { return std::pair(w - 1 - x, y); });
}

void FlipVertical(RgbaBuffer& pixels) {
    const int h = pixels.Height();
    pixels =
        Remap(pixels, pixels.Width(), h, [h](int x, int y) { return std::pair(x, h - 1 - y); });
}

RgbaBuffer Rotate90(const RgbaBuffer& pixels) {
    // The source's left column becomes the top row, read bottom to top.
    const int h = pixels.Height();
    return Remap(pixels, h, pixels.Width(), [h](int x, int y) { return std::pair(y, h - 1 - x); });
}

RgbaBuffer Rotate180(const RgbaBuffer& pixels) {
    const int w = pixels.Width();
    const int h = pixels.Height();
    return Remap(pixels, w, h, [w, h](int x, int y) { return std::pair(w - 1 - x, h - 1 - y); });
}

RgbaBuffer Rotate270(const RgbaBuffer& pixels) {
    const int w = pixels.Width();
    return Remap(pixels, pixels.Height(), w, [w](int x, int y) { return std::pair(w - 1 - y, x); });
}

RgbaBuffer ResizePixels(const RgbaBuffer& pixels, int width, int height, bool keepAspect) {
    if (keepAspect) {
        const PixelSize size = FitSize(pixels.Width(), pixels.Height(), width, height, true);
        width = size.width;
        height = size.height;
    }
    return Resample(pixels, width, height);
}

PixelRect ContentBounds(const RgbaBuffer& pixels) {
    int left = pixels.Width(), top = pixels.Height(), right = -1, bottom = -1;
    for (int y = 0; y < pixels.Height(); ++y) {
        for (int x = 0; x < pixels.Width(); ++x) {
            if (pixels.At(x, y).a == 0 && !pixels.IsInverse(x, y)) continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (right < 0) return {};
    return {left, top, right - left + 1, bottom - top + 1};
}

RgbaBuffer TrimToContent(const RgbaBuffer& pixels) {
    const PixelRect bounds = ContentBounds(pixels);
    return bounds.Empty() ? RgbaBuffer() : Crop(pixels, bounds);
}

}  // namespace iw
