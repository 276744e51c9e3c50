// The 32-bpp image object: the sizes it refuses before allocating anything.

#include <gtest/gtest.h>

#include <limits>

#include "codec/png/c32bppDIB.h"

namespace iw::test {
namespace {

TEST(Dib, InitializeDibFollowsItsFailureRules) {
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    const std::pair<std::int32_t, std::int32_t> refused[] = {
        {-1, 5},       {5, 0},    {0, 5},
        {kMin + 1, 1}, {1, kMin}, {65536, 32768},  // 2^33 bytes: past the 32-bit image size
    };
    c32bppDIB dib;
    for (auto [width, height] : refused) {
        ASSERT_TRUE(dib.InitializeDIB(1, 1));
        EXPECT_FALSE(dib.InitializeDIB(width, height)) << width << " x " << height;
        EXPECT_TRUE(dib.Empty());  // whatever it held before
    }
    ASSERT_TRUE(dib.InitializeDIB(3, -2));  // a negative height counts as its absolute value
    EXPECT_EQ(std::pair(dib.Width(), dib.Height()), std::pair(3, 2));
}

}  // namespace
}  // namespace iw::test
