#include "imaging/Rounding.h"

#include <gtest/gtest.h>

#include <iterator>

namespace iw {
namespace {

TEST(RoundHalfEven, SendsExactHalvesToTheEvenNeighbourAndTheRestToTheNearest) {
    const double values[] = {0.5,  1.5,        2.5,        191.5,     -0.5,       -1.5,        -2.5,
                             -0.2, 0.49999999, 0.50000001, 2.5000001, -2.5000001, 2000000000.5};
    const int rounded[] = {0, 2, 2, 192, 0, -2, -2, 0, 0, 1, 3, -3, 2000000000};
    for (std::size_t i = 0; i < std::size(values); ++i)
        EXPECT_EQ(RoundHalfEven(values[i]), rounded[i]) << values[i];
    // 1.02f is held as 1.0199999809..., so 25 * 1.02f lies just below 25.5.
    EXPECT_EQ(RoundHalfEven(25 * static_cast<double>(1.02f)), 25);
    EXPECT_EQ(RoundHalfEven(25 * 1.02), 26);
}

TEST(RoundHalfEven, TheExactQuotientFormAgreesWithTheFloatingPointForm) {
    for (int n = -5000; n <= 5000; ++n) {
        for (int d : {2, 3, 16})
            ASSERT_EQ(RoundHalfEven(n, d), RoundHalfEven(n / static_cast<double>(d)))
                << n << "/" << d;
    }
}

}  // namespace
}  // namespace iw
