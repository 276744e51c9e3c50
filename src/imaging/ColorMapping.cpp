#include "imaging/ColorMapping.h"

#include <array>
#include <cstdint>

#include "imaging/Rounding.h"

namespace iw {

namespace {

// Two channel levels merged into one: their mean (halves to even), levelled again.
int MergedLevel(int a, int b) {
    return Quantize16Channel(RoundHalfEven((a + b) / 2.0));
}

bool InSilverBand(int channel) {
    return channel >= 129 && channel <= 223;
}

// The mapping once the silver rule is out of the way: it depends only on the three
// channel levels.
PackedColor MapLevels(int r, int g, int b) {
    // One channel at each of 0, 128 and 255: the two lit channels are merged. Each test
    // sees the values the one before it left. The mean of 128 and 255 is 191.5, which
    // rounds to 192, so the merged pair always ends at 255.
    if (r + g + b == 383) {
        if (r == 0) {
            const int v = MergedLevel(g, b);
            g = v;
            b = v;
        }
        if (g == 0) {
            const int v = MergedLevel(b, r);
            b = v;
            r = v;
        }
        if (b == 0) {
            const int v = MergedLevel(g, r);
            g = v;
            r = v;
        }
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

// Every pixel of a 4-bit image goes through the mapping after each change, so the 27
// level combinations are worked out once.
struct LevelTables {
    std::array<std::uint8_t, 256> levelOf{};  // 0, 1, 2 for 0, 128, 255
    std::array<PackedColor, 27> mapped{};
    LevelTables() {
        const int levels[3] = {0, 128, 255};
        for (int c = 0; c < 256; ++c) {
            const int q = Quantize16Channel(c);
            levelOf[static_cast<std::size_t>(c)] = static_cast<std::uint8_t>(q == 0     ? 0
                                                                             : q == 128 ? 1
                                                                                        : 2);
        }
        for (int r = 0; r < 3; ++r) {
            for (int g = 0; g < 3; ++g) {
                for (int b = 0; b < 3; ++b) {
                    mapped[static_cast<std::size_t>(r * 9 + g * 3 + b)] =
                        MapLevels(levels[r], levels[g], levels[b]);
                }
            }
        }
    }
};

const LevelTables& Tables() {
    static const LevelTables tables;
    return tables;
}

}  // namespace

PackedColor ConvertTo16Color(PackedColor color) {
    if (IsMarker(color)) return color;
    const int red = ChannelRed(color);
    const int green = ChannelGreen(color);
    const int blue = ChannelBlue(color);

    // Pale, unsaturated colours are silver whatever their levels say.
    if (InSilverBand(red) && InSilverBand(green) && InSilverBand(blue)) {
        return PackColor(192, 192, 192);
    }
    const LevelTables& t = Tables();
    return t.mapped[static_cast<std::size_t>(t.levelOf[static_cast<std::size_t>(red)] * 9 +
                                             t.levelOf[static_cast<std::size_t>(green)] * 3 +
                                             t.levelOf[static_cast<std::size_t>(blue)])];
}

PackedColor ConvertToMonoColor(PackedColor color) {
    if (IsMarker(color)) return color;
    const int sum = ChannelRed(color) + ChannelGreen(color) + ChannelBlue(color);
    const int mean = RoundHalfEven(sum / 3.0);
    return mean >= 128 ? PackColor(255, 255, 255) : PackColor(0, 0, 0);
}

}  // namespace iw
