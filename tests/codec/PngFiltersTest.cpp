// The five row filters: filtering then unfiltering gives the rows back for every filter and
// pixel size, short rows and long ones, and the writer's choice of filter.

#include <gtest/gtest.h>

#include "CompressionSamples.h"
#include "codec/png/PngFilterStrategy.h"
#include "codec/png/PngFilters.h"
#include "codec/png/PngFormat.h"

namespace iw::png {
namespace {

// Six rows, each with a different filter (the first row included), at every pixel size;
// stride 5 takes the path for sizes without their own code, 333 pixels the wide paths.
TEST(PngFilters, UnfilteringUndoesEveryFilterAtEveryPixelSize) {
    for (std::size_t stride : {1u, 2u, 3u, 4u, 5u, 6u, 8u}) {
        for (std::size_t rowBytes : {stride, stride * 7, stride * 333}) {
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
