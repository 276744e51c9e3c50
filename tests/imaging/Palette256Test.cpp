// The 256-colour palette for 8-bit images, end to end: the exact palette, the coarsening
// steps, dithering of many-coloured pictures and the index rules.

#include "imaging/Palette256.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <vector>

#include "SyntheticImages.h"
#include "imaging/ColorMapping.h"
#include "support/TestImages.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

constexpr int kBlack = Palette256Result::kBlackEntry;
constexpr int kWhite = Palette256Result::kWhiteEntry;

// A width x height image filled column by column (x outer, y inner) with colors[0],
// colors[1], ..., repeating the list when the image has more pixels.
IconImage ColumnByColumn(int width, int height, const std::vector<PackedColor>& colors) {
    return test::MakeImage(width, height, 8, [&](int x, int y) {
        return colors[static_cast<std::size_t>(x * height + y) % colors.size()];
    });
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

// Checks that markers take 254 and 255 and other pixels an entry up to `last`. Returns the
// pixels' summed distance from their entries; `used` collects the entries.
long IndexError(const IconImage& image, const Palette256Result& built, int last,
                std::set<int>* used = nullptr) {
    long error = 0;
    for (int x = 0; x < image.info.Width(); ++x) {
        for (int y = 0; y < image.info.Height(); ++y) {
            const PackedColor c = image.Color(x, y);
            const int index = built.IndexAt(x, y);
            if (IsMarker(c)) {
                EXPECT_EQ(index, c == TransparentColor ? kBlack : kWhite) << x << "," << y;
                continue;
            }
            EXPECT_LE(index, last) << x << "," << y;
            if (used != nullptr) used->insert(index);
            error += ColorDistance(built.palette[static_cast<std::size_t>(index)], c);
        }
    }
    return error;
}

TEST(CreatePalette256, KeepsTwoHundredColoursExactlyWithMarkersAt254And255) {
    const std::vector<PackedColor> own = GridColors(200, 20, 20, 10);
    IconImage image = ColumnByColumn(16, 16, own);  // the 200 colours, then 56 repeats
    image.Color(15, 3) = TransparentColor;
    image.Color(15, 12) = InverseColor;
    const Palette256Result built = Build(image);

    EXPECT_FALSE(built.dithered);
    EXPECT_EQ(built.distinctColors, 201);  // 200 plus black and white for the markers
    ASSERT_GE(built.palette.size(), 256u);
    // The colours in the order first seen, black at (15, 3) and white at (15, 12) after them.
    std::vector<PackedColor> expected = own;
    expected.insert(expected.end(), {0x000000, 0xFFFFFF, 0});
    EXPECT_EQ(std::vector<PackedColor>(built.palette.begin(), built.palette.begin() + 203),
              expected);
    EXPECT_EQ(built.palette[kBlack], 0x000000u);
    EXPECT_EQ(built.palette[kWhite], 0xFFFFFFu);
    // Entry 7 as blue, green, red, 0.
    EXPECT_EQ(std::vector<int>(built.paletteBytes.begin() + 28, built.paletteBytes.begin() + 32),
              (std::vector<int>{BlueOf(own[7]), GreenOf(own[7]), RedOf(own[7]), 0}));
    EXPECT_EQ(built.paletteBytes[kWhite * 4], 255);

    EXPECT_EQ(IndexError(image, built, 199), 0);
}

TEST(CreatePalette256, CountsZeroAndOneAsOneColourAndTheLastEqualEntryWins) {
    const std::vector<PackedColor> colors = {0x000000, PackColor(1, 0, 1), PackColor(1, 1, 1),
                                             PackColor(0, 1, 0)};
    const Palette256Result built = Build(ColumnByColumn(2, 2, colors));
    EXPECT_EQ(built.distinctColors, 0);
    EXPECT_EQ(built.paletteLast, 3);  // the exact palette still holds all four
    EXPECT_EQ(std::vector<PackedColor>(built.palette.begin(), built.palette.begin() + 4), colors);
    // Black is entry 0 and entry 254: it takes 254.
    EXPECT_EQ(built.IndexAt(0, 0), kBlack);
    EXPECT_EQ(built.IndexAt(0, 1), 1);
    EXPECT_EQ(built.IndexAt(1, 0), 2);
}

TEST(CreatePalette256, PixelsWithoutAnEntryTakeTheIndexHandledBefore) {
    // 254 colours with red 0 and 46 twins with red 1: one colour each for the count, so the
    // palette is exact, but it needs 300 entries. Entries 254 and 255 become black and white
    // and 256 on are never written, so the twins find no entry and take the index of the
    // pixel handled before them, in the bitmap's order (bottom row first, left to right).
    std::vector<PackedColor> colors;
    for (int k = 0; k < 254; ++k)
        colors.push_back(PackColor(0, 20 + k % 16 * 10, 20 + k / 16 * 10));
    for (int k = 0; k < 46; ++k)
        colors.push_back(colors[static_cast<std::size_t>(k)] | 1);
    const Palette256Result built = Build(ColumnByColumn(20, 15, colors));
    EXPECT_EQ(built.distinctColors, 253);
    EXPECT_EQ(built.paletteLast, 299);
    int carried = 0;
    for (int y = 14; y >= 0; --y) {
        for (int x = 0; x < 20; ++x) {
            if (x * 15 + y < 254) carried = x * 15 + y;
            ASSERT_EQ(built.IndexAt(x, y), carried) << x << "," << y;
        }
    }
}

TEST(CreatePalette256, DithersAThreeThousandColourPictureOntoAtMost254Colours) {
    // 3,000 colours over the first 64 columns, some twice; markers in the last column.
    IconImage image = ColumnByColumn(65, 64, GridColors(3000, 20, 12, 15));
    for (int y = 0; y < 64; ++y)
        image.Color(64, y) = y % 2 == 0 ? TransparentColor : InverseColor;
    const Palette256Result built = Build(image);
    EXPECT_TRUE(built.dithered);
    EXPECT_EQ(built.paletteLast, 253);
    std::set<int> used;
    const long totalError = IndexError(image, built, 253, &used);
    // Dithering spreads the pixels over many entries and stays near the picture.
    EXPECT_GT(used.size(), 100u);
    EXPECT_LT(totalError / (64 * 64), 40);
}

TEST(CreatePalette256, CoarsensByTheStepThatTheCountCallsAndAlwaysEnds) {
    struct Case {
        int count, first, step, perChannel, quantization;
    } const cases[] = {
        {25000, 8, 8, 30, 16},   // more than 20,000 colours: straight to 16
        {3000, 20, 12, 15, 16},  // 3,000: through 2, 4 and 8 to 16
        {12000, 20, 2, 23, 8},   // 12,000 that share few cells of eight: 8 is enough
        {12000, 8, 8, 23, 16},   // 12,000 in cells of their own at 8: on to 16, not for ever
        {2500, 16, 16, 15, 16},  // 2,500 in cells of their own at 16: on to merging
    };
    for (const Case& c : cases) {
        const int side = static_cast<int>(std::ceil(std::sqrt(c.count)));
        PaletteBuilder builder(
            ColumnByColumn(side, side, GridColors(c.count, c.first, c.step, c.perChannel)));
        builder.CountPaletteColors();
        EXPECT_EQ(
            std::tuple(builder.DistinctColors(), builder.QuantizationStep(), builder.PaletteLast()),
            std::tuple(c.count - 1, c.quantization, 253))
            << c.count;
    }
}

TEST(CreatePalette256, ReportsTheImageNumberInTheStatusBar) {
    IconSet set;
    set.AddIcon(15, 15, 8);
    set.AddIcon(15, 15, 8);
    const int third = set.AddIcon(255, 191, 8);
    test::FillPhotoLike(set.Image(third), 3);
    set.Image(third).Color(255, 191) = TransparentColor;
    test::RecordingProgress progress;
    const Palette256Result built = CreatePalette256(set, third, progress);
    ASSERT_FALSE(progress.statuses.empty());
    EXPECT_EQ(progress.statuses.front(), "Creating color palette for 256 color icon 2");
    EXPECT_GT(progress.yields, 0);
    EXPECT_EQ(built.indices.size(), 256u * 192u);
    EXPECT_EQ(built.IndexAt(255, 191), kBlack);
}

}  // namespace
}  // namespace iw
