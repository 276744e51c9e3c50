// The 256-colour palette for 8-bit images, end to end: the exact palette, the coarsening
// steps, dithering of many-coloured pictures and the index rules.

#include "imaging/Palette256.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "SyntheticImages.h"
#include "imaging/ColorMapping.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

constexpr int kBlack = Palette256Result::kBlackEntry;
constexpr int kWhite = Palette256Result::kWhiteEntry;

// Fills the image column by column (x outer, y inner) with colors[0], colors[1], ...
// repeating the list when the image has more pixels.
void FillColumnByColumn(IconImage& image, const std::vector<PackedColor>& colors) {
    std::size_t next = 0;
    for (int x = 0; x < image.info.Width(); ++x) {
        for (int y = 0; y < image.info.Height(); ++y) {
            image.Color(x, y) = colors[next++ % colors.size()];
        }
    }
}

Palette256Result Build(const IconImage& image) {
    NullProgress progress;
    return CreatePalette256(image, 0, progress);
}

// Distinct colours on a grid: channel values first + step * (0, 1, 2 ...), red fastest.
std::vector<PackedColor> GridColors(int count, int first, int step, int perChannel) {
    std::vector<PackedColor> colors;
    for (int k = 0; k < count; ++k) {
        colors.push_back(PackColor(first + step * (k % perChannel),
                                   first + step * (k / perChannel % perChannel),
                                   first + step * (k / (perChannel * perChannel))));
    }
    return colors;
}

TEST(CreatePalette256, KeepsTwoHundredColoursExactlyWithMarkersAt254And255) {
    IconImage image;
    test::ShapeImage(image, 16, 16, 8);
    const std::vector<PackedColor> own = GridColors(200, 20, 20, 10);
    FillColumnByColumn(image, own);  // 256 pixels: the 200 colours, then 56 repeats
    image.Color(15, 3) = TransparentColor;
    image.Color(15, 9) = TransparentColor;
    image.Color(15, 12) = InverseColor;

    const IconImage before = image.Clone();
    const Palette256Result built = Build(image);

    EXPECT_FALSE(built.dithered);
    // The first pass counts 200 colours plus black and white for the markers.
    EXPECT_EQ(built.distinctColors, 201);
    ASSERT_EQ(built.palette.size() >= 256, true);
    for (int k = 0; k < 200; ++k) {
        EXPECT_EQ(built.palette[static_cast<std::size_t>(k)], own[static_cast<std::size_t>(k)])
            << k;
    }
    EXPECT_EQ(built.paletteLast, 201);
    EXPECT_EQ(built.palette[200], 0x000000);  // first seen at (15, 3)
    EXPECT_EQ(built.palette[201], 0xFFFFFF);  // first seen at (15, 12)
    for (int k = 202; k < 254; ++k)
        EXPECT_EQ(built.palette[static_cast<std::size_t>(k)], 0);
    EXPECT_EQ(built.palette[kBlack], 0x000000);
    EXPECT_EQ(built.palette[kWhite], 0xFFFFFF);

    // Entry 7 as blue, green, red, 0.
    const PackedColor seventh = own[7];
    EXPECT_EQ(built.paletteBytes[28], BlueOf(seventh));
    EXPECT_EQ(built.paletteBytes[29], GreenOf(seventh));
    EXPECT_EQ(built.paletteBytes[30], RedOf(seventh));
    EXPECT_EQ(built.paletteBytes[31], 0);
    EXPECT_EQ(built.paletteBytes[kWhite * 4], 255);
    EXPECT_EQ(built.paletteBytes[kBlack * 4 + 2], 0);

    ASSERT_EQ(built.width, 16);
    ASSERT_EQ(built.height, 16);
    for (int x = 0; x < 16; ++x) {
        for (int y = 0; y < 16; ++y) {
            const PackedColor c = image.Color(x, y);
            if (c == TransparentColor) {
                EXPECT_EQ(built.IndexAt(x, y), kBlack);
            } else if (c == InverseColor) {
                EXPECT_EQ(built.IndexAt(x, y), kWhite);
            } else {
                ASSERT_EQ(built.palette[built.IndexAt(x, y)], c) << x << "," << y;
                ASSERT_LT(built.IndexAt(x, y), 200);
            }
        }
    }
    // The image itself is left alone.
    for (int x = 0; x < 16; ++x) {
        for (int y = 0; y < 16; ++y)
            ASSERT_EQ(image.Color(x, y), before.Color(x, y));
    }
}

