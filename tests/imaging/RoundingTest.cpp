#include "imaging/Rounding.h"

#include <gtest/gtest.h>

namespace iw {
namespace {

TEST(RoundHalfEven, SendsExactHalvesToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(191.5), 192);
    EXPECT_EQ(RoundHalfEven(254.5), 254);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
}

TEST(RoundHalfEven, RoundsEverythingElseToTheNearest) {
    EXPECT_EQ(RoundHalfEven(0.49999999), 0);
    EXPECT_EQ(RoundHalfEven(0.50000001), 1);
    EXPECT_EQ(RoundHalfEven(2.5000001), 3);
    EXPECT_EQ(RoundHalfEven(-2.5000001), -3);
    EXPECT_EQ(RoundHalfEven(-0.2), 0);
    EXPECT_EQ(RoundHalfEven(127.0), 127);
    EXPECT_EQ(RoundHalfEven(-108.0), -108);
    EXPECT_EQ(RoundHalfEven(2000000000.5), 2000000000);
}

TEST(RoundHalfEven, TakesSinglePrecisionValuesAsTheyAreHeld) {
    // 1.02f is held as 1.0199999809..., so 25 * 1.02f lies just below 25.5.
    EXPECT_EQ(RoundHalfEven(25 * static_cast<double>(1.02f)), 25);
    EXPECT_EQ(RoundHalfEven(25 * 1.02), 26);
}

}  // namespace
}  // namespace iw
