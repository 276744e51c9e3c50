// The five row filters: Paeth's tie rules, and filtering then unfiltering gives the rows
// back for every filter, pixel size and row position.

#include <gtest/gtest.h>

#include <random>

#include "codec/PngFilterStrategy.h"
#include "codec/PngFilters.h"
#include "codec/PngFormat.h"

namespace iw::png {
namespace {

TEST(PngFilters, PaethBreaksTiesInTheOrderLeftAboveUpperLeft) {
    EXPECT_EQ(PaethPredictor(10, 10, 10), 10);
    EXPECT_EQ(PaethPredictor(0, 3, 2), 0);  // pa = pc = 1 < pb: a wins the tie with c
    EXPECT_EQ(PaethPredictor(3, 0, 2), 0);  // pb = pc = 1 < pa: b wins the tie with c
    EXPECT_EQ(PaethPredictor(10, 20, 15), 15);
    EXPECT_EQ(PaethPredictor(0, 10, 0), 10);
    EXPECT_EQ(PaethPredictor(255, 0, 255), 0);
    EXPECT_EQ(PaethPredictor(200, 100, 0), 200);  // p = 300: a is closest
}

std::vector<std::uint8_t> RandomRows(std::size_t rows, std::size_t rowBytes, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<std::uint8_t> data(rows * rowBytes);
    for (std::size_t i = 0; i < data.size(); ++i) {
        // Mostly smooth, sometimes a jump: both kinds of neighbourhood.
        data[i] = static_cast<std::uint8_t>(i % 7 == 0 ? random() : (i * 3 + random() % 4));
    }
    return data;
}

TEST(PngFilters, UnfilteringUndoesEveryFilterAtEveryPixelSize) {
    for (std::size_t stride : {1u, 2u, 3u, 4u, 6u, 8u, 5u}) {
        for (std::size_t rowBytes : {stride, stride * 7, std::size_t{1}}) {
            if (rowBytes < stride && stride != 1) continue;
            const std::size_t rows = 6;
            const auto original =
                RandomRows(rows, rowBytes, static_cast<std::uint32_t>(stride * 31 + rowBytes));
            std::vector<std::uint8_t> filtered(rows * (rowBytes + 1));
            const std::vector<std::uint8_t> zeros(rowBytes, 0);
            for (std::size_t y = 0; y < rows; ++y) {
                const std::uint8_t type = static_cast<std::uint8_t>((y + stride) % kFilterCount);
                filtered[y * (rowBytes + 1)] = type;
                FilterRow(type, original.data() + y * rowBytes,
                          y == 0 ? zeros.data() : original.data() + (y - 1) * rowBytes, rowBytes,
                          stride, filtered.data() + y * (rowBytes + 1) + 1);
            }
            ASSERT_TRUE(UnfilterRows(filtered.data(), rows, rowBytes, stride));
            for (std::size_t y = 0; y < rows; ++y) {
                EXPECT_TRUE(std::equal(
                    original.begin() + static_cast<std::ptrdiff_t>(y * rowBytes),
                    original.begin() + static_cast<std::ptrdiff_t>((y + 1) * rowBytes),
                    filtered.begin() + static_cast<std::ptrdiff_t>(y * (rowBytes + 1) + 1)))
                    << "stride " << stride << " row " << y;
            }
        }
    }
}

TEST(PngFilters, EveryFirstRowFilterSeesAZeroRowAbove) {
    // Sub, Up, Average and Paeth on the first row, by hand, stride 1.
    std::vector<std::uint8_t> rows{kFilterAverage, 10, 10, 10};
    ASSERT_TRUE(UnfilterRows(rows.data(), 1, 3, 1));
    EXPECT_EQ(rows, (std::vector<std::uint8_t>{kFilterAverage, 10, 15, 17}));
    rows = {kFilterPaeth, 1, 2, 3};
    ASSERT_TRUE(UnfilterRows(rows.data(), 1, 3, 1));
    EXPECT_EQ(rows, (std::vector<std::uint8_t>{kFilterPaeth, 1, 3, 6}));
    rows = {kFilterUp, 1, 2, 3};
    ASSERT_TRUE(UnfilterRows(rows.data(), 1, 3, 1));
    EXPECT_EQ(rows, (std::vector<std::uint8_t>{kFilterUp, 1, 2, 3}));
    rows = {5, 1, 2, 3};
    EXPECT_FALSE(UnfilterRows(rows.data(), 1, 3, 1));
}

TEST(PngFilterStrategy, TheHeuristicPicksTheFilterWithTheSmallestSum) {
    // A horizontal ramp: Sub leaves ones; a row equal to the one above: Up leaves zeros.
    std::vector<std::uint8_t> rows;
    for (int i = 0; i < 16; ++i)
        rows.push_back(static_cast<std::uint8_t>(100 + i));
    rows.insert(rows.end(), rows.begin(), rows.end());
    const auto out = FilterImage(rows, 2, 16, 1, FilterStrategy::MinimumSum);
    EXPECT_EQ(out[0], kFilterSub);
    EXPECT_EQ(out[17], kFilterUp);
    const auto paeth = FilterImage(rows, 2, 16, 1, FilterStrategy::Paeth);
    EXPECT_EQ(paeth[0], kFilterPaeth);
    EXPECT_EQ(paeth[17], kFilterPaeth);
    const auto none = FilterImage(rows, 2, 16, 1, FilterStrategy::None);
    EXPECT_TRUE(std::equal(rows.begin(), rows.begin() + 16, none.begin() + 1));
}

}  // namespace
}  // namespace iw::png
