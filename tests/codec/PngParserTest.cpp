// The PNG reader on hand-made streams: one per rule and per error path.

#include <gtest/gtest.h>

#include <cstdio>

#include "PngTestHelpers.h"
#include "codec/Compression.h"
#include "codec/PngCodec.h"
#include "codec/cPNGParser.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

struct LoadResult {
    bool ok = false;
    PngError error = PngError::None;
    c32bppDIB image;
};

LoadResult Load(const std::vector<std::uint8_t>& bytes,
                const DecodeLimits& limits = PictureLimits()) {
    LoadResult result;
    result.image.InitializeDIB(3, 3);  // a failed load must destroy this
    cPNGParser parser;
    std::int32_t width = -1, height = -1;
    result.ok = parser.LoadStream(bytes, 0, bytes.size(), result.image, width, height, limits);
    result.error = parser.LastError();
    if (result.ok) {
        EXPECT_EQ(width, result.image.Width());
        EXPECT_EQ(height, result.image.Height());
    } else {
        EXPECT_TRUE(result.image.Empty());
    }
    return result;
}

// A 2 x 2 RGB image: red, green / blue, white.
std::vector<std::uint8_t> RawRgb2x2() {
    return {0, 255, 0, 0, 0, 255, 0, 0, 0, 0, 255, 255, 255, 255};
}

std::vector<std::uint8_t> SmallRgb() {
    return PngBuilder().Header(2, 2, 8, 2).ImageData(RawRgb2x2()).End().Bytes();
}

// Offset of the first chunk of `type` (its length field).
std::size_t FindChunk(const std::vector<std::uint8_t>& png, const char* type) {
    for (std::size_t at = 8; at + 8 <= png.size();) {
        const std::uint32_t length =
            (png[at] << 24) | (png[at + 1] << 16) | (png[at + 2] << 8) | png[at + 3];
        if (std::equal(type, type + 4, png.begin() + static_cast<std::ptrdiff_t>(at + 4)))
            return at;
        at += 12 + length;
    }
    return std::string::npos;
}

TEST(PngParser, DecodesAPlainImageWithItsSizeAndType) {
    const auto r = Load(SmallRgb());
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(RgbaOf(r.image), (std::vector<std::uint8_t>{255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255,
                                                          255, 255, 255, 255, 255}));
    EXPECT_EQ(r.image.ImageType(), ImageFormat::Png);
    EXPECT_FALSE(r.image.Alpha());
}

TEST(PngParser, RejectsEitherHalfOfTheSignature) {
    for (std::size_t at : {0u, 3u, 4u, 7u}) {
        auto png = SmallRgb();
        png[at] ^= 0x20;
        const auto r = Load(png);
        EXPECT_FALSE(r.ok);
        EXPECT_EQ(r.error, PngError::BadSignature) << at;
    }
    EXPECT_EQ(Load({0x89, 0x50, 0x4E}).error, PngError::TooShort);
}

TEST(PngParser, ReadsAStreamFromTheMiddleOfABuffer) {
    const auto png = SmallRgb();
    std::vector<std::uint8_t> buffer(10, 0xEE);
    buffer.insert(buffer.end(), png.begin(), png.end());
    buffer.insert(buffer.end(), 7, 0xEE);
    c32bppDIB image;
    cPNGParser parser;
    std::int32_t w = 0, h = 0;
    EXPECT_TRUE(parser.LoadStream(buffer, 10, png.size(), image, w, h));
    EXPECT_EQ(w, 2);
    EXPECT_FALSE(parser.LoadStream(buffer, 10, buffer.size(), image, w, h));  // past the end
    EXPECT_FALSE(parser.LoadStream(buffer, buffer.size() + 1, 0, image, w, h));
}

TEST(PngParser, FilesOf56BytesOrLessAreNotRead) {
    TempDir dir;
    auto png = SmallRgb();
    std::vector<std::uint8_t> head(png.begin(), png.begin() + 56);
    WriteFileBytes(dir / "short.png", head);
    std::FILE* file = std::fopen((dir / "short.png").c_str(), "rb");
    ASSERT_NE(file, nullptr);
    c32bppDIB image;
    cPNGParser parser;
    std::int32_t w = 0, h = 0;
    EXPECT_FALSE(parser.LoadFile(file, image, w, h));
    EXPECT_EQ(parser.LastError(), PngError::TooShort);
    std::fclose(file);

    head.push_back(png[56]);  // 57 bytes: read, and refused for being cut off
    WriteFileBytes(dir / "short.png", head);
    file = std::fopen((dir / "short.png").c_str(), "rb");
    EXPECT_FALSE(parser.LoadFile(file, image, w, h));
    EXPECT_EQ(parser.LastError(), PngError::TruncatedChunk);
    std::fclose(file);
}

