// The one integer parser: the whole text, one optional sign, the type's range.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "services/core/ParseInteger.h"

namespace iw {
namespace {

TEST(ParseInteger, TakesTheWholeTextWithOneOptionalSign) {
    const struct {
        const char* text;
        std::optional<int> value;
    } cases[] = {
        {"0", 0},
        {"42", 42},
        {"+42", 42},
        {"-42", -42},
        {"007", 7},
        {"-0", 0},
        {"", std::nullopt},
        {"+", std::nullopt},
        {"-", std::nullopt},
        {"+-1", std::nullopt},
        {"--1", std::nullopt},
        {"++1", std::nullopt},
        {" 1", std::nullopt},
        {"1 ", std::nullopt},
        {"1x", std::nullopt},
        {"0x10", std::nullopt},
        {"1.5", std::nullopt},
        {"1e3", std::nullopt},
        {"2147483647", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"2147483648", std::nullopt},
        {"-2147483649", std::nullopt},
        {"99999999999999999999", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ParseInteger<int>(c.text), c.value) << '"' << c.text << '"';
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
