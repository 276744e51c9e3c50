// The one integer parser: the whole text, one optional sign, the type's range.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "services/core/ParseInteger.h"

namespace iw {
namespace {

TEST(ParseInteger, TakesTheWholeTextWithOneOptionalSign) {
    const std::pair<const char*, int> good[] = {
        {"0", 0}, {"42", 42}, {"+42", 42}, {"-42", -42}, {"007", 7}, {"-0", 0},
    };
    for (const auto& [text, value] : good)
        EXPECT_EQ(ParseInteger<int>(text), value) << text;
    EXPECT_EQ(ParseInteger<int>("2147483647"), 2147483647);
    EXPECT_EQ(ParseInteger<int>("-2147483648"), -2147483647 - 1);
    for (const char* bad : {"", "+", "-", "+-1", "--1", "++1", " 1", "1 ", "1x", "0x10", "1.5",
                            "1e3", "2147483648", "-2147483649", "99999999999999999999"})
        EXPECT_EQ(ParseInteger<int>(bad), std::nullopt) << '"' << bad << '"';
}

TEST(ParseInteger, KeepsToTheRangeOfEachType) {
    EXPECT_EQ(ParseInteger<std::int8_t>("-128"), std::int8_t{-128});
    EXPECT_EQ(ParseInteger<std::int8_t>("128"), std::nullopt);
    EXPECT_EQ(ParseInteger<std::uint16_t>("65535"), std::uint16_t{65535});
    EXPECT_EQ(ParseInteger<std::uint16_t>("65536"), std::nullopt);
    EXPECT_EQ(ParseInteger<std::uint16_t>("-0"), std::nullopt);  // no sign on unsigned
    EXPECT_EQ(ParseInteger<std::uint16_t>("+7"), std::uint16_t{7});
    EXPECT_EQ(ParseInteger<long long>("-9223372036854775808"),
              std::numeric_limits<long long>::min());
    EXPECT_EQ(ParseInteger<long long>("9223372036854775808"), std::nullopt);
}

}  // namespace
}  // namespace iw