TEST(PngParser, FileAndMemoryGiveTheSamePixels) {
    TempDir dir;
    const auto png = PngBuilder()
                         .Header(2, 2, 8, 2)
                         .ImageData(RawRgb2x2(), 5)
                         .Chunk("teXt", {1, 2, 3})
                         .End()
                         .Bytes();
    WriteFileBytes(dir / "a.png", png);
    std::FILE* file = std::fopen((dir / "a.png").c_str(), "rb");
    c32bppDIB fromFile;
    cPNGParser parser;
    std::int32_t w = 0, h = 0;
    ASSERT_TRUE(parser.LoadFile(file, fromFile, w, h));
    std::fclose(file);
    EXPECT_EQ(RgbaOf(fromFile), RgbaOf(Load(png).image));
}

TEST(PngParser, RefusesChunksThatRunPastTheEnd) {
    auto png = SmallRgb();
    const std::size_t idat = FindChunk(png, "IDAT");
    // One byte longer than everything that follows its header.
    const auto tooLong = BE32(static_cast<std::uint32_t>(png.size() - idat - 12 + 1));
    std::copy(tooLong.begin(), tooLong.end(), png.begin() + static_cast<std::ptrdiff_t>(idat));
    EXPECT_EQ(Load(png).error, PngError::TruncatedChunk);
    const auto exact = BE32(static_cast<std::uint32_t>(png.size() - idat - 12));
    std::copy(exact.begin(), exact.end(), png.begin() + static_cast<std::ptrdiff_t>(idat));
    EXPECT_NE(Load(png).error, PngError::TruncatedChunk);  // ends exactly at the end: read
    png[idat] = 0x80;                                      // above 2^31 - 1
    EXPECT_EQ(Load(png).error, PngError::ChunkTooLong);
    auto cut = SmallRgb();
    cut.resize(cut.size() - 5);  // inside IEND
    EXPECT_EQ(Load(cut).error, PngError::TruncatedChunk);
}

TEST(PngParser, ChecksTheIdatCrcOnlyWithZlibLoaded) {
    auto png = SmallRgb();
    const std::size_t idat = FindChunk(png, "IDAT");
    const std::uint32_t length = png[idat + 3];
    png[idat + 8 + length] ^= 0x01;  // the stored CRC
    {
        ScopedZlibDisabled noZlib;
        const auto r = Load(png);
        ASSERT_TRUE(r.ok);
        EXPECT_EQ(RgbaOf(r.image), RgbaOf(Load(SmallRgb()).image));
    }
    if (IsZlibLoaded()) {
        EXPECT_EQ(Load(png).error, PngError::BadCrc);
    }
}

TEST(PngParser, AStoredCrcOfZeroIsNotChecked) {
    const auto stream = ZlibCompress(RawRgb2x2());
    const auto png = PngBuilder().Header(2, 2, 8, 2).ChunkWithCrc("IDAT", stream, 0).End().Bytes();
    EXPECT_TRUE(Load(png).ok);
}

TEST(PngParser, DoesNotCheckTheCrcOfOtherChunks) {
    auto png = SmallRgb();
    png[8 + 8 + 13] ^= 0xFF;  // IHDR's CRC
    EXPECT_TRUE(Load(png).ok);
}

