#include "imaging/RgbaBuffer.h"

#include <algorithm>

namespace iw {

RgbaBuffer::RgbaBuffer(int width, int height)
    : width_(std::max(width, 0)), height_(std::max(height, 0)) {
    if (width_ == 0 || height_ == 0) {
        width_ = height_ = 0;
        return;
    }
    pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
}

void RgbaBuffer::SetInverse(int x, int y, bool inverse) {
    if (inverse_.empty()) {
        if (!inverse) return;
        inverse_.resize(pixels_.size(), 0);
    }
    inverse_[Index(x, y)] = inverse ? 1 : 0;
}

PixelRect ClipRect(PixelRect rect, int width, int height) {
    const int left = std::clamp(rect.x, 0, width);
    const int top = std::clamp(rect.y, 0, height);
    // In 64 bits: a rectangle near INT_MAX must not wrap around.
    const auto right = static_cast<int>(
        std::clamp<long long>(static_cast<long long>(rect.x) + rect.width, left, width));
    const auto bottom = static_cast<int>(
        std::clamp<long long>(static_cast<long long>(rect.y) + rect.height, top, height));
    return {left, top, right - left, bottom - top};
}

RgbaBuffer Crop(const RgbaBuffer& source, PixelRect rect) {
    rect = ClipRect(rect, source.Width(), source.Height());
    RgbaBuffer out(rect.width, rect.height);
    for (int y = 0; y < out.Height(); ++y) {
        for (int x = 0; x < out.Width(); ++x) {
            out.At(x, y) = source.At(rect.x + x, rect.y + y);
            if (source.IsInverse(rect.x + x, rect.y + y)) out.SetInverse(x, y, true);
        }
    }
    return out;
}

void Paste(RgbaBuffer& target, const RgbaBuffer& source, int x, int y) {
    const PixelRect area =
        ClipRect({x, y, source.Width(), source.Height()}, target.Width(), target.Height());
    for (int ty = area.y; ty < area.y + area.height; ++ty) {
        for (int tx = area.x; tx < area.x + area.width; ++tx) {
            target.At(tx, ty) = source.At(tx - x, ty - y);
            target.SetInverse(tx, ty, source.IsInverse(tx - x, ty - y));
        }
    }
}

}  // namespace iw
