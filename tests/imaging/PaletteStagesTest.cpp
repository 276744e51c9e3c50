// The palette builder's stages on their own: merging, nearest-entry search and dithering,
// on hand-made palettes and images and against plain loop-by-loop versions of the rules.

#include <gtest/gtest.h>

#include <vector>

#include "SyntheticImages.h"
#include "imaging/ColorMapping.h"
#include "imaging/NearestPaletteEntry.h"
#include "imaging/PaletteDither.h"
#include "imaging/PaletteMerging.h"

namespace iw {
namespace {

// The merging rules written out loop by loop, without the block skipping. The inner loop
// starts at j = 0 on purpose: each entry first meets itself.
int ReferenceMerge(std::vector<PackedColor>& p, int last) {
    for (int t = 3;; t += 3) {
        const int outer = last - 1;
        for (int i = 0; i <= outer; ++i) {
            const int inner = last;
            for (int j = 0; j <= inner; ++j) {
                const PackedColor a = p[static_cast<std::size_t>(i)];
                const PackedColor b = p[static_cast<std::size_t>(j)];
                if (ColorDistance(a, b) >= t) continue;
                p[static_cast<std::size_t>(i)] =
                    PackColor((RedOf(a) + RedOf(b)) / 2, (GreenOf(a) + GreenOf(b)) / 2,
                              (BlueOf(a) + BlueOf(b)) / 2);
                for (int k = j; k < last; ++k)  // the last slot keeps its value
                    p[static_cast<std::size_t>(k)] = p[static_cast<std::size_t>(k + 1)];
                if (--last == 253) return last;
            }
        }
    }
}

TEST(MergePaletteColors, MatchesTheLoopByLoopRulesOnCrowdedPalettes) {
    test::Lcg random{77};
    for (int round = 0; round < 12; ++round) {
        const int count = 255 + static_cast<int>(random.Next() % 3000);
        const std::uint32_t spread = round % 3 == 0 ? 256 : (round % 3 == 1 ? 64 : 16);
        std::vector<PackedColor> palette;
        for (int k = 0; k < count; ++k) {
            palette.push_back(PackColor(static_cast<int>(random.Next() % spread),
                                        static_cast<int>(random.Next() % spread),
                                        static_cast<int>(random.Next() % spread)));
        }
        std::vector<PackedColor> expected = palette;
        const int expectedLast = ReferenceMerge(expected, count - 1);
        EXPECT_EQ(MergePaletteColors(palette, count - 1), expectedLast);
        EXPECT_EQ(palette, expected) << "round " << round;
    }
}

TEST(NearestPaletteEntry, MatchesAPlainScanWithTheLowestIndexWinningTies) {
    test::Lcg random{5};
    for (int round = 0; round < 40; ++round) {
        const int last = static_cast<int>(random.Next() % 256);
        std::vector<PackedColor> palette;
        for (int k = 0; k <= last; ++k) {  // few levels, so that ties are common
            palette.push_back(PackColor(static_cast<int>(random.Next() % 4) * 85,
                                        static_cast<int>(random.Next() % 4) * 85,
                                        static_cast<int>(random.Next() % 4) * 85));
        }
        palette.resize(256, 0);  // entries past `last` take no part
        const NearestPaletteEntry nearest(palette, last);
        for (int probe = 0; probe < 200; ++probe) {
            const auto c = static_cast<PackedColor>(random.Next() & 0xFFFFFF);
            int best = 0;
            for (int k = 1; k <= last; ++k) {
                if (ColorDistance(palette[static_cast<std::size_t>(k)], c) <
                    ColorDistance(palette[static_cast<std::size_t>(best)], c))
                    best = k;
            }
            ASSERT_EQ(nearest.Find(RedOf(c), GreenOf(c), BlueOf(c)), best);
        }
    }
    EXPECT_EQ(NearestPaletteEntry({}, -1).Find(5, 5, 0), -1);
}

using Colors = std::vector<PackedColor>;

Colors Dithered(int width, int height, const Colors& palette, Colors image) {
    DitherToPalette(image, width, height, palette, static_cast<int>(palette.size()) - 1);
    return image;
}

TEST(DitherToPalette, FollowsHandWorkedCases) {
    const Colors bw = {0, 0xFFFFFF};
    // (0,0) black, error +100: (1,0) = 100 + 43.75 -> 144, (0,1) = 100 + 31.25 -> 131.
    // (0,1) white, error -124: (1,1) = 100 - 54.25 -> 46. (1,0) white, error -111:
    // (1,1) = 46 - 34.6875 -> 11: black. Only 7/16 right and 5/16 below take effect.
    EXPECT_EQ(Dithered(2, 2, bw, Colors(4, PackColor(100, 100, 100))),
              (Colors{0, 0xFFFFFF, 0xFFFFFF, 0}));
    // Error 8, 7/16 of it 3.5: 101 + 3.5 = 104.5 -> 104 ties between 99 and 109 and takes
    // the lower index; 102 + 3.5 = 105.5 -> 106 goes to 109.
    const Colors reds = {PackColor(42, 0, 0), PackColor(99, 0, 0), PackColor(109, 0, 0)};
    EXPECT_EQ(Dithered(2, 1, reds, {PackColor(50, 0, 0), PackColor(101, 0, 0)})[1], reds[1]);
    EXPECT_EQ(Dithered(2, 1, reds, {PackColor(50, 0, 0), PackColor(102, 0, 0)})[1], reds[2]);
    // A marker keeps its value and passes no error.
    const PackedColor grey = PackColor(150, 150, 150);
    EXPECT_EQ(Dithered(2, 1, bw, {TransparentColor, grey}), (Colors{TransparentColor, 0xFFFFFF}));
    EXPECT_EQ(Dithered(1, 2, bw, {InverseColor, grey}), (Colors{InverseColor, 0xFFFFFF}));
    // 250 + 43.75 is held at 255 and leaves no error, so 120 stays black; without the
    // clamp 39 x 7/16 would turn it red.
    const Colors blackRed = {0, PackColor(255, 0, 0)};
    EXPECT_EQ(Dithered(3, 1, blackRed,
                       {PackColor(100, 0, 0), PackColor(250, 0, 0), PackColor(120, 0, 0)}),
              (Colors{0, blackRed[1], 0}));
}

}  // namespace
}  // namespace iw
