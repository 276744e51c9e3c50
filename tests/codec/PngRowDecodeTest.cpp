// The reader's fast paths: Paeth reconstruction for every neighbourhood at the pixel sizes
// that have their own code, and rows handed to a sink matching the image object's pixels
// for every colour type, depth and interlacing.

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "codec/png/PngChunkWriter.h"
#include "codec/png/PngCodec.h"
#include "codec/png/PngFilters.h"
#include "codec/png/PngFormat.h"
#include "codec/png/PngPixels.h"
#include "codec/png/c32bppDIB.h"
#include "codec/zlib/Compression.h"

namespace iw::png {
namespace {

// Two rows whose pixel pairs hold every (a, b, c) in one byte of a pixel: the row above
// holds c then b, the row itself a then anything.
TEST(PngRowDecode, PaethRowsComeBackForEveryNeighbourhood) {
    for (std::size_t stride : {1u, 3u, 4u}) {
        const std::size_t triples = 256 * 256 * 256;
        const std::size_t pairs = (triples + stride - 1) / stride;
        const std::size_t rowBytes = 2 * pairs * stride;
        std::vector<std::uint8_t> original(2 * rowBytes);
        for (std::size_t t = 0; t < triples; ++t) {
            const std::size_t pair = t / stride;
            const std::size_t lane = t % stride;
            const std::size_t left = 2 * pair * stride + lane;
            const std::size_t right = left + stride;
            original[left] = static_cast<std::uint8_t>(t >> 16);                // c
            original[right] = static_cast<std::uint8_t>(t >> 8);                // b
            original[rowBytes + left] = static_cast<std::uint8_t>(t);           // a
            original[rowBytes + right] = static_cast<std::uint8_t>(t * 7 + 3);  // anything
        }
        std::vector<std::uint8_t> filtered(2 * (rowBytes + 1));
        const std::vector<std::uint8_t> zeros(rowBytes, 0);
        for (std::size_t y = 0; y < 2; ++y) {
            filtered[y * (rowBytes + 1)] = kFilterPaeth;
            FilterRow(kFilterPaeth, original.data() + y * rowBytes,
                      y == 0 ? zeros.data() : original.data(), rowBytes, stride,
                      filtered.data() + y * (rowBytes + 1) + 1);
        }
        ASSERT_TRUE(UnfilterRows(filtered.data(), 2, rowBytes, stride));
        for (std::size_t y = 0; y < 2; ++y) {
            ASSERT_TRUE(
                std::equal(original.begin() + static_cast<std::ptrdiff_t>(y * rowBytes),
                           original.begin() + static_cast<std::ptrdiff_t>((y + 1) * rowBytes),
                           filtered.begin() + static_cast<std::ptrdiff_t>(y * (rowBytes + 1) + 1)))
                << "stride " << stride << " row " << y;
        }
    }
}

TEST(PngRowDecode, SubAverageAndUpRowsComeBackAtWholePixelSizes) {
    std::mt19937 random(7);
    for (std::size_t stride : {3u, 4u}) {
        const std::size_t rowBytes = stride * 333;
        const std::size_t rows = 16;
        std::vector<std::uint8_t> original(rows * rowBytes);
        for (auto& v : original)
            v = static_cast<std::uint8_t>(random());
        std::vector<std::uint8_t> filtered(rows * (rowBytes + 1));
        const std::vector<std::uint8_t> zeros(rowBytes, 0);
        for (std::size_t y = 0; y < rows; ++y) {
            const auto type = static_cast<std::uint8_t>(y % kFilterCount);
            filtered[y * (rowBytes + 1)] = type;
            FilterRow(type, original.data() + y * rowBytes,
                      y == 0 ? zeros.data() : original.data() + (y - 1) * rowBytes, rowBytes,
                      stride, filtered.data() + y * (rowBytes + 1) + 1);
        }
        ASSERT_TRUE(UnfilterRows(filtered.data(), rows, rowBytes, stride));
        for (std::size_t y = 0; y < rows; ++y) {
            EXPECT_TRUE(
                std::equal(original.begin() + static_cast<std::ptrdiff_t>(y * rowBytes),
                           original.begin() + static_cast<std::ptrdiff_t>((y + 1) * rowBytes),
                           filtered.begin() + static_cast<std::ptrdiff_t>(y * (rowBytes + 1) + 1)))
                << "stride " << stride << " row " << y;
        }
    }
}

// A PNG of random samples, each row with its own filter, in the given format.
std::vector<std::uint8_t> MakePng(std::uint32_t width, std::uint32_t height, std::uint8_t colorType,
                                  std::uint8_t bitDepth, std::uint8_t interlace,
                                  std::uint32_t seed) {
    Header header{width, height, bitDepth, colorType, 0, 0, interlace};
    const auto layout = LayoutOf(header);
    std::mt19937 random(seed);
    std::vector<std::uint8_t> raw(layout->rawSize);
    for (int p = 0; p < layout->passCount; ++p) {
        const PassLayout& pass = layout->passes[static_cast<std::size_t>(p)];
        for (std::uint32_t r = 0; r < pass.rows; ++r) {
            std::uint8_t* line = raw.data() + pass.offset + r * (pass.rowBytes + 1);
            line[0] = static_cast<std::uint8_t>((r + static_cast<std::uint32_t>(p)) % kFilterCount);
            for (std::size_t i = 1; i <= pass.rowBytes; ++i)
                line[i] =
                    static_cast<std::uint8_t>(random() % 9);  // small: smooth after unfiltering
        }
    }
    std::vector<std::uint8_t> png(kSignature.begin(), kSignature.end());
    std::uint8_t ihdr[kHeaderLength] = {static_cast<std::uint8_t>(width >> 24),
                                        static_cast<std::uint8_t>(width >> 16),
                                        static_cast<std::uint8_t>(width >> 8),
                                        static_cast<std::uint8_t>(width),
                                        static_cast<std::uint8_t>(height >> 24),
                                        static_cast<std::uint8_t>(height >> 16),
                                        static_cast<std::uint8_t>(height >> 8),
                                        static_cast<std::uint8_t>(height),
                                        bitDepth,
                                        colorType,
                                        0,
                                        0,
                                        interlace};
    AppendChunk(png, kIHDR, ihdr);
    if (colorType == kPalette) {
        std::vector<std::uint8_t> plte(3 * 256);
        for (auto& v : plte)
            v = static_cast<std::uint8_t>(random());
        AppendChunk(png, kPLTE, plte);
        const std::vector<std::uint8_t> trns{0, 128, 255, 7};
        AppendChunk(png, kTRNS, trns);
    }
    AppendChunk(png, kIDAT, ZlibCompress(raw));
    AppendChunk(png, kIEND, {});
    return png;
}

class CollectRows final : public RowSink {
  public:
    bool Begin(std::uint32_t width, std::uint32_t height) override {
        width_ = width;
        pixels.assign(std::size_t{width} * height * 4, 0);
        scratch_[0].assign(std::size_t{width} * 4, 0xEE);
        scratch_[1].assign(std::size_t{width} * 4, 0xEE);
        ++begins;
        return true;
    }
    std::uint8_t* Row(std::uint32_t y) override { return scratch_[y & 1].data(); }
    void RowDone(std::uint32_t y) override {
        std::copy(scratch_[y & 1].begin(), scratch_[y & 1].end(),
                  pixels.begin() + static_cast<std::ptrdiff_t>(std::size_t{y} * width_ * 4));
    }
    std::vector<std::uint8_t> pixels;
    int begins = 0;

