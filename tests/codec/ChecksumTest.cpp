// CRC-32 and Adler-32 against zlib.

#include <gtest/gtest.h>
#include <zlib.h>

#include "CompressionSamples.h"
#include "codec/zlib/Checksums.h"

namespace iw {
namespace {

using test::AsBytes;

// Every length around the block sizes, split anywhere; and 0xFF bytes, which push both
// Adler sums to their largest between reductions.
TEST(Checksums, AgreeWithZlibOnEveryLengthAndSplit) {
    const auto random = test::RandomBytes(200000, 7);
    const std::vector<std::uint8_t> ones(1 << 20, 0xFF);
    for (std::size_t n : {0, 1, 7, 8, 9, 31, 32, 33, 5551, 5552, 5553, 5600, 65536, 200000}) {
        for (const auto* data : {&random, &ones}) {
            SCOPED_TRACE(testing::Message() << n << (data == &ones ? " of 0xFF" : " random"));
            const auto part = std::span(*data).first(n);
            const auto size = static_cast<uInt>(n);
            EXPECT_EQ(Crc32(0, part), crc32(0, part.data(), size));
            EXPECT_EQ(Adler32(1, part), adler32(1, part.data(), size));
            EXPECT_EQ(Adler32(0xFFF0FFF0u, part), adler32(0xFFF0FFF0u, part.data(), size));
            const std::size_t split = n * 3 / 7;
            EXPECT_EQ(Crc32(Crc32(0, part.first(split)), part.subspan(split)), Crc32(0, part));
            EXPECT_EQ(Adler32(Adler32(1, part.first(split)), part.subspan(split)),
                      Adler32(1, part));
        }
    }
    EXPECT_EQ(Adler32(1, ones), adler32(1, ones.data(), static_cast<uInt>(ones.size())));
}

}  // namespace
}  // namespace iw
