// The reader's fast paths: Paeth reconstruction for every neighbourhood at the pixel sizes
// that have their own code, against the predictor as PNG defines it; and rows handed to a
// sink matching the image object's pixels for every colour type, depth and interlacing.

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

#include "PngTestHelpers.h"
#include "codec/png/PngCodec.h"
#include "codec/png/PngFilters.h"
#include "codec/png/PngFormat.h"
#include "codec/png/PngPixels.h"

namespace iw::png {
namespace {

// Of a, b and c the one nearest to p = a + b - c, ties going to a, then b, then c.
int ReferencePaeth(int a, int b, int c) {
    const int p = a + b - c, pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
    if (pa <= pb && pa <= pc) return a;
    return pb <= pc ? b : c;
}

// Two rows whose pixel pairs hold every (a, b, c) in one byte of a pixel: the row above
// holds c then b, the row itself a then anything. Filtered here with the reference.
TEST(PngRowDecode, PaethRowsComeBackForEveryNeighbourhood) {
    for (std::size_t stride : {1u, 3u, 4u}) {
        const std::size_t triples = 256 * 256 * 256;
        const std::size_t rowBytes = 2 * ((triples + stride - 1) / stride) * stride;
        std::vector<std::uint8_t> original(2 * rowBytes);
        for (std::size_t t = 0; t < triples; ++t) {
            const std::size_t left = 2 * (t / stride) * stride + t % stride;
            original[left] = static_cast<std::uint8_t>(t >> 16);                        // c
            original[left + stride] = static_cast<std::uint8_t>(t >> 8);                // b
            original[rowBytes + left] = static_cast<std::uint8_t>(t);                   // a
            original[rowBytes + left + stride] = static_cast<std::uint8_t>(t * 7 + 3);  // any
        }
        std::vector<std::uint8_t> filtered;
        for (std::size_t y = 0; y < 2; ++y) {
            filtered.push_back(kFilterPaeth);
            const std::uint8_t* row = original.data() + y * rowBytes;
            for (std::size_t i = 0; i < rowBytes; ++i) {
                const int a = i >= stride ? row[i - stride] : 0;
                const int b = y ? row[i - rowBytes] : 0;
                const int c = y && i >= stride ? row[i - rowBytes - stride] : 0;
                filtered.push_back(static_cast<std::uint8_t>(row[i] - ReferencePaeth(a, b, c)));
            }
        }
        ASSERT_TRUE(UnfilterRows(filtered.data(), 2, rowBytes, stride));
        for (std::size_t y = 0; y < 2; ++y) {
            const auto got = filtered.begin() + static_cast<std::ptrdiff_t>(y * (rowBytes + 1) + 1);
            const auto want = original.begin() + static_cast<std::ptrdiff_t>(y * rowBytes);
            ASSERT_TRUE(std::equal(want, want + static_cast<std::ptrdiff_t>(rowBytes), got))
                << "stride " << stride << " row " << y;
        }
    }
}

// A PNG of random samples, each row with its own filter, in the given format.
std::vector<std::uint8_t> MakePng(std::uint32_t width, std::uint32_t height, std::uint8_t colorType,
                                  std::uint8_t bitDepth, std::uint8_t interlace,
                                  std::uint32_t seed) {
    const auto layout = LayoutOf({width, height, bitDepth, colorType, 0, 0, interlace});
    std::mt19937 random(seed);
    std::vector<std::uint8_t> raw(layout->rawSize);
    for (int p = 0; p < layout->passCount; ++p) {
        const PassLayout& pass = layout->passes[static_cast<std::size_t>(p)];
        for (std::uint32_t r = 0; r < pass.rows; ++r) {
            std::uint8_t* line = raw.data() + pass.offset + r * (pass.rowBytes + 1);
            line[0] = static_cast<std::uint8_t>((r + static_cast<std::uint32_t>(p)) % kFilterCount);
            for (std::size_t i = 1; i <= pass.rowBytes; ++i)
                line[i] = static_cast<std::uint8_t>(random() % 9);  // smooth after unfiltering
        }
    }
    test::PngBuilder png;
    png.Header(width, height, bitDepth, colorType, interlace);
    if (colorType == kPalette) {
        std::vector<std::uint8_t> plte(3 * 256);
        for (auto& v : plte)
            v = static_cast<std::uint8_t>(random());
        png.Chunk("PLTE", plte).Chunk("tRNS", {0, 128, 255, 7});
    }
    return png.ImageData(raw).End().Bytes();
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

TEST(PngRowDecode, ASinkGetsTheSamePixelsAsTheImageObject) {
    const std::pair<std::uint8_t, std::uint8_t> formats[] = {
        {kRgba, 8}, {kRgba, 16}, {kRgb, 8},       {kRgb, 16},       {kGrey, 1},    {kGrey, 4},
        {kGrey, 8}, {kGrey, 16}, {kGreyAlpha, 8}, {kGreyAlpha, 16}, {kPalette, 2}, {kPalette, 8}};
    std::uint32_t seed = 1;
    for (const auto& [colorType, bitDepth] : formats) {
        for (std::uint8_t interlace : {0, 1}) {
            for (auto [w, h] : {std::pair{1u, 1u}, std::pair{47u, 33u}, std::pair{256u, 5u}}) {
                SCOPED_TRACE(::testing::Message()
                             << "type " << int(colorType) << " depth " << int(bitDepth)
                             << " interlace " << int(interlace) << " " << w << "x" << h);
                const auto png = MakePng(w, h, colorType, bitDepth, interlace, seed++);
                CollectRows sink;
                ASSERT_TRUE(DecodePngStream(png, sink, PictureLimits()));
                ASSERT_EQ(sink.begins, 1);
                auto rgba = sink.pixels;  // blue, green, red, alpha as in the image object
                for (std::size_t i = 0; i < rgba.size(); i += 4)
                    std::swap(rgba[i], rgba[i + 2]);
                EXPECT_EQ(rgba, test::RgbaOf(*test::Decode(png)));
            }
        }
    }
}

TEST(PngRowDecode, ASinkHearsNothingOfACorruptStream) {
    // An unknown filter type in the last row: found before any row goes out.
    std::vector<std::uint8_t> raw(16 * (16 * 4 + 1), 0);
    raw[15 * (16 * 4 + 1)] = 5;
    auto cut = MakePng(16, 16, kRgba, 8, 0, 99);
    cut.resize(cut.size() - 20);  // cut into the image data
    for (const auto& png :
         {test::PngBuilder().Header(16, 16, 8, kRgba).ImageData(raw).End().Bytes(), cut}) {
        CollectRows sink;
        EXPECT_FALSE(DecodePngStream(png, sink, PictureLimits()));
        EXPECT_EQ(sink.begins, 0);
    }
}

}  // namespace
}  // namespace iw::png