TEST(PngParser, RefusesInvalidHeaders) {
    struct Case {
        const char* what;
        std::uint32_t width, height;
        std::uint8_t depth, type, compression, filter, interlace;
    };
    const Case cases[] = {
        {"grey depth 3", 2, 2, 3, 0, 0, 0, 0},
        {"RGB depth 4", 2, 2, 4, 2, 0, 0, 0},
        {"palette depth 16", 2, 2, 16, 3, 0, 0, 0},
        {"colour type 1", 2, 2, 8, 1, 0, 0, 0},
        {"colour type 7", 2, 2, 8, 7, 0, 0, 0},
        {"compression 1", 2, 2, 8, 2, 1, 0, 0},
        {"filter method 1", 2, 2, 8, 2, 0, 1, 0},
        {"interlace 2", 2, 2, 8, 2, 0, 0, 2},
        {"width 0", 0, 2, 8, 2, 0, 0, 0},
        {"height 0", 2, 0, 8, 2, 0, 0, 0},
        {"width 2^31", 0x80000000u, 2, 8, 2, 0, 0, 0},
    };
    for (const Case& c : cases) {
        auto header = BE32(c.width);
        const auto h = BE32(c.height);
        header.insert(header.end(), h.begin(), h.end());
        header.insert(header.end(), {c.depth, c.type, c.compression, c.filter, c.interlace});
        const auto png = PngBuilder().Chunk("IHDR", header).ImageData(RawRgb2x2()).End().Bytes();
        EXPECT_EQ(Load(png).error, PngError::BadHeader) << c.what;
    }
    auto shortHeader = PngBuilder()
                           .Chunk("IHDR", {0, 0, 0, 2, 0, 0, 0, 2, 8, 2, 0, 0})
                           .ImageData(RawRgb2x2())
                           .End();
    EXPECT_EQ(Load(shortHeader.Bytes()).error, PngError::BadHeader);
    EXPECT_EQ(
        Load(
            PngBuilder().Header(2, 2, 8, 2).Header(2, 2, 8, 2).ImageData(RawRgb2x2()).End().Bytes())
            .error,
        PngError::BadHeader);
    EXPECT_EQ(Load(PngBuilder().ImageData(RawRgb2x2()).Header(2, 2, 8, 2).End().Bytes()).error,
              PngError::MissingHeader);
    EXPECT_EQ(Load(PngBuilder().Chunk("teXt", {1}).End().Bytes()).error, PngError::MissingHeader);
}

TEST(PngParser, RefusesImagesPastTheLimitsBeforeReadingTheirData) {
    // No image data at all: the header alone decides.
    const auto huge = PngBuilder().Header(0x7FFFFFFF, 0x7FFFFFFF, 16, 6).End().Bytes();
    EXPECT_EQ(Load(huge).error, PngError::TooLarge);
    const auto wide = PngBuilder().Header(257, 1, 8, 0).End().Bytes();
    EXPECT_EQ(Load(wide, IconEntryLimits()).error, PngError::TooLarge);
    const auto tall = PngBuilder().Header(1, 257, 8, 0).End().Bytes();
    EXPECT_EQ(Load(tall, IconEntryLimits()).error, PngError::TooLarge);
    const auto big = PngBuilder().Header(20000, 20000, 8, 0).End().Bytes();
    EXPECT_EQ(Load(big).error, PngError::TooLarge);  // 400 million pixels
    std::vector<std::uint8_t> raw(257 * 2, 0);
    const auto fits = PngBuilder()
                          .Header(256, 1, 8, 0)
                          .ImageData(std::vector<std::uint8_t>(257, 0))
                          .End()
                          .Bytes();
    EXPECT_TRUE(Load(fits, IconEntryLimits()).ok);
}

