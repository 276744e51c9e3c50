// Which image of a set a desktop shows at a given size.
#include <gtest/gtest.h>

#include "document/io/PictureImport.h"

namespace iw {
namespace {

TEST(BestFitImage, ExactThenSmallestLargerThenLargestSmallerDeepestFirst) {
    IconSet set;
    EXPECT_EQ(BestFitImage(set, 32), -1);
    // index: 0 = 16x16x4, 1 = 48x48x8, 2 = 48x48x32, 3 = 32x32x8, 4 = 256x256x32,
    // 5 = 32x32x32, 6 = 64x40x32 (not square: counts by its longer side)
    for (const auto& [side, bits] :
         std::vector<std::pair<int, int>>{{16, 4}, {48, 8}, {48, 32}, {32, 8}, {256, 32}, {32, 32}})
        set.AddIcon(side - 1, side - 1, bits);
    set.AddIcon(63, 39, 32);
    const std::vector<std::pair<int, int>> cases = {
        {32, 5},   // exact, the 32-bit one although the 8-bit one comes first
        {48, 2},   // exact, deepest
        {16, 0},   // exact at 4 bits beats scaling anything down
        {24, 5},   // none exact: the smallest larger one, 32 x 32, deepest
        {40, 2},   // 48 is the nearest larger
        {60, 6},   // the 64 x 40 image's longer side is 64
        {96, 4},   // only 256 is larger
        {300, 4},  // nothing larger: the largest
        {8, 0},
    };
    for (const auto& [side, expected] : cases)
        EXPECT_EQ(BestFitImage(set, side), expected) << side;
    // A set of small images only: the largest is scaled up.
    IconSet small;
    small.AddIcon(15, 15, 32);
    small.AddIcon(31, 31, 4);
    EXPECT_EQ(BestFitImage(small, 48), 1);
}

}  // namespace
}  // namespace iw
