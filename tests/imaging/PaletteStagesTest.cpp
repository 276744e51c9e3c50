// The palette builder's stages on their own: merging, nearest-entry search and dithering,
// on hand-made palettes and images and against plain loop-by-loop versions of the rules.

#include <gtest/gtest.h>

#include <vector>

#include "SyntheticImages.h"
#include "imaging/ColorMapping.h"
#include "imaging/NearestPaletteEntry.h"
#include "imaging/PaletteDither.h"
#include "imaging/PaletteMerging.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

// The merging rules written out loop by loop, without the block skipping.
int ReferenceMerge(std::vector<PackedColor>& p, int last) {
    if (last <= 253) return last;
    for (int t = 3;; t += 3) {
        const int outer = last - 1;
        for (int i = 0; i <= outer; ++i) {
            const int inner = last;
            for (int j = 0; j <= inner; ++j) {
                const PackedColor a = p[static_cast<std::size_t>(i)];
                const PackedColor b = p[static_cast<std::size_t>(j)];
                if (ColorDistance(a, b) < t) {
                    p[static_cast<std::size_t>(i)] =
                        PackColor((RedOf(a) + RedOf(b)) / 2, (GreenOf(a) + GreenOf(b)) / 2,
                                  (BlueOf(a) + BlueOf(b)) / 2);
                    for (int k = j; k <= last - 1; ++k) {
                        p[static_cast<std::size_t>(k)] = p[static_cast<std::size_t>(k + 1)];
                    }
                    --last;
                    if (last == 253) return last;
                }
            }
        }
    }
}

int ReferenceNearest(const std::vector<PackedColor>& p, int last, PackedColor c) {
    int best = 222222222;
    int index = 0;
    for (int k = 0; k <= last; ++k) {
        const int d = ColorDistance(p[static_cast<std::size_t>(k)], c);
        if (d < best) {
            best = d;
            index = k;
        }
    }
    return index;
}

// 256 colours at least 30 apart from each other.
std::vector<PackedColor> FarApartColors(int count) {
    std::vector<PackedColor> colors;
    for (int k = 0; k < count; ++k) {
        colors.push_back(PackColor(10 + 30 * (k % 8), 10 + 30 * (k / 8 % 8), 10 + 30 * (k / 64)));
    }
    return colors;
}

TEST(MergePaletteColors, FirstMeetsItselfSoEntriesZeroAndTwoGoFirst) {
    // With no two entries closer than the threshold only the self-merges remove anything:
    // entry 0 meets itself and is replaced by entry 1; then entry 1 (the old 2) meets
    // itself and is replaced by the old 3, leaving 254 colours.
    std::vector<PackedColor> palette = FarApartColors(256);
    const std::vector<PackedColor> before = palette;
    EXPECT_EQ(MergePaletteColors(palette, 255), 253);
    EXPECT_EQ(palette[0], before[1]);
    for (int k = 1; k <= 253; ++k) {
        EXPECT_EQ(palette[static_cast<std::size_t>(k)], before[static_cast<std::size_t>(k + 2)])
            << k;
    }
    // The slots past the end keep what the moves left there.
    EXPECT_EQ(palette[254], before[255]);
    EXPECT_EQ(palette[255], before[255]);
}

TEST(MergePaletteColors, AveragesWithTruncatedHalves) {
    // Entry 0 first removes itself (the old entry 1 moves in), then the moved entry meets
    // its near twin at j = 1 and absorbs it.
    std::vector<PackedColor> palette = FarApartColors(257);
    palette[1] = PackColor(101, 51, 0);
    palette[2] = PackColor(100, 50, 1);  // 3 away: not closer than 3, removed by a self-merge
    palette[3] = PackColor(102, 51, 0);  // 1 away from palette[1]: merges at 3
    const int last = MergePaletteColors(palette, 256);
    EXPECT_EQ(last, 253);
    // (101 + 102) / 2 = 101, (51 + 51) / 2 = 51, 0.
    EXPECT_EQ(palette[0], PackColor(101, 51, 0));
}

TEST(MergePaletteColors, LeavesSmallPalettesAlone) {
    std::vector<PackedColor> palette = FarApartColors(254);
    const std::vector<PackedColor> before = palette;
    EXPECT_EQ(MergePaletteColors(palette, 253), 253);
    EXPECT_EQ(palette, before);
}

