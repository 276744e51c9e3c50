// The 16-colour and monochrome mappings over the whole 24-bit cube, against references
// written here from the rules: a hand-made table of the 27 level combinations and the
// silver band for the sixteen colours, the channel sum for black and white.

#include "imaging/ColorMapping.h"

#include <gtest/gtest.h>

#include <array>

#include "imaging/StandardColors.h"

namespace iw {
namespace {

// Level of one channel by breakpoints: up to 80 -> 0, up to 191 -> 128, above -> 255.
int ReferenceLevelIndex(int channel) {
    constexpr std::array<int, 2> kUpperBounds = {80, 191};
    int index = 0;
    while (index < 2 && channel > kUpperBounds[static_cast<std::size_t>(index)])
        ++index;
    return index;  // 0, 1, 2 for the levels 0, 128, 255
}

struct LevelRow {
    int in[3];
    int out[3];
};

// Every combination of the three levels (red, green, blue) and the colour it ends as.
// Written from the rules: a 0/128/255 mix lights both lit channels fully; two 255s and a
// 128 drop the 128; two 128s and a 255 give grey; anything without both 128 and 255 stays.
constexpr LevelRow kLevelTable[27] = {
    {{0, 0, 0}, {0, 0, 0}},
    {{0, 0, 128}, {0, 0, 128}},
    {{0, 0, 255}, {0, 0, 255}},
    {{0, 128, 0}, {0, 128, 0}},
    {{0, 128, 128}, {0, 128, 128}},
    {{0, 128, 255}, {0, 255, 255}},
    {{0, 255, 0}, {0, 255, 0}},
    {{0, 255, 128}, {0, 255, 255}},
    {{0, 255, 255}, {0, 255, 255}},
    {{128, 0, 0}, {128, 0, 0}},
    {{128, 0, 128}, {128, 0, 128}},
    {{128, 0, 255}, {255, 0, 255}},
    {{128, 128, 0}, {128, 128, 0}},
    {{128, 128, 128}, {128, 128, 128}},
    {{128, 128, 255}, {128, 128, 128}},
    {{128, 255, 0}, {255, 255, 0}},
    {{128, 255, 128}, {128, 128, 128}},
    {{128, 255, 255}, {0, 255, 255}},
    {{255, 0, 0}, {255, 0, 0}},
    {{255, 0, 128}, {255, 0, 255}},
    {{255, 0, 255}, {255, 0, 255}},
    {{255, 128, 0}, {255, 255, 0}},
    {{255, 128, 128}, {128, 128, 128}},
    {{255, 128, 255}, {255, 0, 255}},
    {{255, 255, 0}, {255, 255, 0}},
    {{255, 255, 128}, {255, 255, 0}},
    {{255, 255, 255}, {255, 255, 255}},
};

PackedColor Reference16(int red, int green, int blue) {
    auto inBand = [](int c) { return c >= 129 && c <= 223; };
    if (inBand(red) && inBand(green) && inBand(blue)) return PackColor(192, 192, 192);
    const LevelRow& row = kLevelTable[ReferenceLevelIndex(red) * 9 +
                                      ReferenceLevelIndex(green) * 3 + ReferenceLevelIndex(blue)];
    return PackColor(row.out[0], row.out[1], row.out[2]);
}

TEST(Quantize16Channel, SplitsTheChannelAt81And192) {
    EXPECT_EQ(Quantize16Channel(0), 0);
    EXPECT_EQ(Quantize16Channel(80), 0);
    EXPECT_EQ(Quantize16Channel(81), 128);
    EXPECT_EQ(Quantize16Channel(191), 128);
    EXPECT_EQ(Quantize16Channel(192), 255);
    EXPECT_EQ(Quantize16Channel(255), 255);
    const PackedColor c = PackColor(80, 81, 192);
    EXPECT_EQ(Quantize16Red(c), 0);
    EXPECT_EQ(Quantize16Green(c), 128);
    EXPECT_EQ(Quantize16Blue(c), 255);
}

TEST(ConvertTo16Color, FollowsTheExamples) {
    EXPECT_EQ(ConvertTo16Color(PackColor(200, 200, 200)), PackColor(192, 192, 192));
    EXPECT_EQ(ConvertTo16Color(PackColor(100, 200, 30)), PackColor(255, 255, 0));
    EXPECT_EQ(ConvertTo16Color(PackColor(255, 128, 128)), PackColor(128, 128, 128));
    EXPECT_EQ(ConvertTo16Color(PackColor(130, 130, 224)), PackColor(128, 128, 128));
    EXPECT_EQ(ConvertTo16Color(PackColor(0, 128, 255)), PackColor(0, 255, 255));
}

TEST(ConvertTo16Color, KeepsTheDeliberateAsymmetryOfMixedLevels) {
    // Two 255s and a 128 lose the 128 ...
    EXPECT_EQ(ConvertTo16Color(PackColor(128, 255, 255)), PackColor(0, 255, 255));
    EXPECT_EQ(ConvertTo16Color(PackColor(255, 128, 255)), PackColor(255, 0, 255));
    EXPECT_EQ(ConvertTo16Color(PackColor(255, 255, 128)), PackColor(255, 255, 0));
    // ... while two 128s and a 255 fall to grey.
    EXPECT_EQ(ConvertTo16Color(PackColor(128, 255, 128)), PackColor(128, 128, 128));
    EXPECT_EQ(ConvertTo16Color(PackColor(128, 128, 255)), PackColor(128, 128, 128));
}

TEST(ConvertTo16Color, SilverNeedsEveryChannelInsideTheBand) {
    EXPECT_EQ(ConvertTo16Color(PackColor(129, 129, 129)), PackColor(192, 192, 192));
    EXPECT_EQ(ConvertTo16Color(PackColor(223, 223, 223)), PackColor(192, 192, 192));
    EXPECT_EQ(ConvertTo16Color(PackColor(129, 223, 150)), PackColor(192, 192, 192));
    EXPECT_EQ(ConvertTo16Color(PackColor(128, 200, 200)), PackColor(0, 255, 255));
    EXPECT_EQ(ConvertTo16Color(PackColor(224, 224, 224)), PackColor(255, 255, 255));
}

TEST(ConvertTo16Color, MatchesTheReferenceOverTheWholeCube) {
    int mismatches = 0;
    for (int r = 0; r < 256; ++r) {
        for (int g = 0; g < 256; ++g) {
            for (int b = 0; b < 256; ++b) {
                const PackedColor got = ConvertTo16Color(PackColor(r, g, b));
                if (got != Reference16(r, g, b) || !IsStandard16Color(got)) {
                    if (++mismatches <= 5) {
                        ADD_FAILURE()
                            << "(" << r << ", " << g << ", " << b << ") gave 0x" << std::hex << got;
                    }
                }
            }
        }
    }
    EXPECT_EQ(mismatches, 0);
}

TEST(ConvertTo16Color, ReachesEachOfTheSixteenColours) {
    for (PackedColor standard : kStandard16Colors) {
        EXPECT_EQ(ConvertTo16Color(standard), standard) << std::hex << standard;
    }
}

TEST(ConvertToMonoColor, TurnsWhiteAtAChannelSumOf383) {
    EXPECT_EQ(ConvertToMonoColor(PackColor(127, 128, 127)), 0);
    EXPECT_EQ(ConvertToMonoColor(PackColor(128, 128, 127)), 0xFFFFFF);
    EXPECT_EQ(ConvertToMonoColor(PackColor(255, 127, 0)), 0);
    EXPECT_EQ(ConvertToMonoColor(PackColor(255, 128, 0)), 0xFFFFFF);

    int mismatches = 0;
    for (int r = 0; r < 256; ++r) {
        for (int g = 0; g < 256; ++g) {
            for (int b = 0; b < 256; ++b) {
                const PackedColor expected = r + g + b >= 383 ? 0xFFFFFF : 0;
                if (ConvertToMonoColor(PackColor(r, g, b)) != expected) ++mismatches;
            }
        }
    }
    EXPECT_EQ(mismatches, 0);
}

TEST(ColorMappings, HandMarkersBackUnchanged) {
    EXPECT_EQ(ConvertTo16Color(TransparentColor), TransparentColor);
    EXPECT_EQ(ConvertTo16Color(InverseColor), InverseColor);
    EXPECT_EQ(ConvertToMonoColor(TransparentColor), TransparentColor);
    EXPECT_EQ(ConvertToMonoColor(InverseColor), InverseColor);
}

TEST(ColorDistance, AddsTheAbsoluteChannelDifferences) {
    EXPECT_EQ(ColorDistance(0, 0xFFFFFF), 765);
    EXPECT_EQ(ColorDistance(PackColor(10, 20, 30), PackColor(13, 15, 30)), 8);
    EXPECT_EQ(ColorDistance(PackColor(13, 15, 30), PackColor(10, 20, 30)), 8);
    EXPECT_EQ(ColorDistance(PackColor(200, 0, 100), PackColor(0, 200, 0)), 500);
    EXPECT_EQ(ColorDistance(PackColor(7, 7, 7), PackColor(7, 7, 7)), 0);
}

}  // namespace
}  // namespace iw
