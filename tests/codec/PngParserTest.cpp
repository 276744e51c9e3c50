// The PNG reader on hand-made streams: what it accepts and decodes to, and one stream per
// refusal, with the loaded zlib and with the own inflate.

#include <gtest/gtest.h>

#include <optional>

#include "PngTestHelpers.h"
#include "codec/png/PngCodec.h"
#include "codec/png/cPNGParser.h"
#include "codec/zlib/Compression.h"
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
    EXPECT_EQ(result.ok, result.error == PngError::None);
    EXPECT_EQ(width, result.image.Width());
    EXPECT_EQ(height, result.image.Height());
    EXPECT_EQ(result.image.ImageType(), result.ok ? ImageFormat::Png : ImageFormat::None);
    EXPECT_EQ(result.image.Empty(), !result.ok);
    return result;
}

// A 2 x 2 RGB image: red, green / blue, white.
const std::vector<std::uint8_t> kRawRgb{0, 255, 0, 0, 0, 255, 0, 0, 0, 0, 255, 255, 255, 255};
const std::vector<std::uint8_t> kRgba2x2{255, 0, 0,   255, 0,   255, 0,   255,
                                         0,   0, 255, 255, 255, 255, 255, 255};
const std::vector<std::uint8_t> kPalette3{255, 0, 0, 0, 255, 0, 0, 0, 255};

using Chunks = std::initializer_list<std::pair<const char*, std::vector<std::uint8_t>>>;

// An image with `chunks` before the zlib stream of `raw` (no IDAT when it is empty).
std::vector<std::uint8_t> Png(std::uint32_t width, std::uint32_t height, std::uint8_t depth,
                              std::uint8_t type, Chunks chunks,
                              const std::vector<std::uint8_t>& raw) {
    PngBuilder b;
    b.Header(width, height, depth, type);
    for (const auto& [chunkType, data] : chunks)
        b.Chunk(chunkType, data);
    if (!raw.empty()) b.ImageData(raw);
    return b.End().Bytes();
}

std::vector<std::uint8_t> SmallRgb() {
    return Png(2, 2, 8, 2, {}, kRawRgb);
}

// SmallRgb with `bytes` written at `at`.
std::vector<std::uint8_t> Patched(std::size_t at, std::vector<std::uint8_t> bytes) {
    auto png = SmallRgb();
    std::copy(bytes.begin(), bytes.end(), png.begin() + static_cast<std::ptrdiff_t>(at));
    return png;
}

// A 4 x 1 palette image of 2-bit indices 0, 1, 2, 3.
std::vector<std::uint8_t> Palette(Chunks chunks) {
    return Png(4, 1, 2, 3, chunks, {0, 0x1B});
}

TEST(PngParser, AcceptsAndDecodes) {
    const std::size_t idatCrc = 33 + 8 + SmallRgb()[36];  // IDAT follows the 25 bytes of IHDR
    auto withTrailer = SmallRgb();
    withTrailer.insert(withTrailer.end(), {1, 2, 3, 4, 5});
    auto withoutIend = SmallRgb();
    withoutIend.resize(withoutIend.size() - 12);
    PngBuilder pieces;
    pieces.Header(2, 2, 8, 2).ImageData(kRawRgb, 1).Chunk("abCd", {7}).Chunk("IDAT", {}).End();
    std::vector<std::uint8_t> oneBitKeyed;  // 1010 1010 1, the key is 1
    for (int x = 0; x < 9; ++x) {
        const std::uint8_t v = x % 2 ? 0 : 255;
        oneBitKeyed.insert(oneBitKeyed.end(), {v, v, v, static_cast<std::uint8_t>(255 - v)});
    }
    const struct {
        const char* what;
        std::vector<std::uint8_t> png, rgba;
    } cases[] = {
        {"plain RGB", SmallRgb(), kRgba2x2},
        {"IDAT CRC stored as 0", Patched(idatCrc, {0, 0, 0, 0}), kRgba2x2},
        {"IHDR CRC wrong", Patched(29, {1, 2, 3, 4}), kRgba2x2},
        {"bytes after IEND", withTrailer, kRgba2x2},
        {"no IEND", withoutIend, kRgba2x2},
        {"IDAT in pieces between other chunks", pieces.Bytes(), kRgba2x2},
        {"suggested palette of RGB", Png(2, 2, 8, 2, {{"PLTE", kPalette3}}, kRawRgb), kRgba2x2},
        {"palette; index 3 past its end is opaque black",
         Palette({{"PLTE", kPalette3}}),
         {255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 0, 0, 0, 255}},
        {"palette with tRNS",
         Palette({{"PLTE", kPalette3}, {"tRNS", {0, 128}}}),
         {255, 0, 0, 0, 0, 255, 0, 128, 0, 0, 255, 255, 0, 0, 0, 255}},
        {"16-bit grey key on the whole sample",
         Png(2, 1, 16, 0, {{"tRNS", {0x12, 0x34}}}, {0, 0x12, 0x34, 0x12, 0xFF}),
         {0x12, 0x12, 0x12, 0, 0x12, 0x12, 0x12, 255}},
        {"2-bit grey scaled to the full range",
         Png(4, 1, 2, 0, {}, {0, 0x1B}),
         {0, 0, 0, 255, 85, 85, 85, 255, 170, 170, 170, 255, 255, 255, 255, 255}},
        {"1-bit grey with key", Png(9, 1, 1, 0, {{"tRNS", {0, 1}}}, {0, 0xAA, 0x80}), oneBitKeyed},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const auto r = Load(c.png);
        ASSERT_TRUE(r.ok) << PngErrorText(r.error);
        EXPECT_EQ(RgbaOf(r.image), c.rgba);
        bool translucent = false;
        for (std::size_t i = 3; i < c.rgba.size(); i += 4)
            translucent |= c.rgba[i] != 255;
        EXPECT_EQ(r.image.Alpha(), translucent);  // with an alpha channel or tRNS only
    }
    RgbaImage image;
    ASSERT_TRUE(DecodePngStream(SmallRgb(), image));
    EXPECT_EQ(std::tie(image.width, image.height, image.rgba), std::make_tuple(2, 2, kRgba2x2));
    EXPECT_FALSE(DecodePngStream(std::vector<std::uint8_t>{1, 2, 3}, image));
    EXPECT_TRUE(image.width == 0 && image.rgba.empty());
}

