// The own deflate: its streams inflate to the input under zlib and under the own inflate,
// its codes respect the length limits, and it compresses about as well as zlib -9.

#include <gtest/gtest.h>
#include <zlib.h>

#include <numeric>

#include "CompressionSamples.h"
#include "codec/Deflate.h"
#include "codec/DeflateHuffman.h"
#include "codec/Inflate.h"

namespace iw {
namespace {

std::size_t ZlibLevel9Size(const std::vector<std::uint8_t>& data) {
    std::vector<std::uint8_t> out(compressBound(data.size()));
    uLongf size = out.size();
    EXPECT_EQ(compress2(out.data(), &size, data.data(), data.size(), 9), Z_OK);
    return size;
}

void ExpectRoundTrip(const std::vector<std::uint8_t>& data) {
    const auto stream = DeflateZlib(data);
    std::vector<std::uint8_t> viaZlib(data.size() + 1);
    uLongf size = viaZlib.size();
    ASSERT_EQ(uncompress(viaZlib.data(), &size, stream.data(), stream.size()), Z_OK) << data.size();
    viaZlib.resize(size);
    EXPECT_EQ(viaZlib, data);
    std::vector<std::uint8_t> viaOwn;
    ASSERT_EQ(InflateZlib(stream, data.size(), viaOwn), InflateStatus::Ok);
    EXPECT_EQ(viaOwn, data);
}

TEST(Deflate, RoundTripsThroughZlibAndTheOwnInflate) {
    using namespace test;
    for (std::size_t n : {0, 1, 2, 3, 4, 258, 259, 32768, 32769, 65535, 65536, 100000}) {
        ExpectRoundTrip(RandomBytes(n, static_cast<unsigned>(n)));
        ExpectRoundTrip(std::vector<std::uint8_t>(n, 0xAB));
    }
    ExpectRoundTrip(PngFiltered(GradientIcon(256), 256, 256));
    ExpectRoundTrip(PngFiltered(PixelArt(256), 256, 256));
    ExpectRoundTrip(PngFiltered(NoisyPhoto(256, 256), 256, 256));
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

TEST(Deflate, IncompressibleInputGrowsByLittleMoreThanStoredBlocks) {
    const auto data = test::RandomBytes(200000, 3);
    const auto stream = DeflateZlib(data);
    EXPECT_LE(stream.size(), data.size() + 5 * (data.size() / 16384 + 2) + 6);
}

TEST(Deflate, CompressesImagesWithinTwoPercentOfZlibLevel9) {
    using namespace test;
    const std::vector<std::vector<std::uint8_t>> images = {
        PngFiltered(GradientIcon(256), 256, 256), PngFiltered(PixelArt(256), 256, 256),
        PngFiltered(NoisyPhoto(256, 256), 256, 256), PngFiltered(GradientIcon(48, 5), 48, 48)};
    for (const auto& image : images) {
        const std::size_t own = DeflateZlib(image).size();
        const std::size_t zlib = ZlibLevel9Size(image);
        EXPECT_LE(own, zlib + zlib / 50) << "own " << own << " zlib " << zlib;
    }
}

void ExpectValidLimitedCode(const std::vector<std::uint32_t>& freq, unsigned limit) {
    std::vector<std::uint8_t> lengths(freq.size());
    deflate::BuildCodeLengths(freq, limit, lengths);
    std::uint64_t kraft = 0;
    unsigned used = 0;
    for (std::size_t s = 0; s < freq.size(); ++s) {
        EXPECT_LE(lengths[s], limit);
        if (freq[s]) {
            EXPECT_GT(lengths[s], 0) << "symbol " << s;
        }
        if (lengths[s]) {
            kraft += std::uint64_t{1} << (limit - lengths[s]);
            ++used;
        }
    }
    EXPECT_GE(used, 2u);
    EXPECT_EQ(kraft, std::uint64_t{1} << limit) << "the code must be complete";
}

TEST(DeflateHuffman, LengthsAreLimitedAndComplete) {
    // Fibonacci frequencies give a maximally deep tree: 30 symbols need 29 bits unlimited.
    std::vector<std::uint32_t> fib(30);
    fib[0] = fib[1] = 1;
    for (std::size_t i = 2; i < fib.size(); ++i)
        fib[i] = fib[i - 1] + fib[i - 2];
    ExpectValidLimitedCode(fib, 15);
    ExpectValidLimitedCode(std::vector<std::uint32_t>(fib.begin(), fib.begin() + 19), 7);
    std::vector<std::uint32_t> flat(286, 5);
    ExpectValidLimitedCode(flat, 15);
}

TEST(DeflateHuffman, OptimalLengthsWhenTheLimitDoesNotBind) {
    std::vector<std::uint8_t> lengths(4);
    deflate::BuildCodeLengths(std::vector<std::uint32_t>{1, 1, 2, 4}, 15, lengths);
    EXPECT_EQ(lengths, (std::vector<std::uint8_t>{3, 3, 2, 1}));
}

TEST(DeflateHuffman, FewerThanTwoUsedSymbolsStillMakeTwoCodes) {
    std::vector<std::uint8_t> lengths(30);
    deflate::BuildCodeLengths(std::vector<std::uint32_t>(30, 0), 15, lengths);
    EXPECT_EQ(std::accumulate(lengths.begin(), lengths.end(), 0), 2);
    std::vector<std::uint32_t> one(30, 0);
    one[17] = 9;
    deflate::BuildCodeLengths(one, 15, lengths);
    EXPECT_EQ(lengths[17], 1);
    EXPECT_EQ(lengths[0], 1);
}

TEST(DeflateHuffman, CanonicalCodesFollowRfc1951Example) {
    // RFC 1951 3.2.2: lengths (3, 3, 3, 3, 3, 2, 4, 4) give F=00, A=010 ... H=1111.
    const std::vector<std::uint8_t> lengths = {3, 3, 3, 3, 3, 2, 4, 4};
    std::vector<std::uint16_t> codes(8);
    deflate::BuildCanonicalCodes(lengths, codes);
    auto reversed = [](unsigned code, unsigned len) {
        unsigned r = 0;
        for (unsigned i = 0; i < len; ++i, code >>= 1)
            r = (r << 1) | (code & 1);
        return r;
    };
    const unsigned expected[8] = {0b010, 0b011, 0b100, 0b101, 0b110, 0b00, 0b1110, 0b1111};
    for (std::size_t s = 0; s < 8; ++s)
        EXPECT_EQ(reversed(codes[s], lengths[s]), expected[s]) << s;
}

}  // namespace
}  // namespace iw
