// The own inflate against zlib: streams that zlib writes at every level and strategy,
// every cut of valid streams, and every byte of valid streams flipped.

#include <gtest/gtest.h>
#include <zlib.h>

#include "CompressionSamples.h"
#include "codec/Deflate.h"
#include "codec/Inflate.h"

namespace iw {
namespace {

std::vector<std::uint8_t> ZlibStream(const std::vector<std::uint8_t>& data, int level, int strategy,
                                     int memLevel = 8) {
    z_stream s{};
    EXPECT_EQ(deflateInit2(&s, level, Z_DEFLATED, 15, memLevel, strategy), Z_OK);
    std::vector<std::uint8_t> out(deflateBound(&s, data.size()));
    s.next_in = const_cast<Bytef*>(data.data());
    s.avail_in = static_cast<uInt>(data.size());
    s.next_out = out.data();
    s.avail_out = static_cast<uInt>(out.size());
    EXPECT_EQ(deflate(&s, Z_FINISH), Z_STREAM_END);
    out.resize(s.total_out);
    deflateEnd(&s);
    return out;
}

// zlib's verdict on a stream: true with `out` when it inflates within `limit`.
bool ZlibInflates(std::span<const std::uint8_t> stream, std::size_t limit,
                  std::vector<std::uint8_t>& out) {
    out.resize(limit);
    uLongf size = limit;
    const int result = uncompress(out.data(), &size, stream.data(), stream.size());
    out.resize(size);
    return result == Z_OK;
}

std::vector<std::vector<std::uint8_t>> Inputs() {
    using namespace test;
    return {
        {},
        {42},
        RandomBytes(1000, 1),
        RandomBytes(70000, 2),
        std::vector<std::uint8_t>(100000, 0),
        PngFiltered(GradientIcon(64), 64, 64),
        PngFiltered(PixelArt(128), 128, 128),
        PngFiltered(NoisyPhoto(96, 96), 96, 96),
        GradientIcon(48),
    };
}

TEST(InflateDifferential, StreamsOfEveryLevelAndStrategy) {
    const int strategies[] = {Z_DEFAULT_STRATEGY, Z_FILTERED, Z_HUFFMAN_ONLY, Z_RLE, Z_FIXED};
    for (const auto& data : Inputs()) {
        for (int level = 0; level <= 9; ++level) {
            for (int strategy : strategies) {
                const auto stream = ZlibStream(data, level, strategy, level == 1 ? 1 : 8);
                std::vector<std::uint8_t> out;
                ASSERT_EQ(InflateZlib(stream, data.size(), out), InflateStatus::Ok)
                    << "size " << data.size() << " level " << level << " strategy " << strategy;
                ASSERT_EQ(out, data);
            }
        }
    }
}

TEST(InflateDifferential, EveryCutOfAValidStreamIsAnError) {
    const auto data = test::PngFiltered(test::GradientIcon(40), 40, 40);
    for (const auto& stream :
         {ZlibStream(data, 6, Z_DEFAULT_STRATEGY), ZlibStream(data, 0, Z_DEFAULT_STRATEGY),
          ZlibStream(data, 9, Z_FIXED)}) {
        std::vector<std::uint8_t> out;
        ASSERT_EQ(InflateZlib(stream, data.size(), out), InflateStatus::Ok);
        for (std::size_t cut = 0; cut < stream.size(); ++cut) {
            const InflateStatus status =
                InflateZlib(std::span(stream).first(cut), data.size(), out);
            ASSERT_EQ(status, InflateStatus::TruncatedInput)
                << "cut at " << cut << " of " << stream.size();
            ASSERT_LE(out.size(), data.size());
        }
    }
}

// Flips every byte of a few valid streams (each bit pattern inverted, then one bit) and
// requires the own inflate to agree with zlib: both fail, or both give the same bytes.
TEST(InflateDifferential, EveryFlippedByteAgreesWithZlib) {
    const auto art = test::PngFiltered(test::PixelArt(32), 32, 32);
    const auto icon = test::PngFiltered(test::GradientIcon(24), 24, 24);
    const std::vector<std::vector<std::uint8_t>> streams = {
        ZlibStream(icon, 9, Z_DEFAULT_STRATEGY), ZlibStream(art, 6, Z_RLE),
        ZlibStream(icon, 1, Z_FIXED), DeflateZlib(icon), ZlibStream(art, 0, Z_DEFAULT_STRATEGY)};
    const std::size_t limit = icon.size() * 2;
    std::size_t agreedFailures = 0;
    for (const auto& stream : streams) {
        for (std::size_t i = 0; i < stream.size(); ++i) {
            for (std::uint8_t mask :
                 {std::uint8_t{0xFF}, static_cast<std::uint8_t>(1u << (i % 8))}) {
                auto mutated = stream;
                mutated[i] ^= mask;
                std::vector<std::uint8_t> own, ref;
                const InflateStatus status = InflateZlib(mutated, limit, own);
                ASSERT_LE(own.size(), limit);
                const bool zlibOk = ZlibInflates(mutated, limit, ref);
                ASSERT_EQ(status == InflateStatus::Ok, zlibOk)
                    << "byte " << i << " mask " << int{mask} << ": " << InflateStatusText(status);
                if (zlibOk) {
                    ASSERT_EQ(own, ref);
                }
                agreedFailures += zlibOk ? 0 : 1;
            }
        }
    }
    EXPECT_GT(agreedFailures, 1000u);  // the mutations do reach the error paths
}

}  // namespace
}  // namespace iw
