// The own inflate against zlib: streams that zlib writes at every level and strategy, every
// cut and every flipped byte of valid streams, and the fuzz findings.

#include <gtest/gtest.h>
#include <zlib.h>

#include <filesystem>

#include "CompressionSamples.h"
#include "codec/zlib/Deflate.h"
#include "codec/zlib/Inflate.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

std::vector<std::uint8_t> ZlibStream(const std::vector<std::uint8_t>& data, int level,
                                     int strategy = Z_DEFAULT_STRATEGY) {
    z_stream s{};
    EXPECT_EQ(deflateInit2(&s, level, Z_DEFLATED, 15, level == 1 ? 1 : 8, strategy), Z_OK);
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

// The own inflate and zlib agree on `stream`: both fail, or both give the same bytes; the
// own output never passes `limit`. Returns whether zlib took the stream.
bool ExpectAgreement(std::span<const std::uint8_t> stream, std::size_t limit) {
    std::vector<std::uint8_t> own, ref(limit);
    const InflateStatus status = InflateZlib(stream, limit, own);
    EXPECT_LE(own.size(), limit);
    uLongf size = limit;
    const bool zlibOk = uncompress(ref.data(), &size, stream.data(), stream.size()) == Z_OK;
    ref.resize(size);
    EXPECT_EQ(status == InflateStatus::Ok, zlibOk) << InflateStatusText(status);
    EXPECT_TRUE(!zlibOk || own == ref);
    return zlibOk;
}

TEST(InflateDifferential, StreamsOfEveryLevelAndStrategy) {
    using namespace test;
    const std::vector<std::uint8_t> inputs[] = {
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
    for (const auto& data : inputs) {
        for (int level = 0; level <= 9; ++level) {
            for (int strategy : {Z_DEFAULT_STRATEGY, Z_FILTERED, Z_HUFFMAN_ONLY, Z_RLE, Z_FIXED}) {
                std::vector<std::uint8_t> out;
                ASSERT_EQ(InflateZlib(ZlibStream(data, level, strategy), data.size(), out),
                          InflateStatus::Ok)
                    << "size " << data.size() << " level " << level << " strategy " << strategy;
                ASSERT_EQ(out, data);
            }
        }
    }
}

// Every cut of a few valid streams is truncated input, and every byte of them flipped (all
// bits, then one bit) gives what zlib gives.
TEST(InflateDifferential, EveryCutIsTruncatedAndEveryFlippedByteAgreesWithZlib) {
    const auto art = test::PngFiltered(test::PixelArt(32), 32, 32);
    const auto icon = test::PngFiltered(test::GradientIcon(24), 24, 24);
    const std::vector<std::uint8_t> streams[] = {ZlibStream(icon, 9), ZlibStream(art, 6, Z_RLE),
                                                 ZlibStream(icon, 1, Z_FIXED), DeflateZlib(icon),
                                                 ZlibStream(art, 0)};
    std::size_t agreedFailures = 0;
    for (const auto& stream : streams) {
        std::vector<std::uint8_t> out;
        for (std::size_t cut = 0; cut < stream.size(); ++cut) {
            ASSERT_EQ(InflateZlib(std::span(stream).first(cut), icon.size() * 2, out),
                      InflateStatus::TruncatedInput)
                << "cut at " << cut << " of " << stream.size();
        }
        for (std::size_t i = 0; i < stream.size(); ++i) {
            for (std::uint8_t mask :
                 {std::uint8_t{0xFF}, static_cast<std::uint8_t>(1u << (i % 8))}) {
                SCOPED_TRACE(testing::Message() << "byte " << i << " mask " << int{mask});
                auto mutated = stream;
                mutated[i] ^= mask;
                agreedFailures += ExpectAgreement(mutated, icon.size() * 2) ? 0 : 1;
                if (testing::Test::HasFailure()) return;
            }
        }
    }
    EXPECT_GT(agreedFailures, 1000u);  // the mutations do reach the error paths
}

// Inputs the inflate fuzz target found to break the own inflate once: the first byte
// chooses the output limit ((byte << 10) + 1), the rest is the stream.
TEST(InflateDifferential, FuzzFindingsAgreeWithZlib) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(test::TestDataPath("crashers"))) {
        if (entry.path().filename().string().rfind("inflate-", 0) != 0) continue;
        SCOPED_TRACE(entry.path().filename());
        const auto bytes = test::ReadFileBytes(entry.path());
        ASSERT_FALSE(bytes.empty());
        ExpectAgreement(std::span(bytes).subspan(1), (std::size_t{bytes[0]} << 10) + 1);
        ++files;
    }
    EXPECT_GE(files, 1);
}

}  // namespace
}  // namespace iw