TEST(PngParser, StopsADecompressionBombAtTheImageSize) {
    // 16 x 16 grey needs 272 bytes; the stream holds 50 MB of zeros.
    const auto png = PngBuilder()
                         .Header(16, 16, 8, 0)
                         .ImageData(std::vector<std::uint8_t>(50'000'000, 0))
                         .End()
                         .Bytes();
    EXPECT_LT(png.size(), 100'000u);
    EXPECT_EQ(Load(png).error, PngError::DecompressionFailed);
    ScopedZlibDisabled ownInflate;
    EXPECT_EQ(Load(png).error, PngError::DecompressionFailed);
}

TEST(PngParser, RefusesImageDataThatIsTooShort) {
    auto raw = RawRgb2x2();
    raw.pop_back();
    EXPECT_EQ(Load(PngBuilder().Header(2, 2, 8, 2).ImageData(raw).End().Bytes()).error,
              PngError::DecompressionFailed);
    EXPECT_EQ(Load(PngBuilder().Header(2, 2, 8, 2).End().Bytes()).error, PngError::NoImageData);
    EXPECT_EQ(
        Load(PngBuilder().Header(2, 2, 8, 2).Chunk("IDAT", {0x78, 0x9C, 0xFF}).End().Bytes()).error,
        PngError::DecompressionFailed);
}

TEST(PngParser, RefusesAnUnknownFilterType) {
    auto raw = RawRgb2x2();
    raw[7] = 5;  // the second row's filter type
    EXPECT_EQ(Load(PngBuilder().Header(2, 2, 8, 2).ImageData(raw).End().Bytes()).error,
              PngError::BadFilter);
}

TEST(PngParser, ManySmallIdatChunksAndChunksBetweenThemDecodeTheSame) {
    const auto one = Load(SmallRgb());
    const auto stream = ZlibCompress(RawRgb2x2());
    PngBuilder many;
    many.Header(2, 2, 8, 2);
    for (std::uint8_t byte : stream)
        many.Chunk("IDAT", {byte}).Chunk("abCd", {7, 7});
    many.Chunk("IDAT", {}).End();
    const auto split = Load(many.Bytes());
    ASSERT_TRUE(split.ok);
    EXPECT_EQ(RgbaOf(split.image), RgbaOf(one.image));
}

TEST(PngParser, StopsAtIendAndIgnoresWhatFollows) {
    auto png = SmallRgb();
    png.insert(png.end(), {1, 2, 3, 4, 5});
    EXPECT_TRUE(Load(png).ok);
    auto noEnd = SmallRgb();
    noEnd.resize(noEnd.size() - 12);  // the file ends cleanly after the last IDAT
    EXPECT_TRUE(Load(noEnd).ok);
}

std::vector<std::uint8_t> Palette3() {
    return {255, 0, 0, 0, 255, 0, 0, 0, 255};
}

TEST(PngParser, PaletteImagesHaveAlphaOnlyWithTrns) {
    const std::vector<std::uint8_t> raw{0, 0x1B};  // 2-bit indices 0, 1, 2, 3
    const auto plain = Load(
        PngBuilder().Header(4, 1, 2, 3).Chunk("PLTE", Palette3()).ImageData(raw).End().Bytes());
    ASSERT_TRUE(plain.ok);
    EXPECT_FALSE(plain.image.Alpha());
    // Index 3 is past the three entries: opaque black.
    EXPECT_EQ(RgbaOf(plain.image), (std::vector<std::uint8_t>{255, 0, 0, 255, 0, 255, 0, 255, 0, 0,
                                                              255, 255, 0, 0, 0, 255}));
    const auto withTrns = Load(PngBuilder()
                                   .Header(4, 1, 2, 3)
                                   .Chunk("PLTE", Palette3())
                                   .Chunk("tRNS", {0, 128})
                                   .ImageData(raw)
                                   .End()
                                   .Bytes());
    ASSERT_TRUE(withTrns.ok);
    EXPECT_TRUE(withTrns.image.Alpha());
    EXPECT_EQ(RgbaOf(withTrns.image), (std::vector<std::uint8_t>{255, 0, 0, 0, 0, 255, 0, 128, 0, 0,
                                                                 255, 255, 0, 0, 0, 255}));
}

TEST(PngParser, RefusesBadPalettesAndTransparency) {
    const std::vector<std::uint8_t> raw{0, 0};
    EXPECT_EQ(Load(PngBuilder().Header(4, 1, 2, 3).ImageData(raw).End().Bytes()).error,
              PngError::MissingPalette);
    EXPECT_EQ(Load(PngBuilder()
                       .Header(4, 1, 2, 3)
                       .Chunk("PLTE", {1, 2, 3, 4})
                       .ImageData(raw)
                       .End()
                       .Bytes())
                  .error,
              PngError::BadPalette);
    EXPECT_EQ(Load(PngBuilder()
                       .Header(4, 1, 2, 3)
                       .Chunk("PLTE", std::vector<std::uint8_t>(771, 0))
                       .ImageData(raw)
                       .End()
                       .Bytes())
                  .error,
              PngError::BadPalette);
    EXPECT_EQ(Load(PngBuilder()
                       .Header(4, 1, 2, 3)
                       .Chunk("PLTE", Palette3())
                       .Chunk("tRNS", {1, 2, 3, 4})
                       .ImageData(raw)
                       .End()
                       .Bytes())
                  .error,
              PngError::BadTransparency);
    EXPECT_EQ(Load(PngBuilder()
                       .Header(4, 1, 2, 3)
                       .Chunk("tRNS", {1})
                       .Chunk("PLTE", Palette3())
                       .ImageData(raw)
                       .End()
                       .Bytes())
                  .error,
              PngError::BadTransparency);
    EXPECT_EQ(Load(PngBuilder()
                       .Header(2, 2, 8, 2)
                       .Chunk("tRNS", {0, 1})
                       .ImageData(RawRgb2x2())
                       .End()
                       .Bytes())
                  .error,
              PngError::BadTransparency);
    // Grey images have no palette, RGB images only a suggested one: neither is used.
    const auto suggested = Load(PngBuilder()
                                    .Header(2, 2, 8, 2)
                                    .Chunk("PLTE", Palette3())
                                    .ImageData(RawRgb2x2())
                                    .End()
                                    .Bytes());
    EXPECT_TRUE(suggested.ok);
}

TEST(PngParser, MatchesTheGreyKeyOnTheFullSixteenBitSample) {
    // Two pixels with the same high byte; only the first equals the key.
    const std::vector<std::uint8_t> raw{0, 0x12, 0x34, 0x12, 0xFF};
    const auto r = Load(
        PngBuilder().Header(2, 1, 16, 0).Chunk("tRNS", {0x12, 0x34}).ImageData(raw).End().Bytes());
    ASSERT_TRUE(r.ok);
    EXPECT_TRUE(r.image.Alpha());
    EXPECT_EQ(RgbaOf(r.image),
              (std::vector<std::uint8_t>{0x12, 0x12, 0x12, 0, 0x12, 0x12, 0x12, 255}));
}

TEST(PngParser, ScalesSubByteGreyToTheFullRange) {
    const auto two = Load(PngBuilder().Header(4, 1, 2, 0).ImageData({0, 0x1B}).End().Bytes());
    ASSERT_TRUE(two.ok);
    const auto px = RgbaOf(two.image);
    EXPECT_EQ((std::vector<int>{px[0], px[4], px[8], px[12]}), (std::vector<int>{0, 85, 170, 255}));
    const auto one = Load(PngBuilder()
                              .Header(9, 1, 1, 0)
                              .Chunk("tRNS", {0, 1})
                              .ImageData({0, 0xAA, 0x80})
                              .End()
                              .Bytes());
    ASSERT_TRUE(one.ok);
    const auto bits = RgbaOf(one.image);
    for (int x = 0; x < 9; ++x) {
        const bool set = x % 2 == 0;  // 1010 1010 1
        EXPECT_EQ(bits[4 * x], set ? 255 : 0) << x;
        EXPECT_EQ(bits[4 * x + 3], set ? 0 : 255) << x;  // the key is 1
    }
}

// Unfiltered Adam7 data of an RGBA image, built pass by pass.
std::vector<std::uint8_t> Interlace(int width, int height, const std::vector<std::uint8_t>& rgba) {
    static const int pattern[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                      {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    std::vector<std::uint8_t> raw;
    for (const auto& p : pattern) {
        for (int y = p[1]; y < height; y += p[3]) {
            if (p[0] >= width) break;
            raw.push_back(0);
            for (int x = p[0]; x < width; x += p[2]) {
                const auto at = rgba.begin() + 4 * (y * width + x);
                raw.insert(raw.end(), at, at + 4);
            }
        }
    }
    return raw;
}

TEST(PngParser, DeinterlacesImagesSmallerThanThePattern) {
    for (int width = 1; width <= 10; ++width) {
        for (int height = 1; height <= 10; ++height) {
            const auto rgba = RandomImage(ImageKind::Rgba, width, height,
                                          static_cast<std::uint32_t>(width * 100 + height));
            const auto png = PngBuilder()
                                 .Header(width, height, 8, 6, 1)
                                 .ImageData(Interlace(width, height, rgba))
                                 .End()
                                 .Bytes();
            const auto r = Load(png);
            ASSERT_TRUE(r.ok) << width << "x" << height;
            EXPECT_EQ(RgbaOf(r.image), rgba) << width << "x" << height;
        }
    }
}

TEST(PngParser, DecodePngStreamGivesStraightTopDownRgba) {
    RgbaImage image;
    ASSERT_TRUE(DecodePngStream(SmallRgb(), image));
    EXPECT_EQ(image.width, 2);
    EXPECT_EQ(image.height, 2);
    EXPECT_EQ(image.rgba, RgbaOf(Load(SmallRgb()).image));
    EXPECT_FALSE(DecodePngStream(std::vector<std::uint8_t>{1, 2, 3}, image));
    EXPECT_EQ(image.width, 0);
    EXPECT_TRUE(image.rgba.empty());
}

}  // namespace
}  // namespace iw::test
