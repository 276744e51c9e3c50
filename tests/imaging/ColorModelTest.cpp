// Hue, saturation and value against the textbook corners; the round trip over a lattice of
// the cube; long and hex text both ways, with the input a user might type by mistake.
#include "imaging/ColorModel.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace iw {
namespace {

TEST(ColorModel, HsvOfThePrimariesAndGreys) {
    struct Case {
        PackedColor color;
        double hue, saturation, value;
    };
    const Case cases[] = {
        {PackColor(255, 0, 0), 0, 1, 1},
        {PackColor(255, 255, 0), 60, 1, 1},
        {PackColor(0, 255, 0), 120, 1, 1},
        {PackColor(0, 255, 255), 180, 1, 1},
        {PackColor(0, 0, 255), 240, 1, 1},
        {PackColor(255, 0, 255), 300, 1, 1},
        {PackColor(255, 0, 1), 359.76, 1, 1},
        {PackColor(0, 0, 0), 0, 0, 0},
        {PackColor(128, 128, 128), 0, 0, 128 / 255.0},
        {PackColor(255, 128, 0), 30.12, 1, 1},
    };
    for (const Case& c : cases) {
        const Hsv hsv = RgbToHsv(c.color);
        EXPECT_NEAR(hsv.hue, c.hue, 0.01) << c.color;
        EXPECT_NEAR(hsv.saturation, c.saturation, 1e-9) << c.color;
        EXPECT_NEAR(hsv.value, c.value, 1e-9) << c.color;
    }
    // Out-of-range parts are brought into range rather than read past a table.
    EXPECT_EQ(HsvToRgb({360, 1, 1}), PackColor(255, 0, 0));
    EXPECT_EQ(HsvToRgb({-120, 1, 1}), PackColor(0, 0, 255));
    EXPECT_EQ(HsvToRgb({45, 7, -3}), 0);
}

TEST(ColorModel, EveryColourOfALatticeComesBackFromHsv) {
    for (int r = 0; r < 256; r += 15)
        for (int g = 0; g < 256; g += 17)
            for (int b = 0; b < 256; b += 5) {
                const PackedColor color = PackColor(r, g, b);
                ASSERT_EQ(HsvToRgb(RgbToHsv(color)), color) << r << "," << g << "," << b;
            }
}

TEST(ColorModel, LongAndHexTextBothWays) {
    const PackedColor orange = PackColor(255, 128, 0);
    EXPECT_EQ(LongText(orange), "33023");  // 255 + 128 * 256
    EXPECT_EQ(LongText(PackColor(255, 255, 255)), "16777215");
    EXPECT_EQ(HexText(orange), "#FF8000");
    EXPECT_EQ(HexText(PackColor(1, 2, 171)), "#0102AB");
    for (const PackedColor c : {0, orange, PackColor(1, 2, 171), 0xFFFFFF}) {
        EXPECT_EQ(ParseLongText(LongText(c)), c);
        EXPECT_EQ(ParseHexText(HexText(c)), c);
    }
    EXPECT_EQ(ParseLongText(" 65536 "), PackColor(0, 0, 1));
    EXPECT_EQ(ParseHexText("ff8000"), orange);
    EXPECT_EQ(ParseHexText("#f80"), PackColor(255, 136, 0));
    for (const char* bad : {"", "16777216", "-1", "12a", "999999999999", "1.5"})
        EXPECT_FALSE(ParseLongText(bad)) << bad;
    for (const char* bad : {"", "#", "#12345", "#1234567", "#GG0000", "##FF0000", "0xFF00"})
        EXPECT_FALSE(ParseHexText(bad)) << bad;
}

}  // namespace
}  // namespace iw