TEST(MergePaletteColors, MatchesTheLoopByLoopRulesOnCrowdedPalettes) {
    test::Lcg random(77);
    for (int round = 0; round < 12; ++round) {
        const int count = 255 + static_cast<int>(random.Next() % 3000);
        const int spread = round % 3 == 0 ? 256 : (round % 3 == 1 ? 64 : 16);
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

TEST(NearestPaletteEntry, TakesTheLeastDistanceAndTheLowestIndexOnATie) {
    const std::vector<PackedColor> palette = {PackColor(0, 0, 0), PackColor(10, 0, 0),
                                              PackColor(0, 10, 0), PackColor(5, 5, 0)};
    const NearestPaletteEntry nearest(palette, 3);
    EXPECT_EQ(nearest.Find(9, 0, 0), 1);
    EXPECT_EQ(nearest.Find(5, 0, 0), 0);  // 5 from entries 0, 1 and 3: the lowest wins
    EXPECT_EQ(nearest.Find(6, 6, 0), 3);
    EXPECT_EQ(nearest.Find(255, 255, 255), 1);  // 1 and 2 tie at 755
    // Entries past `last` take no part.
    EXPECT_EQ(NearestPaletteEntry(palette, 1).Find(5, 5, 0), 0);
    EXPECT_EQ(NearestPaletteEntry(palette, -1).Find(5, 5, 0), -1);
}

TEST(NearestPaletteEntry, MatchesAPlainScan) {
    test::Lcg random(5);
    for (int round = 0; round < 40; ++round) {
        const int last = static_cast<int>(random.Next() % 256);
        std::vector<PackedColor> palette;
        for (int k = 0; k <= last; ++k) {
            // Few levels, so that ties are common.
            palette.push_back(PackColor(static_cast<int>(random.Next() % 4) * 85,
                                        static_cast<int>(random.Next() % 4) * 85,
                                        static_cast<int>(random.Next() % 4) * 85));
        }
        const NearestPaletteEntry nearest(palette, last);
        for (int probe = 0; probe < 200; ++probe) {
            const PackedColor c = static_cast<PackedColor>(random.Next() & 0xFFFFFF);
            ASSERT_EQ(nearest.Find(RedOf(c), GreenOf(c), BlueOf(c)),
                      ReferenceNearest(palette, last, c));
        }
    }
}

TEST(DitherToPalette, PassesSevenSixteenthsRightAndFiveBelow) {
    // Four greys of 100 onto black and white, worked by hand:
    // (0,0): black, error +100 -> (1,0) = 100 + 43.75 = 144, (0,1) = 100 + 31.25 = 131.
    // (0,1): 131 is nearer white (372 against 393), error -124 -> (1,1) = 100 - 54.25 = 46.
    // (1,0): 144 -> white, error -111 -> (1,1) = 46 - 34.6875 = 11.
    // (1,1): 11 -> black.
    std::vector<PackedColor> image(4, PackColor(100, 100, 100));
    const std::vector<PackedColor> palette = {0x000000, 0xFFFFFF};
    DitherToPalette(image, 2, 2, palette, 1);
    EXPECT_EQ(image, (std::vector<PackedColor>{0x000000, 0xFFFFFF, 0xFFFFFF, 0x000000}));
}

TEST(DitherToPalette, RoundsSharesHalfToEven) {
    // Entry 0 leaves an error of 8 on red; 7/16 of it is 3.5. The next pixel's 101 becomes
    // 104.5 -> 104, which ties between 99 and 109 and takes the lower index. Rounding the
    // half up (105) would choose entry 2.
    const std::vector<PackedColor> palette = {PackColor(42, 0, 0), PackColor(99, 0, 0),
                                              PackColor(109, 0, 0)};
    std::vector<PackedColor> image = {PackColor(50, 0, 0), PackColor(101, 0, 0)};
    DitherToPalette(image, 2, 1, palette, 2);
    EXPECT_EQ(image[1], PackColor(99, 0, 0));
    // 102 + 3.5 = 105.5 -> 106: entry 2.
    image = {PackColor(50, 0, 0), PackColor(102, 0, 0)};
    DitherToPalette(image, 2, 1, palette, 2);
    EXPECT_EQ(image[1], PackColor(109, 0, 0));
}

TEST(DitherToPalette, MarkersKeepTheirValueAndPassNoError) {
    const std::vector<PackedColor> palette = {0x000000, 0xFFFFFF};
    // A light grey neighbour passes its error on: 200 -> white, error -55, and the grey of
    // 150 becomes 150 - 24.0625 -> 126: black.
    std::vector<PackedColor> plain = {PackColor(200, 200, 200), PackColor(150, 150, 150)};
    DitherToPalette(plain, 2, 1, palette, 1);
    EXPECT_EQ(plain, (std::vector<PackedColor>{0xFFFFFF, 0x000000}));
    // A marker in the same place passes nothing: 150 alone is white (315 against 450).
    std::vector<PackedColor> row = {TransparentColor, PackColor(150, 150, 150)};
    DitherToPalette(row, 2, 1, palette, 1);
    EXPECT_EQ(row, (std::vector<PackedColor>{TransparentColor, 0xFFFFFF}));
    std::vector<PackedColor> column = {InverseColor, PackColor(150, 150, 150)};
    DitherToPalette(column, 1, 2, palette, 1);
    EXPECT_EQ(column, (std::vector<PackedColor>{InverseColor, 0xFFFFFF}));
}

TEST(DitherToPalette, ClampsTheBufferToTheChannelRange) {
    // 100 -> black, error +100; 250 + 43.75 -> 294 is held at 255 and so leaves no error;
    // 120 then stays black (120 against 135). Without the clamp the middle pixel would pass
    // 39 x 7/16 on and turn the last one red.
    const std::vector<PackedColor> palette = {0x000000, PackColor(255, 0, 0)};
    std::vector<PackedColor> image = {PackColor(100, 0, 0), PackColor(250, 0, 0),
                                      PackColor(120, 0, 0)};
    DitherToPalette(image, 3, 1, palette, 1);
    EXPECT_EQ(image, (std::vector<PackedColor>{0x000000, PackColor(255, 0, 0), 0x000000}));
}

TEST(RoundHalfEvenFraction, AgreesWithTheFloatingPointForm) {
    for (int n = -5000; n <= 5000; ++n) {
        ASSERT_EQ(RoundHalfEven(n, 16), RoundHalfEven(n / 16.0)) << n;
        ASSERT_EQ(RoundHalfEven(n, 3), RoundHalfEven(n / 3.0)) << n;
        ASSERT_EQ(RoundHalfEven(n, 2), RoundHalfEven(n / 2.0)) << n;
    }
}

}  // namespace
}  // namespace iw