std::vector<std::uint8_t> WithHeader(std::vector<std::uint8_t> header) {
    return PngBuilder().Chunk("IHDR", header).ImageData(kRawRgb).End().Bytes();
}

// A 2 x 2 RGB image of the given chunks only.
std::vector<std::uint8_t> Rgb(Chunks chunks) {
    return Png(2, 2, 8, 2, chunks, {});
}

TEST(PngParser, RefusesWithTheRightError) {
    using E = PngError;
    auto shortData = kRawRgb, badFilter = kRawRgb;
    shortData.pop_back();
    badFilter[7] = 5;  // the second row's filter type
    const std::uint32_t idatEnd = static_cast<std::uint32_t>(SmallRgb().size()) - 33 - 12;
    auto cut = SmallRgb();
    cut.resize(cut.size() - 5);  // inside IEND
    const auto icon = IconEntryLimits();
    const struct {
        const char* what;
        std::vector<std::uint8_t> png;
        E error;
        DecodeLimits limits = PictureLimits();
    } cases[] = {
        {"3 bytes", {0x89, 0x50, 0x4E}, E::TooShort},
        {"signature byte 0", Patched(0, {0xA9}), E::BadSignature},
        {"signature byte 7", Patched(7, {0x2A}), E::BadSignature},
        {"IDAT one byte past the end", Patched(33, BE32(idatEnd + 1)), E::TruncatedChunk},
        {"chunk length 2^31", Patched(33, {0x80}), E::ChunkTooLong},
        {"cut inside IEND", cut, E::TruncatedChunk},
        {"grey depth 3", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 3, 0, 0, 0, 0}), E::BadHeader},
        {"RGB depth 4", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 4, 2, 0, 0, 0}), E::BadHeader},
        {"palette depth 16", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 16, 3, 0, 0, 0}), E::BadHeader},
        {"colour type 1", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 8, 1, 0, 0, 0}), E::BadHeader},
        {"colour type 7", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 8, 7, 0, 0, 0}), E::BadHeader},
        {"compression 1", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 8, 2, 1, 0, 0}), E::BadHeader},
        {"filter method 1", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 8, 2, 0, 1, 0}), E::BadHeader},
        {"interlace 2", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 8, 2, 0, 0, 2}), E::BadHeader},
        {"width 0", WithHeader({0, 0, 0, 0, 0, 0, 0, 2, 8, 2, 0, 0, 0}), E::BadHeader},
        {"height 0", WithHeader({0, 0, 0, 2, 0, 0, 0, 0, 8, 2, 0, 0, 0}), E::BadHeader},
        {"width 2^31", WithHeader({0x80, 0, 0, 0, 0, 0, 0, 2, 8, 2, 0, 0, 0}), E::BadHeader},
        {"IHDR of 12 bytes", WithHeader({0, 0, 0, 2, 0, 0, 0, 2, 8, 2, 0, 0}), E::BadHeader},
        {"two IHDRs", Png(2, 2, 8, 2, {{"IHDR", {0, 0, 0, 2, 0, 0, 0, 2, 8, 2, 0, 0, 0}}}, kRawRgb),
         E::BadHeader},
        {"IDAT before IHDR", PngBuilder().ImageData(kRawRgb).Header(2, 2, 8, 2).End().Bytes(),
         E::MissingHeader},
        {"no IHDR", PngBuilder().Chunk("teXt", {1}).End().Bytes(), E::MissingHeader},
        {"2^31-1 square", Png(0x7FFFFFFF, 0x7FFFFFFF, 16, 6, {}, {}), E::TooLarge},
        {"400 million pixels", Png(20000, 20000, 8, 0, {}, {}), E::TooLarge},
        {"257 wide icon", Png(257, 1, 8, 0, {}, {}), E::TooLarge, icon},
        {"257 tall icon", Png(1, 257, 8, 0, {}, {}), E::TooLarge, icon},
        {"256 wide icon", Png(256, 1, 8, 0, {}, std::vector<std::uint8_t>(257, 0)), E::None, icon},
        {"no IDAT", Rgb({}), E::NoImageData},
        {"data one byte short", Rgb({{"IDAT", ZlibCompress(shortData)}}), E::DecompressionFailed},
        {"broken stream", Rgb({{"IDAT", {0x78, 0x9C, 0xFF}}}), E::DecompressionFailed},
        // 16 x 16 grey needs 272 bytes; the stream holds 50 MB of zeros.
        {"decompression bomb", Png(16, 16, 8, 0, {}, std::vector<std::uint8_t>(50'000'000, 0)),
         E::DecompressionFailed},
        {"filter type 5", Rgb({{"IDAT", ZlibCompress(badFilter)}}), E::BadFilter},
        {"palette image without PLTE", Palette({}), E::MissingPalette},
        {"PLTE of 4 bytes", Palette({{"PLTE", {1, 2, 3, 4}}}), E::BadPalette},
        {"PLTE of 257 entries", Palette({{"PLTE", std::vector<std::uint8_t>(771, 0)}}),
         E::BadPalette},
        {"tRNS past PLTE", Palette({{"PLTE", kPalette3}, {"tRNS", {1, 2, 3, 4}}}),
         E::BadTransparency},
        {"tRNS before PLTE", Palette({{"tRNS", {1}}, {"PLTE", kPalette3}}), E::BadTransparency},
        {"RGB tRNS of 2 bytes", Png(2, 2, 8, 2, {{"tRNS", {0, 1}}}, kRawRgb), E::BadTransparency},
    };
    for (bool ownInflate : {false, true}) {
        std::optional<ScopedZlibDisabled> noZlib;
        if (ownInflate) noZlib.emplace();
        for (const auto& c : cases) {
            EXPECT_EQ(Load(c.png, c.limits).error, c.error)
                << c.what << (ownInflate ? " (own inflate)" : "");
        }
    }
}

