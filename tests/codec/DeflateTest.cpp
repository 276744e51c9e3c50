// The own deflate: its streams inflate to the input under zlib and under the own inflate,
// its codes respect the length limits, and it compresses about as well as zlib -9.

#include <gtest/gtest.h>
#include <zlib.h>

#include "CompressionSamples.h"
#include "codec/zlib/Deflate.h"
#include "codec/zlib/DeflateHuffman.h"
#include "codec/zlib/Inflate.h"

namespace iw {
namespace {

void ExpectRoundTrip(const std::vector<std::uint8_t>& data) {
    SCOPED_TRACE(data.size());
    const auto stream = DeflateZlib(data);
    std::vector<std::uint8_t> viaZlib(data.size() + 1), viaOwn;
    uLongf size = viaZlib.size();
    ASSERT_EQ(uncompress(viaZlib.data(), &size, stream.data(), stream.size()), Z_OK);
    viaZlib.resize(size);
    EXPECT_EQ(viaZlib, data);
    ASSERT_EQ(InflateZlib(stream, data.size(), viaOwn), InflateStatus::Ok);
    EXPECT_EQ(viaOwn, data);
}

TEST(Deflate, RoundTripsThroughZlibAndTheOwnInflate) {
    using namespace test;
    for (std::size_t n : {0, 1, 2, 3, 4, 258, 259, 32768, 32769, 65535, 65536, 100000}) {
        ExpectRoundTrip(RandomBytes(n, static_cast<unsigned>(n)));
        ExpectRoundTrip(std::vector<std::uint8_t>(n, 0xAB));
    }
    // Long-distance repeats right at the window's edge.
    auto edge = RandomBytes(40000, 9);
    edge.insert(edge.end(), edge.begin(), edge.begin() + 5000);
    std::copy(edge.begin(), edge.begin() + 300, edge.begin() + 32768);
    ExpectRoundTrip(edge);
    // Text-like data with many short matches.
    std::vector<std::uint8_t> text;
    for (int i = 0; i < 20000; ++i)
        text.push_back(static_cast<std::uint8_t>("the icon and the cursor "[(i * 7) % 24]));
    ExpectRoundTrip(text);
}

TEST(Deflate, CompressesImagesWithinTwoPercentOfZlibLevel9) {
    using namespace test;
    const std::vector<std::uint8_t> images[] = {
        PngFiltered(GradientIcon(256), 256, 256), PngFiltered(PixelArt(256), 256, 256),
        PngFiltered(NoisyPhoto(256, 256), 256, 256), PngFiltered(GradientIcon(48, 5), 48, 48)};
    for (const auto& image : images) {
        ExpectRoundTrip(image);
        const std::size_t own = DeflateZlib(image).size();
        std::vector<std::uint8_t> out(compressBound(image.size()));
        uLongf zlib = out.size();
        ASSERT_EQ(compress2(out.data(), &zlib, image.data(), image.size(), 9), Z_OK);
        EXPECT_LE(own, zlib + zlib / 50) << "own " << own << " zlib " << zlib;
    }
    // Incompressible input grows by little more than stored blocks would add.
    const auto noise = RandomBytes(200000, 3);
    EXPECT_LE(DeflateZlib(noise).size(), noise.size() + 5 * (noise.size() / 16384 + 2) + 6);
}

// The lengths `BuildCodeLengths` gives: within the limit, one for every used symbol, at
// least two codes, and a complete code.
std::vector<std::uint8_t> ExpectValidLimitedCode(const std::vector<std::uint32_t>& freq,
                                                 unsigned limit) {
    std::vector<std::uint8_t> lengths(freq.size());
    deflate::BuildCodeLengths(freq, limit, lengths);
    std::uint64_t kraft = 0;
    unsigned used = 0;
    for (std::size_t s = 0; s < freq.size(); ++s) {
        EXPECT_LE(lengths[s], limit);
        EXPECT_TRUE(lengths[s] || !freq[s]) << "symbol " << s;
        kraft += lengths[s] ? std::uint64_t{1} << (limit - lengths[s]) : 0;
        used += lengths[s] ? 1 : 0;
    }
    EXPECT_GE(used, 2u);
    EXPECT_EQ(kraft, std::uint64_t{1} << limit) << "the code must be complete";
    return lengths;
}

TEST(DeflateHuffman, LengthsAreLimitedCompleteAndOptimalWhenTheLimitDoesNotBind) {
    // Fibonacci frequencies give a maximally deep tree: 30 symbols need 29 bits unlimited.
    std::vector<std::uint32_t> fib(30, 1);
    for (std::size_t i = 2; i < fib.size(); ++i)
        fib[i] = fib[i - 1] + fib[i - 2];
    ExpectValidLimitedCode(fib, 15);
    ExpectValidLimitedCode(std::vector<std::uint32_t>(fib.begin(), fib.begin() + 19), 7);
    ExpectValidLimitedCode(std::vector<std::uint32_t>(286, 5), 15);
    EXPECT_EQ(ExpectValidLimitedCode({1, 1, 2, 4}, 15), (std::vector<std::uint8_t>{3, 3, 2, 1}));
    // Fewer than two used symbols still make two codes of one bit.
    std::vector<std::uint32_t> one(30, 0);
    ExpectValidLimitedCode(one, 15);
    one[17] = 9;
    const auto lengths = ExpectValidLimitedCode(one, 15);
    EXPECT_EQ(lengths[17], 1);
}

}  // namespace
}  // namespace iw
