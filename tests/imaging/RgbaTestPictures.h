#pragma once
// Small RGBA pictures for the tests of the image operations and the resampler.

#include <functional>

#include "imaging/RgbaBuffer.h"

namespace iw::test {

inline RgbaBuffer MakeBuffer(int width, int height, const std::function<Rgba(int, int)>& pixel) {
    RgbaBuffer buffer(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            buffer.At(x, y) = pixel(x, y);
    }
    return buffer;
}

// Every pixel different: colour from the position, alpha varying too.
inline RgbaBuffer Distinct(int width, int height) {
    return MakeBuffer(width, height, [](int x, int y) {
        return Rgba{static_cast<std::uint8_t>(x * 17), static_cast<std::uint8_t>(y * 29),
                    static_cast<std::uint8_t>(x * 7 + y * 3),
                    static_cast<std::uint8_t>(100 + x + 10 * y)};
    });
}

// An opaque square of `color` at [from, to) on both axes, on (0, 0, 0, 0).
inline RgbaBuffer SquareOnTransparent(int side, int from, int to, Rgba color) {
    return MakeBuffer(side, side, [=](int x, int y) {
        return x >= from && x < to && y >= from && y < to ? color : Rgba{};
    });
}

}  // namespace iw::test
