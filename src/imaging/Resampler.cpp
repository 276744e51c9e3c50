#include "imaging/Resampler.h"

#include <stb/stb_image_resize.h>

#include <algorithm>

#include "imaging/Premultiplied.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

stbir_filter FilterFor(int from, int to) {
    return to < from ? STBIR_FILTER_MITCHELL : STBIR_FILTER_CATMULLROM;
}

}  // namespace

Resampler::Resampler(const RgbaBuffer& source)
    : width_(source.Width()), height_(source.Height()), premultiplied_(PremultiplyPixels(source)) {
    if (!source.HasInverse()) return;
    inverse_.resize(premultiplied_.size() / 4, 0);
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x)
            inverse_[static_cast<std::size_t>(y) * width_ + x] = source.IsInverse(x, y) ? 1 : 0;
    }
}

RgbaBuffer Resampler::Resize(int width, int height) const {
    if (width < 1 || height < 1 || premultiplied_.empty()) return {};
    std::vector<float> result(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                              4);
    if (!stbir_resize(premultiplied_.data(), width_, height_, 0, result.data(), width, height, 0,
                      STBIR_TYPE_FLOAT, 4, 3, STBIR_FLAG_ALPHA_PREMULTIPLIED, STBIR_EDGE_CLAMP,
                      STBIR_EDGE_CLAMP, FilterFor(width_, width), FilterFor(height_, height),
                      STBIR_COLORSPACE_LINEAR, nullptr)) {
        return {};
    }
    RgbaBuffer out(width, height);
    const float* in = result.data();
    for (Rgba& p : out.Pixels()) {
        p = UnpremultiplyPixel(in);
        in += 4;
    }
    if (!inverse_.empty()) {
        for (int y = 0; y < height; ++y) {
            const auto sy = static_cast<std::size_t>((2LL * y + 1) * height_ / (2LL * height));
            for (int x = 0; x < width; ++x) {
                const auto sx = static_cast<std::size_t>((2LL * x + 1) * width_ / (2LL * width));
                if (!inverse_[sy * static_cast<std::size_t>(width_) + sx]) continue;
                out.At(x, y) = {255, 255, 255, 0};
                out.SetInverse(x, y, true);
            }
        }
    }
    return out;
}

RgbaBuffer Resampler::FitInside(int width, int height, bool enlarge) const {
    if (width < 1 || height < 1 || premultiplied_.empty()) return {};
    const PixelSize size = FitSize(width_, height_, width, height, enlarge);
    RgbaBuffer canvas(width, height);
    Paste(canvas, Resize(size.width, size.height), (width - size.width) / 2,
          (height - size.height) / 2);
    return canvas;
}

PixelSize FitSize(int width, int height, int maxWidth, int maxHeight, bool enlarge) {
    width = std::max(width, 1);
    height = std::max(height, 1);
    maxWidth = std::max(maxWidth, 1);
    maxHeight = std::max(maxHeight, 1);
    if (!enlarge && width <= maxWidth && height <= maxHeight) return {width, height};
    // Compare the aspects without dividing: the wider one decides which side is full.
    if (static_cast<long long>(width) * maxHeight >= static_cast<long long>(height) * maxWidth) {
        const int h = RoundHalfEven(static_cast<double>(height) * maxWidth / width);
        return {maxWidth, std::clamp(h, 1, maxHeight)};
    }
    const int w = RoundHalfEven(static_cast<double>(width) * maxHeight / height);
    return {std::clamp(w, 1, maxWidth), maxHeight};
}

RgbaBuffer Resample(const RgbaBuffer& source, int width, int height) {
    return Resampler(source).Resize(width, height);
}

}  // namespace iw
