#pragma once
// Image-like test data for the compression tests and benchmarks: 32-bpp icon pictures
// laid out as PNG image data (a filter byte before each row, rows filtered the way PNG
// writers do), plus plain random bytes.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <span>
#include <string_view>
#include <vector>

#include "codec/png/PngFilterStrategy.h"

namespace iw::test {

using RgbaBytes = std::vector<std::uint8_t>;  // width * height * 4, rows top-down

// Rows filtered the way PNG writers do (per row the filter with the smallest sum).
inline std::vector<std::uint8_t> PngFiltered(const RgbaBytes& pixels, int width, int height) {
    return png::FilterImage(pixels, static_cast<std::size_t>(height),
                            static_cast<std::size_t>(width) * 4, 4,
                            png::FilterStrategy::MinimumSum);
}

// Soft gradients behind anti-aliased discs and a ring with a drop of transparency: the
// typical large application icon.
inline RgbaBytes GradientIcon(int size, unsigned seed = 1) {
    std::mt19937 rng(seed);
    RgbaBytes px(static_cast<std::size_t>(size) * size * 4);
    const double r1 = size * 0.42, r2 = size * 0.18;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            std::uint8_t* p = &px[(static_cast<std::size_t>(y) * size + x) * 4];
            const double dx = x - size / 2.0 + 0.5, dy = y - size / 2.0 + 0.5;
            const double d = std::sqrt(dx * dx + dy * dy);
            const double cover = std::clamp(r1 - d + 0.5, 0.0, 1.0);
            const double inner = std::clamp(r2 - std::abs(d - size * 0.28) + 0.5, 0.0, 1.0);
            p[0] = static_cast<std::uint8_t>(40 + 180.0 * x / size * (1 - inner) + 255 * inner);
            p[1] = static_cast<std::uint8_t>(90 + 120.0 * y / size * (1 - inner) + 200 * inner);
            p[2] = static_cast<std::uint8_t>(200 - 100.0 * (x + y) / (2 * size) + 30 * inner);
            p[3] = static_cast<std::uint8_t>(std::lround(255 * cover));
            if (rng() % 64 == 0) p[2] = static_cast<std::uint8_t>(p[2] + 1);  // dithering noise
        }
    }
    return px;
}

// Pixel art scaled up: a 16 x 16 sprite of a few palette colours, each sprite pixel a
// square block, on a transparent background. Long runs, short-distance repeats.
inline RgbaBytes PixelArt(int size, unsigned seed = 2) {
    std::mt19937 rng(seed);
    const std::uint32_t palette[6] = {0x00000000u, 0xFF202020u, 0xFF3050E0u,
                                      0xFFF0C040u, 0xFFE04040u, 0xFFFFFFFFu};
    std::uint8_t sprite[16][16];
    for (auto& row : sprite) {
        for (auto& cell : row)
            cell = static_cast<std::uint8_t>(rng() % 3 == 0 ? 0 : rng() % 6);
    }
    RgbaBytes px(static_cast<std::size_t>(size) * size * 4);
    const int block = std::max(1, size / 16);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const std::uint32_t c = palette[sprite[(y / block) % 16][(x / block) % 16]];
            for (int k = 0; k < 4; ++k)
                px[(static_cast<std::size_t>(y) * size + x) * 4 + k] =
                    static_cast<std::uint8_t>(c >> (8 * k));
        }
    }
    return px;
}

// A photograph-like picture: smooth large-scale colour plus sensor noise, opaque.
inline RgbaBytes NoisyPhoto(int width, int height, unsigned seed = 3) {
    std::mt19937 rng(seed);
    std::normal_distribution<double> noise(0.0, 6.0);
    RgbaBytes px(static_cast<std::size_t>(width) * height * 4);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = &px[(static_cast<std::size_t>(y) * width + x) * 4];
            const double base[3] = {128 + 90 * std::sin(x * 0.031 + y * 0.012),
                                    120 + 80 * std::cos(y * 0.027),
                                    100 + 70 * std::sin((x + y) * 0.017)};
            for (int c = 0; c < 3; ++c)
                p[c] = static_cast<std::uint8_t>(std::clamp(base[c] + noise(rng), 0.0, 255.0));
            p[3] = 255;
        }
    }
    return px;
}

inline std::span<const std::uint8_t> AsBytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

inline std::vector<std::uint8_t> RandomBytes(std::size_t n, unsigned seed) {
    std::mt19937 rng(seed);
    std::vector<std::uint8_t> v(n);
    for (auto& b : v)
        b = static_cast<std::uint8_t>(rng());
    return v;
}

}  // namespace iw::test