TEST(CreatePalette256, CountsChannelsOfZeroAndOneAsOneColour) {
    IconImage image;
    test::ShapeImage(image, 2, 2, 8);
    image.Color(0, 0) = PackColor(0, 0, 0);
    image.Color(0, 1) = PackColor(1, 0, 1);
    image.Color(1, 0) = PackColor(1, 1, 1);
    image.Color(1, 1) = PackColor(0, 1, 0);
    const Palette256Result built = Build(image);
    EXPECT_EQ(built.distinctColors, 0);
    // The exact palette still holds all four, in first-seen order.
    EXPECT_EQ(built.paletteLast, 3);
    EXPECT_EQ(std::vector<PackedColor>(built.palette.begin(), built.palette.begin() + 4),
              (std::vector<PackedColor>{0x000000, PackColor(1, 0, 1), PackColor(1, 1, 1),
                                        PackColor(0, 1, 0)}));
    // The last equal entry wins: black is entry 0 and entry 254, so black takes 254.
    EXPECT_EQ(built.IndexAt(0, 0), kBlack);
    EXPECT_EQ(built.IndexAt(0, 1), 1);
    EXPECT_EQ(built.IndexAt(1, 0), 2);
    EXPECT_EQ(built.IndexAt(1, 1), 3);
}

TEST(CreatePalette256, PixelsWithoutAnEntryTakeTheIndexHandledBefore) {
    // 254 colours with red 0 and 46 twins with red 1: one colour each for the count (0 and
    // 1 both count as 0), so the palette is exact, but it needs 300 entries. Entries 254
    // and 255 become black and white and 256 on are never written, so the twins find no
    // entry and take the index of the pixel handled before them, in the bitmap's order
    // (bottom row first, left to right), starting from 0.
    std::vector<PackedColor> colors;
    for (int k = 0; k < 254; ++k)
        colors.push_back(PackColor(0, 20 + k % 16 * 10, 20 + k / 16 * 10));
    for (int k = 0; k < 46; ++k)
        colors.push_back(colors[static_cast<std::size_t>(k)] | 1);
    IconImage image;
    test::ShapeImage(image, 20, 15, 8);
    FillColumnByColumn(image, colors);

    const Palette256Result built = Build(image);
    EXPECT_EQ(built.distinctColors, 253);
    EXPECT_FALSE(built.dithered);
    EXPECT_EQ(built.paletteLast, 299);
    int carried = 0;
    for (int y = 14; y >= 0; --y) {
        for (int x = 0; x < 20; ++x) {
            const int k = x * 15 + y;
            if (k < 254) carried = k;
            ASSERT_EQ(built.IndexAt(x, y), carried) << x << "," << y;
        }
    }
}

TEST(CreatePalette256, DithersAThreeThousandColourPictureOntoAtMost254Colours) {
    IconImage image;
    test::ShapeImage(image, 65, 64, 8);
    // 3,000 colours in a smooth run over the first 64 columns; markers in the last one.
    const std::vector<PackedColor> grid = GridColors(3000, 20, 12, 15);
    for (int x = 0; x < 64; ++x) {
        for (int y = 0; y < 64; ++y) {
            image.Color(x, y) = grid[static_cast<std::size_t>((x * 64 + y) * 3000 / 4096)];
        }
    }
    for (int y = 0; y < 64; ++y)
        image.Color(64, y) = y % 2 == 0 ? TransparentColor : InverseColor;

    PaletteBuilder builder(image);
    builder.CountPaletteColors();
    EXPECT_EQ(builder.DistinctColors(), 3001);  // 3,000 plus black and white for the markers
    EXPECT_EQ(builder.QuantizationStep(), 16);

    const Palette256Result built = Build(image);
    EXPECT_TRUE(built.dithered);
    EXPECT_LE(built.paletteLast, 253);
    long totalError = 0;
    std::set<int> used;
    for (int x = 0; x < 65; ++x) {
        for (int y = 0; y < 64; ++y) {
            const PackedColor c = image.Color(x, y);
            const int index = built.IndexAt(x, y);
            if (c == TransparentColor) {
                ASSERT_EQ(index, kBlack);
            } else if (c == InverseColor) {
                ASSERT_EQ(index, kWhite);
            } else {
                ASSERT_LE(index, built.paletteLast) << x << "," << y;
                used.insert(index);
                totalError += ColorDistance(built.palette[static_cast<std::size_t>(index)], c);
            }
        }
    }
    // Dithering spreads the pixels over many entries and stays near the picture.
    EXPECT_GT(used.size(), 100u);
    EXPECT_LT(totalError / (64 * 64), 40);
}

