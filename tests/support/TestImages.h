#pragma once
// Images for the tests: an image of given sides and depth filled by a rule, one-image sets,
// and a painting that every depth holds exactly.

#include <functional>

#include "document/model/IconSet.h"
#include "imaging/StandardColors.h"

namespace iw::test {

using PixelRule = std::function<PackedColor(int x, int y)>;

// width x height at `bits`; with a rule every pixel is fill(x, y) with `alpha`, without one
// the planes stay untouched (zero).
inline IconImage MakeImage(int width, int height, int bits, const PixelRule& fill = {},
                           int alpha = 255) {
    IconImage image;
    image.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
    image.info.bitCount = static_cast<std::int16_t>(bits);
    for (int y = 0; fill && y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.Color(x, y) = fill(x, y);
            image.Alpha(x, y) = alpha;
        }
    }
    return image;
}

inline IconSet SetOf(IconImage image) {
    IconSet set;
    set.InsertIcon(0, std::move(image));
    return set;
}

inline IconSet SolidSet(int side, int bits, PackedColor color) {
    return SetOf(MakeImage(side, side, bits, [color](int, int) { return color; }));
}

// Every pixel its own colour: (x, y, 50).
inline PackedColor PatternColor(int x, int y) {
    return PackColor(x, y, 50);
}
inline IconSet PatternSet(int side, int bits) {
    return SetOf(MakeImage(side, side, bits, PatternColor));
}

// Colours the image's depth holds exactly (at 8 bits at most 200 of them), transparent
// pixels, inverting pixels below 32 bits and, at 32 bits, alpha that varies.
inline void PaintExact(IconImage& image) {
    const int bits = image.info.bitCount;
    for (int y = 0; y < image.info.Height(); ++y) {
        for (int x = 0; x < image.info.Width(); ++x) {
            PackedColor c = bits == 1 ? kMonoColors[static_cast<std::size_t>((x / 3 + y) % 2)]
                            : bits == 4
                                ? kStandard16Colors[static_cast<std::size_t>((x + 2 * y) % 16)]
                            : bits == 8 ? PackColor((x + 3 * y) % 200, 60, 9)
                                        : PackColor(x * 3, y * 5, (x ^ y) & 0xFF);
            if ((x + y) % 11 == 0) c = TransparentColor;
            if ((x + y) % 13 == 5 && bits != 32) c = InverseColor;
            image.Color(x, y) = c;
            if (bits == 32) image.Alpha(x, y) = c == TransparentColor ? 0 : 1 + (x * 31 + y) % 255;
        }
    }
}

// Both planes equal over the image's own extent, read without changing either image.
inline bool SamePixels(const IconImage& a, const IconImage& b) {
    for (int y = 0; y < a.info.Height(); ++y) {
        for (int x = 0; x < a.info.Width(); ++x) {
            if (a.Color(x, y) != b.Color(x, y) || a.Alpha(x, y) != b.Alpha(x, y)) return false;
        }
    }
    return true;
}

}  // namespace iw::test
