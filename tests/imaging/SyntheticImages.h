#pragma once
// Deterministic test pictures for the imaging tests and benchmarks (header only, so the
// benchmarks can use it too).

#include <cmath>
#include <cstdint>

#include "document/model/IconImage.h"

namespace iw::test {

// A small fixed pseudo-random sequence (LCG), the same on every platform.
struct Lcg {
    std::uint32_t state;
    std::uint32_t Next() {
        state = state * 1664525u + 1013904223u;
        return state >> 8;
    }
};

// Makes `image` width x height with the given bit count and clears its planes.
inline void ShapeImage(IconImage& image, int width, int height, int bitCount) {
    image.ClearPlanes();
    image.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
    image.info.bitCount = static_cast<std::int16_t>(bitCount);
}

// Smooth shading in three waves plus a grain of -6..6, like a photograph: tens of
// thousands of colours at 256 x 256. Alpha is 255.
inline void FillPhotoLike(IconImage& image, std::uint32_t seed) {
    Lcg random{seed};
    const int width = image.info.Width();
    const int height = image.info.Height();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = static_cast<double>(x) / width;
            const double v = static_cast<double>(y) / height;
            const double waves[3] = {std::sin(5.1 * u + 2.3 * v), std::cos(3.7 * v - 1.9 * u + 0.5),
                                     std::sin(4.3 * (u + v) + 1.1 * u * v)};
            int channel[3];
            for (int k = 0; k < 3; ++k) {
                const int grain = static_cast<int>(random.Next() % 13) - 6;
                channel[k] = static_cast<int>(127.5 + 121.5 * waves[k]) + grain;
            }
            image.Color(x, y) = PackColor(channel[0], channel[1], channel[2]);
            image.Alpha(x, y) = 255;
        }
    }
}

}  // namespace iw::test