TEST(CreatePalette256, CoarsensByTheStepThatTheCountCalls) {
    // More than 20,000 colours: straight to step 16.
    IconImage photo;
    test::ShapeImage(photo, 256, 256, 8);
    test::FillPhotoLike(photo, 11);
    PaletteBuilder many(photo);
    many.CountPaletteColors();
    EXPECT_GT(many.DistinctColors(), 20000);
    EXPECT_EQ(many.QuantizationStep(), 16);
    EXPECT_EQ(many.PaletteLast(), 253);

    // 12,000 colours that share 1,728 cells of eight: step 8 is enough.
    std::vector<PackedColor> clustered;
    const std::vector<PackedColor> cells = GridColors(1728, 16, 8, 12);
    for (int k = 0; k < 12000; ++k) {
        const int variant = k / 1728;
        clustered.push_back(cells[static_cast<std::size_t>(k % 1728)] +
                            PackColor(variant % 4, variant / 4, 0));
    }
    IconImage image;
    test::ShapeImage(image, 128, 128, 8);
    FillColumnByColumn(image, clustered);
    PaletteBuilder eight(image);
    eight.CountPaletteColors();
    EXPECT_EQ(eight.DistinctColors(), 11999);
    EXPECT_EQ(eight.QuantizationStep(), 8);
    EXPECT_EQ(eight.PaletteLast(), 253);
    for (int k = 0; k <= eight.PaletteLast(); ++k) {
        EXPECT_NE(eight.Palette()[static_cast<std::size_t>(k)], 0);
    }
}

TEST(CreatePalette256, LeavesThePassesThatWouldRepeatForever) {
    // 12,000 colours in cells of their own at step 8: the pass would repeat at step 8, so
    // the count goes on to step 16.
    IconImage image;
    test::ShapeImage(image, 128, 128, 8);
    FillColumnByColumn(image, GridColors(12000, 8, 8, 23));
    PaletteBuilder spread(image);
    spread.CountPaletteColors();
    EXPECT_EQ(spread.DistinctColors(), 11999);
    EXPECT_EQ(spread.QuantizationStep(), 16);
    EXPECT_EQ(spread.PaletteLast(), 253);

    // 2,500 colours in cells of their own at step 16: no coarser step, so on to merging.
    test::ShapeImage(image, 50, 50, 8);
    FillColumnByColumn(image, GridColors(2500, 16, 16, 15));
    PaletteBuilder sixteen(image);
    sixteen.CountPaletteColors();
    EXPECT_EQ(sixteen.DistinctColors(), 2499);
    EXPECT_EQ(sixteen.QuantizationStep(), 16);
    EXPECT_EQ(sixteen.PaletteLast(), 253);
}

TEST(CreatePalette256, ReportsTheImageNumberInTheStatusBar) {
    IconSet set;
    set.AddIcon(15, 15, 8);
    set.AddIcon(15, 15, 8);
    const int third = set.AddIcon(47, 47, 8);
    test::FillPhotoLike(set.Image(third), 3);
    test::RecordingProgress progress;
    const Palette256Result built = CreatePalette256(set, third, progress);
    ASSERT_FALSE(progress.statuses.empty());
    EXPECT_EQ(progress.statuses.front(), "Creating color palette for 256 color icon 2");
    EXPECT_GT(progress.yields, 0);
    EXPECT_EQ(built.width, 48);
    EXPECT_EQ(built.indices.size(), 48u * 48u);
}

TEST(CreatePalette256, ServesEveryImageSize) {
    for (const auto& [width, height] :
         std::vector<std::pair<int, int>>{{1, 1}, {47, 33}, {33, 47}, {256, 256}}) {
        IconImage image;
        test::ShapeImage(image, width, height, 8);
        test::FillPhotoLike(image, static_cast<std::uint32_t>(width));
        image.Color(width - 1, height - 1) = TransparentColor;
        const Palette256Result built = Build(image);
        ASSERT_EQ(built.indices.size(), static_cast<std::size_t>(width * height));
        EXPECT_EQ(built.IndexAt(width - 1, height - 1), kBlack);
        EXPECT_EQ(built.palette[kBlack], 0x000000);
        EXPECT_EQ(built.palette[kWhite], 0xFFFFFF);
    }
}

}  // namespace
}  // namespace iw
