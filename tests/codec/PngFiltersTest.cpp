// The five row filters: Paeth's tie rules, filtering then unfiltering gives the rows back
// for every filter and pixel size, and the writer's choice of filter.

#include <gtest/gtest.h>

#include "CompressionSamples.h"
#include "codec/png/PngFilterStrategy.h"
#include "codec/png/PngFilters.h"
#include "codec/png/PngFormat.h"

namespace iw::png {
namespace {

TEST(PngFilters, PaethBreaksTiesInTheOrderLeftAboveUpperLeft) {
    const int cases[][4] = {
        {10, 10, 10, 10}, {0, 3, 2, 0},  // pa = pc = 1 < pb: a wins the tie with c
        {3, 0, 2, 0},                    // pb = pc = 1 < pa: b wins the tie with c
        {10, 20, 15, 15}, {0, 10, 0, 10}, {255, 0, 255, 0}, {200, 100, 0, 200},
    };
    for (const auto& [a, b, c, predicted] : cases)
        EXPECT_EQ(PaethPredictor(a, b, c), predicted) << a << " " << b << " " << c;
}

// Six rows, each with a different filter (the first row included), at every pixel size;
// stride 5 takes the path for sizes without their own code.
TEST(PngFilters, UnfilteringUndoesEveryFilterAtEveryPixelSize) {
    for (std::size_t stride : {1u, 2u, 3u, 4u, 5u, 6u, 8u}) {
        for (std::size_t rowBytes : {stride, stride * 7}) {
            SCOPED_TRACE(testing::Message() << "stride " << stride << " row " << rowBytes);
            const std::size_t rows = 6;
            const auto original = test::RandomBytes(rows * rowBytes, static_cast<unsigned>(stride));
            std::vector<std::uint8_t> filtered(rows * (rowBytes + 1));
            const std::vector<std::uint8_t> zeros(rowBytes, 0);
            for (std::size_t y = 0; y < rows; ++y) {
                std::uint8_t* line = filtered.data() + y * (rowBytes + 1);
                line[0] = static_cast<std::uint8_t>((y + stride) % kFilterCount);
                FilterRow(line[0], original.data() + y * rowBytes,
                          y == 0 ? zeros.data() : original.data() + (y - 1) * rowBytes, rowBytes,
                          stride, line + 1);
            }
            ASSERT_TRUE(UnfilterRows(filtered.data(), rows, rowBytes, stride));
            for (std::size_t y = 0; y < rows; ++y) {
                const auto row = original.begin() + static_cast<std::ptrdiff_t>(y * rowBytes);
                EXPECT_TRUE(std::equal(
                    row, row + static_cast<std::ptrdiff_t>(rowBytes),
                    filtered.begin() + static_cast<std::ptrdiff_t>(y * (rowBytes + 1) + 1)))
                    << "row " << y;
            }
        }
    }
}

TEST(PngFilterStrategy, TheHeuristicPicksTheFilterWithTheSmallestSum) {
    // A horizontal ramp: Sub leaves ones; a row equal to the one above: Up leaves zeros.
    std::vector<std::uint8_t> rows;
    for (int i = 0; i < 32; ++i)
        rows.push_back(static_cast<std::uint8_t>(100 + i % 16));
    const auto out = FilterImage(rows, 2, 16, 1, FilterStrategy::MinimumSum);
    EXPECT_EQ(out[0], kFilterSub);
    EXPECT_EQ(out[17], kFilterUp);
    const auto paeth = FilterImage(rows, 2, 16, 1, FilterStrategy::Paeth);
    EXPECT_TRUE(paeth[0] == kFilterPaeth && paeth[17] == kFilterPaeth);
    const auto none = FilterImage(rows, 2, 16, 1, FilterStrategy::None);
    EXPECT_TRUE(std::equal(rows.begin(), rows.begin() + 16, none.begin() + 1));
}

}  // namespace
}  // namespace iw::png
