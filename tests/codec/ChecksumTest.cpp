// CRC-32 and Adler-32 against their published check values and against zlib.

#include <gtest/gtest.h>
#include <zlib.h>

#include <random>
#include <string_view>

#include "codec/Compression.h"

namespace iw {
namespace {

std::span<const std::uint8_t> AsBytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

TEST(Checksums, PublishedCheckValues) {
    EXPECT_EQ(Crc32(0, AsBytes("123456789")), 0xCBF43926u);
    EXPECT_EQ(Crc32(0, {}), 0u);
    EXPECT_EQ(Adler32(1, AsBytes("Wikipedia")), 0x11E60398u);
    EXPECT_EQ(Adler32(1, {}), 1u);
    // PNG's IEND chunk: CRC over the type alone.
    EXPECT_EQ(Crc32(0, AsBytes("IEND")), 0xAE426082u);
}

TEST(Checksums, AgreeWithZlibOnEveryLengthAndSplit) {
    std::mt19937 rng(7);
    std::vector<std::uint8_t> data(200000);
    for (auto& b : data)
        b = static_cast<std::uint8_t>(rng());
    for (std::size_t n : {1, 7, 8, 9, 31, 32, 33, 5551, 5552, 5553, 5600, 65536, 200000}) {
        const auto part = std::span(data).first(n);
        EXPECT_EQ(Crc32(0, part), crc32(0, part.data(), static_cast<uInt>(n))) << n;
        EXPECT_EQ(Adler32(1, part), adler32(1, part.data(), static_cast<uInt>(n))) << n;
        const std::size_t split = rng() % n;
        EXPECT_EQ(Crc32(Crc32(0, part.first(split)), part.subspan(split)), Crc32(0, part)) << n;
        EXPECT_EQ(Adler32(Adler32(1, part.first(split)), part.subspan(split)), Adler32(1, part))
            << n;
    }
}

TEST(Checksums, AdlerSumsDoNotOverflowOnAllOnesBytes) {
    // 0xFF bytes push both sums to their largest between reductions.
    const std::vector<std::uint8_t> ones(1 << 20, 0xFF);
    EXPECT_EQ(Adler32(1, ones), adler32(1, ones.data(), static_cast<uInt>(ones.size())));
    EXPECT_EQ(Adler32(0xFFF0FFF0u, ones),
              adler32(0xFFF0FFF0u, ones.data(), static_cast<uInt>(ones.size())));
}

}  // namespace
}  // namespace iw