  private:
    std::uint32_t width_ = 0;
    std::vector<std::uint8_t> scratch_[2];
};

void ExpectSinkMatchesImage(const std::vector<std::uint8_t>& png) {
    c32bppDIB dib;
    ASSERT_TRUE(DecodePngStream(png, dib, PictureLimits()));
    CollectRows sink;
    ASSERT_TRUE(DecodePngStream(png, sink, PictureLimits()));
    ASSERT_EQ(sink.begins, 1);
    for (std::int32_t y = 0; y < dib.Height(); ++y) {
        const std::uint8_t* expected = dib.TopDownRow(y);
        const std::uint8_t* got =
            sink.pixels.data() + std::size_t(y) * std::size_t(dib.Width()) * 4;
        ASSERT_TRUE(std::equal(expected, expected + dib.Width() * 4, got)) << "row " << y;
    }
}

TEST(PngRowDecode, ASinkGetsTheSamePixelsAsTheImageObject) {
    struct Format {
        std::uint8_t colorType, bitDepth;
    };
    const Format formats[] = {{kRgba, 8},      {kRgba, 16},      {kRgb, 8},     {kRgb, 16},
                              {kGrey, 1},      {kGrey, 4},       {kGrey, 8},    {kGrey, 16},
                              {kGreyAlpha, 8}, {kGreyAlpha, 16}, {kPalette, 2}, {kPalette, 8}};
    std::uint32_t seed = 1;
    for (const Format& f : formats) {
        for (std::uint8_t interlace : {0, 1}) {
            for (auto [w, h] : {std::pair{1u, 1u}, std::pair{47u, 33u}, std::pair{256u, 5u}}) {
                SCOPED_TRACE(::testing::Message()
                             << "type " << int(f.colorType) << " depth " << int(f.bitDepth)
                             << " interlace " << int(interlace) << " " << w << "x" << h);
                ExpectSinkMatchesImage(MakePng(w, h, f.colorType, f.bitDepth, interlace, seed++));
            }
        }
    }
}

TEST(PngRowDecode, ASinkHearsNothingOfACorruptStream) {
    auto png = MakePng(16, 16, kRgba, 8, 0, 99);
    // An unknown filter type in the last row: found before any row goes out.
    std::vector<std::uint8_t> raw(16 * (16 * 4 + 1), 0);
    raw[15 * (16 * 4 + 1)] = 5;
    std::vector<std::uint8_t> bad(kSignature.begin(), kSignature.end());
    const std::uint8_t ihdr[kHeaderLength] = {0, 0, 0, 16, 0, 0, 0, 16, 8, kRgba, 0, 0, 0};
    AppendChunk(bad, kIHDR, ihdr);
    AppendChunk(bad, kIDAT, ZlibCompress(raw));
    AppendChunk(bad, kIEND, {});
    CollectRows sink;
    EXPECT_FALSE(DecodePngStream(bad, sink, PictureLimits()));
    EXPECT_EQ(sink.begins, 0);
    png.resize(png.size() - 20);  // cut into the image data
    EXPECT_FALSE(DecodePngStream(png, sink, PictureLimits()));
    EXPECT_EQ(sink.begins, 0);
}

TEST(PngRowDecode, BothInflatesGiveTheSameRows) {
    const auto png = MakePng(64, 40, kRgba, 8, 0, 5);
    CollectRows withZlib;
    ASSERT_TRUE(DecodePngStream(png, withZlib, PictureLimits()));
    ScopedZlibDisabled noZlib;
    CollectRows own;
    ASSERT_TRUE(DecodePngStream(png, own, PictureLimits()));
    EXPECT_EQ(withZlib.pixels, own.pixels);
}

}  // namespace
}  // namespace iw::png
