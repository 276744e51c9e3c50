#pragma once
// The reductions that tie a colour to a lower depth: the sixteen standard colours and
// black-or-white, plus the city-block distance that the palette builder measures with.
//
// The marker values (TransparentColor, InverseColor) are not colours: both mappings hand
// them back unchanged, so a caller may pass a whole plane through them without losing
// its transparent and inverting pixels.

#include <array>
#include <cstdint>

#include "document/model/Colors.h"
#include "imaging/Rounding.h"

namespace iw {

// A channel's level among the sixteen colours: 255 from 192 up, 128 from 81 to 191,
// 0 up to 80.
constexpr int Quantize16Channel(int channel) {
    if (channel >= 192) return 255;
    if (channel >= 81) return 128;
    return 0;
}
constexpr int Quantize16Red(PackedColor c) {
    return Quantize16Channel(RedOf(c));
}
constexpr int Quantize16Green(PackedColor c) {
    return Quantize16Channel(GreenOf(c));
}
constexpr int Quantize16Blue(PackedColor c) {
    return Quantize16Channel(BlueOf(c));
}

namespace detail {

// Two channel levels merged into one: their mean (halves to even), levelled again.
constexpr int MergedLevel(int a, int b) {
    return Quantize16Channel(RoundHalfEven(a + b, 2));
}

// The 16-colour mapping once the silver rule is out of the way: it depends only on the
// three channel levels (0, 128 or 255).
constexpr PackedColor MapLevels(int r, int g, int b) {
    // One channel at each of 0, 128 and 255: the two lit channels are merged. Each test
    // sees the values the one before it left. The mean of 128 and 255 is 191.5, which
    // rounds to 192, so the merged pair always ends at 255.
    if (r + g + b == 383) {
        if (r == 0) g = b = MergedLevel(g, b);
        if (g == 0) b = r = MergedLevel(b, r);
        if (b == 0) g = r = MergedLevel(g, r);
    }
    // Mixes of 128 and 255 are folded, each test on the current values, in this order.
    // Deliberately asymmetric: two 255s and a 128 lose the 128; two 128s and a 255 fall
    // to grey.
    if (g == 255 && b == 255 && r == 128) r = 0;
    if (g == 128 && b == 128 && r == 255) r = 128;
    if (g == 128 && b == 255 && r == 255) g = 0;
    if (g == 255 && b == 128 && r == 128) g = 128;
    if (g == 255 && b == 128 && r == 255) b = 0;
    if (g == 128 && b == 255 && r == 128) b = 128;
    return PackColor(r, g, b);
}

// Every pixel of a 4-bit image goes through the mapping after each change, so the level
// of every channel value and the 27 level combinations are worked out at compile time.
inline constexpr std::array<std::uint8_t, 256> kLevelIndex = [] {
    std::array<std::uint8_t, 256> t{};
    for (int c = 0; c < 256; ++c) {
        const int q = Quantize16Channel(c);
        t[static_cast<std::size_t>(c)] = static_cast<std::uint8_t>(q == 0 ? 0 : q == 128 ? 1 : 2);
    }
    return t;
}();

inline constexpr std::array<PackedColor, 27> kMappedLevels = [] {
    constexpr int levels[3] = {0, 128, 255};
    std::array<PackedColor, 27> t{};
    for (int r = 0; r < 3; ++r) {
        for (int g = 0; g < 3; ++g) {
            for (int b = 0; b < 3; ++b) {
                t[static_cast<std::size_t>(r * 9 + g * 3 + b)] =
                    MapLevels(levels[r], levels[g], levels[b]);
            }
        }
    }
    return t;
}();

constexpr bool InSilverBand(int channel) {
    return channel >= 129 && channel <= 223;
}

}  // namespace detail

// One of the sixteen standard colours (see StandardColors.h).
constexpr PackedColor ConvertTo16Color(PackedColor color) {
    if (IsMarker(color)) return color;
    const int red = RedOf(color);
    const int green = GreenOf(color);
    const int blue = BlueOf(color);
    // Pale, unsaturated colours are silver whatever their levels say.
    if (detail::InSilverBand(red) && detail::InSilverBand(green) && detail::InSilverBand(blue)) {
        return PackColor(192, 192, 192);
    }
    return detail::kMappedLevels[static_cast<std::size_t>(
        detail::kLevelIndex[static_cast<std::size_t>(red)] * 9 +
        detail::kLevelIndex[static_cast<std::size_t>(green)] * 3 +
        detail::kLevelIndex[static_cast<std::size_t>(blue)])];
}

// Black (0x000000) or white (0xFFFFFF): white exactly when the mean of red, green and blue,
// rounded with halves to even, is at least 128 (red + green + blue >= 383).
constexpr PackedColor ConvertToMonoColor(PackedColor color) {
    if (IsMarker(color)) return color;
    const int sum = RedOf(color) + GreenOf(color) + BlueOf(color);
    return RoundHalfEven(sum, 3) >= 128 ? PackColor(255, 255, 255) : PackColor(0, 0, 0);
}

// |dR| + |dG| + |dB|, 0..765. No weighting of the channels.
constexpr int ColorDistance(PackedColor a, PackedColor b) {
    auto diff = [](int x, int y) { return x > y ? x - y : y - x; };
    return diff(RedOf(a), RedOf(b)) + diff(GreenOf(a), GreenOf(b)) + diff(BlueOf(a), BlueOf(b));
}

}  // namespace iw
