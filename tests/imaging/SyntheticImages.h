#pragma once
// Deterministic test pictures for the imaging tests and benchmarks (header only, so the
// benchmarks can use it too).

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "document/model/IconImage.h"

namespace iw::test {

// A small fixed pseudo-random sequence (LCG), the same on every platform.
class Lcg {
  public:
    explicit Lcg(std::uint32_t seed) : state_(seed) {}
    std::uint32_t Next() {
        state_ = state_ * 1664525u + 1013904223u;
        return state_ >> 8;
    }
    // -amplitude .. amplitude
    int Spread(int amplitude) {
        return static_cast<int>(Next() % static_cast<std::uint32_t>(2 * amplitude + 1)) - amplitude;
    }

  private:
    std::uint32_t state_;
};

// Makes `image` width x height with the given bit count and clears its planes.
inline void ShapeImage(IconImage& image, int width, int height, int bitCount) {
    image.ClearPlanes();
    image.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
    image.info.bitCount = static_cast<std::int16_t>(bitCount);
}

// Smooth shading in three overlapping waves plus fine grain, like a photograph: tens of
// thousands of colours at 256 x 256. Channels stay within low..high. Alpha is 255.
inline void FillPhotoLike(IconImage& image, std::uint32_t seed, int grain = 6, int low = 0,
                          int high = 255) {
    Lcg random(seed);
    const int width = image.info.Width();
    const int height = image.info.Height();
    const double mid = (low + high) / 2.0;
    const double swing = (high - low) / 2.0 - grain;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = static_cast<double>(x) / width;
            const double v = static_cast<double>(y) / height;
            const double waves[3] = {std::sin(5.1 * u + 2.3 * v), std::cos(3.7 * v - 1.9 * u + 0.5),
                                     std::sin(4.3 * (u + v) + 1.1 * u * v)};
            int channel[3];
            for (int k = 0; k < 3; ++k) {
                const int value = static_cast<int>(mid + swing * waves[k]) + random.Spread(grain);
                channel[k] = std::clamp(value, low, high);
            }
            image.Color(x, y) = PackColor(channel[0], channel[1], channel[2]);
            image.Alpha(x, y) = 255;
        }
    }
}

}  // namespace iw::test
