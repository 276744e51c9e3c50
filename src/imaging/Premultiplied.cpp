#include "imaging/Premultiplied.h"

#include <algorithm>

#include "imaging/Rounding.h"

namespace iw {

std::uint8_t UnitToByte(float unit) {
    return static_cast<std::uint8_t>(RoundHalfEven(std::clamp(unit, 0.0f, 1.0f) * 255.0));
}

std::vector<float> PremultiplyPixels(const RgbaBuffer& pixels) {
    std::vector<float> out(pixels.Pixels().size() * 4);
    float* v = out.data();
    for (int y = 0; y < pixels.Height(); ++y) {
        for (int x = 0; x < pixels.Width(); ++x, v += 4) {
            if (pixels.IsInverse(x, y)) continue;
            const Rgba p = pixels.At(x, y);
            const float alpha = p.a / 255.0f;
            v[0] = p.r / 255.0f * alpha;
            v[1] = p.g / 255.0f * alpha;
            v[2] = p.b / 255.0f * alpha;
            v[3] = alpha;
        }
    }
    return out;
}

Rgba UnpremultiplyPixel(const float* rgba) {
    const float alpha = rgba[3];
    const std::uint8_t a = UnitToByte(alpha);
    if (a == 0) return {};
    return {UnitToByte(rgba[0] / alpha), UnitToByte(rgba[1] / alpha), UnitToByte(rgba[2] / alpha),
            a};
}

}  // namespace iw
