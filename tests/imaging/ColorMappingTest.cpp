// The 16-colour and monochrome mappings over the whole 24-bit cube, against references
// written here from the rules: counts of the channel levels and the silver band for the
// sixteen colours, the channel sum for black and white.

#include "imaging/ColorMapping.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "imaging/StandardColors.h"

namespace iw {
namespace {

PackedColor Reference16(int red, int green, int blue) {
    auto inBand = [](int c) { return c >= 129 && c <= 223; };
    if (inBand(red) && inBand(green) && inBand(blue)) return PackColor(192, 192, 192);
    int level[3];
    int channel[3] = {red, green, blue};
    for (int k = 0; k < 3; ++k)
        level[k] = channel[k] <= 80 ? 0 : (channel[k] <= 191 ? 128 : 255);
    const auto n0 = std::count(level, level + 3, 0);
    const auto n128 = std::count(level, level + 3, 128);
    const auto n255 = std::count(level, level + 3, 255);
    for (int& l : level) {
        if (n0 == 1 && n128 == 1 && n255 == 1 && l != 0) l = 255;  // both lit channels light fully
        if (n255 == 2 && n128 == 1 && l == 128) l = 0;             // two 255s lose the 128
        if (n128 == 2 && n255 == 1) l = 128;                       // two 128s fall to grey
    }
    return PackColor(level[0], level[1], level[2]);
}

TEST(ColorMappings, MatchTheReferencesOverTheWholeCube) {
    int mismatches = 0;
    for (int r = 0; r < 256; ++r) {
        for (int g = 0; g < 256; ++g) {
            for (int b = 0; b < 256; ++b) {
                const PackedColor c = PackColor(r, g, b);
                const PackedColor got = ConvertTo16Color(c);
                const PackedColor mono = r + g + b >= 383 ? 0xFFFFFF : 0;
                if (got != Reference16(r, g, b) || !IsStandard16Color(got) ||
                    ConvertToMonoColor(c) != mono) {
                    if (++mismatches <= 5) ADD_FAILURE() << r << ", " << g << ", " << b;
                }
            }
        }
    }
    EXPECT_EQ(mismatches, 0);
}

TEST(ColorMappings, HandMarkersBackAndMeasureByCityBlock) {
    for (const PackedColor marker : {TransparentColor, InverseColor}) {
        EXPECT_EQ(ConvertTo16Color(marker), marker);
        EXPECT_EQ(ConvertToMonoColor(marker), marker);
    }
    EXPECT_EQ(ColorDistance(0, 0xFFFFFF), 765);
    EXPECT_EQ(ColorDistance(PackColor(10, 20, 30), PackColor(13, 15, 30)), 8);
    EXPECT_EQ(ColorDistance(PackColor(13, 15, 30), PackColor(10, 20, 30)), 8);
}

}  // namespace
}  // namespace iw