// Unfiltered Adam7 data of an RGBA image, built pass by pass.
std::vector<std::uint8_t> Interlace(int width, int height, const std::vector<std::uint8_t>& rgba) {
    static const int pattern[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                      {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    std::vector<std::uint8_t> raw;
    for (const auto& [x0, y0, dx, dy] : pattern) {
        for (int y = y0; y < height && x0 < width; y += dy) {
            raw.push_back(0);
            for (int x = x0; x < width; x += dx)
                raw.insert(raw.end(), rgba.begin() + 4 * (y * width + x),
                           rgba.begin() + 4 * (y * width + x) + 4);
        }
    }
    return raw;
}

// Every width and height up to 10, so that passes are empty in one direction only.
TEST(PngParser, DeinterlacesImagesSmallerThanThePattern) {
    for (int width = 1; width <= 10; ++width) {
        for (int height = 1; height <= 10; ++height) {
            SCOPED_TRACE(testing::Message() << width << "x" << height);
            const auto rgba = RandomImage(ImageKind::Rgba, width, height, width * 100 + height);
            const auto r = Load(PngBuilder()
                                    .Header(width, height, 8, 6, 1)
                                    .ImageData(Interlace(width, height, rgba))
                                    .End()
                                    .Bytes());
            ASSERT_TRUE(r.ok);
            EXPECT_EQ(RgbaOf(r.image), rgba);
        }
    }
}

}  // namespace
}  // namespace iw::test
