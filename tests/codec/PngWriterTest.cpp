// The PNG writer: every image reads back to the same pixels, in our reader and in
// libpng-based readers, and the format it picks fits the pixels.

#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <random>
#include <string>

#include "PngTestHelpers.h"
#include "codec/png/PngChunkWriter.h"
#include "codec/png/PngCodec.h"
#include "codec/zlib/Compression.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

constexpr std::pair<int, int> kSizes[] = {{1, 1}, {47, 33}, {256, 256}};

std::vector<std::uint8_t> Encode(int width, int height, const std::vector<std::uint8_t>& rgba,
                                 const PngProperties& properties = {}) {
    std::vector<std::uint8_t> png;
    EXPECT_TRUE(EncodePngStream(width, height, rgba, png, properties));
    return png;
}

struct Chunk {
    std::string type;
    std::vector<std::uint8_t> data;
};

std::vector<Chunk> ChunksOf(const std::vector<std::uint8_t>& png) {
    std::vector<Chunk> chunks;
    for (std::size_t at = 8; at + 12 <= png.size();) {
        const std::size_t length =
            (png[at] << 24) | (png[at + 1] << 16) | (png[at + 2] << 8) | png[at + 3];
        const auto begin = png.begin() + static_cast<std::ptrdiff_t>(at + 8);
        chunks.push_back(
            {std::string(begin - 4, begin),
             std::vector<std::uint8_t>(begin, begin + static_cast<std::ptrdiff_t>(length))});
        at += 12 + length;
    }
    return chunks;
}

std::pair<int, int> TypeAndDepth(const std::vector<std::uint8_t>& png) {
    return {png[25], png[24]};
}

// Every kind at every size, and transparent pixels of many colours. (The own deflate's
// streams are read back by the interop test below and the deflate tests.)
TEST(PngWriter, EveryKindOfImageReadsBackToTheSamePixels) {
    std::vector<std::uint8_t> clear;  // each transparent pixel keeps its colour
    for (int i = 0; i < 300; ++i)
        clear.insert(clear.end(),
                     {static_cast<std::uint8_t>(i), 9, static_cast<std::uint8_t>(i / 2), 0});
    EXPECT_EQ(RgbaOf(*Decode(Encode(20, 15, clear))), clear);
    for (ImageKind kind : kAllKinds) {
        for (auto [width, height] : kSizes) {
            SCOPED_TRACE(testing::Message() << KindName(kind) << " " << width << "x" << height);
            const auto rgba = RandomImage(kind, width, height, width * 7 + height);
            const auto decoded = Decode(Encode(width, height, rgba));
            ASSERT_TRUE(decoded);
            EXPECT_EQ(RgbaOf(*decoded), rgba);
        }
    }
}

std::vector<std::uint8_t> GreyLevels(std::vector<std::uint8_t> levels) {
    std::vector<std::uint8_t> rgba;
    for (int i = 0; i < 64 * 64; ++i) {
        const std::uint8_t v = levels[static_cast<std::size_t>(i * 7 / 3) % levels.size()];
        rgba.insert(rgba.end(), {v, v, v, 255});
    }
    return rgba;
}

// 64 x 64: above the size where palette and direct types are both tried.
TEST(PngWriter, ChoosesTheColourTypeAndTheSmallestExactDepth) {
    const struct {
        const char* what;
        std::vector<std::uint8_t> rgba;
        std::pair<int, int> typeAndDepth;
    } cases[] = {
        {"grey", RandomImage(ImageKind::Grey, 64, 64, 5), {0, 8}},
        {"grey+alpha", RandomImage(ImageKind::GreyAlpha, 64, 64, 5), {4, 8}},
        {"palette2", RandomImage(ImageKind::Palette2, 64, 64, 5), {3, 1}},
        {"palette4", RandomImage(ImageKind::Palette4, 64, 64, 5), {3, 2}},
        {"palette16", RandomImage(ImageKind::Palette16, 64, 64, 5), {3, 4}},
        {"palette256", RandomImage(ImageKind::Palette256, 64, 64, 5), {3, 8}},
        {"rgb", RandomImage(ImageKind::Rgb, 64, 64, 5), {2, 8}},
        {"rgba", RandomImage(ImageKind::Rgba, 64, 64, 5), {6, 8}},
        {"colour key", RandomImage(ImageKind::ColorKey, 64, 64, 5), {2, 8}},
        {"black and white", GreyLevels({0, 255}), {0, 1}},
        {"2-bit grey levels", GreyLevels({0, 85, 170, 255}), {0, 2}},
        {"4-bit grey levels", GreyLevels({0, 17, 34, 51, 238}), {0, 4}},
        // Four levels that need 4 bits as grey fit a 2-bit palette; two that 1 bit cannot
        // hold exactly, a 1-bit palette.
        {"four 4-bit levels", GreyLevels({0, 17, 34, 238}), {3, 2}},
        {"two 8-bit levels", GreyLevels({16, 224}), {3, 1}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TypeAndDepth(Encode(64, 64, c.rgba)), c.typeAndDepth) << c.what;
}

TEST(PngWriter, UsesAColourKeyOnlyWhenItIsExactAndKeepsTrnsShort) {
    auto rgba = RandomImage(ImageKind::ColorKey, 64, 64, 9);
    const auto keyed = ChunksOf(Encode(64, 64, rgba));
    ASSERT_EQ(keyed[1].type, "tRNS");
    EXPECT_EQ(keyed[1].data, (std::vector<std::uint8_t>{0, 1, 0, 2, 0, 3}));
    // An opaque pixel of the key colour: the key would hide it, so alpha is stored.
    rgba[3] = 255, rgba[2] = 3, rgba[1] = 2, rgba[0] = 1;
    const auto png = Encode(64, 64, rgba);
    EXPECT_EQ(TypeAndDepth(png).first, 6);
    EXPECT_EQ(RgbaOf(*Decode(png)), rgba);
    // Ten colours, one translucent: it comes first in PLTE, so that tRNS holds one entry.
    rgba.clear();
    for (int i = 0; i < 64 * 64; ++i) {
        rgba.insert(rgba.end(), {static_cast<std::uint8_t>(i % 10 * 20), 0, 0,
                                 static_cast<std::uint8_t>(i % 10 == 7 ? 100 : 255)});
    }
    const auto chunks = ChunksOf(Encode(64, 64, rgba));
    ASSERT_EQ(chunks[1].type + chunks[2].type, "PLTEtRNS");
    EXPECT_EQ(chunks[1].data.size(), 30u);
    EXPECT_EQ(chunks[2].data, std::vector<std::uint8_t>{100});
}

TEST(PngWriter, SmallImagesKeepTheSmallerOfPaletteAndDirectTypes) {
    // Three colours in random order at 16 x 16: the palette costs a PLTE chunk but saves
    // 22 bits a pixel.
    std::mt19937 random(4);
    std::vector<std::uint8_t> rgba;
    for (int i = 0; i < 256; ++i)
        rgba.insert(rgba.end(), {static_cast<std::uint8_t>(random() % 3 * 100), 50, 60, 255});
    EXPECT_EQ(TypeAndDepth(Encode(16, 16, rgba)).first, 3);
    // One pixel: the whole direct stream is smaller than PLTE alone.
    EXPECT_EQ(TypeAndDepth(Encode(1, 1, {10, 20, 30, 255})).first, 2);
}

TEST(PngWriter, SplitsLargeImageDataIntoSeveralIdatChunks) {
    int idats = 0;
    for (const Chunk& chunk :
         ChunksOf(Encode(256, 256, RandomImage(ImageKind::Rgba, 256, 256, 3)))) {
        idats += chunk.type == "IDAT" ? 1 : 0;
        EXPECT_LE(chunk.data.size(), 65536u);
    }
    EXPECT_GE(idats, 2);
    std::vector<std::uint8_t> png;
    EXPECT_FALSE(EncodePngStream(2, 2, std::vector<std::uint8_t>(15), png));
    EXPECT_FALSE(EncodePngStream(0, 2, {}, png));
    EXPECT_TRUE(png.empty());
}

TEST(PngWriter, WritesTextAndTimeChunksForTheProperties) {
    PngProperties properties;
    ASSERT_TRUE(properties.Set(pngTitle, "An icon"));
    ASSERT_TRUE(properties.Set(pngSource, "caf\xC3\xA9 \xE6\x97\xA5"));
    const std::string longText(2000, 'x');
    ASSERT_TRUE(properties.Set(pngComment, longText));
    ASSERT_TRUE(properties.Set(pngLastModified, PngTime{2024, 2, 29, 23, 59, 60}));
    const auto chunks = ChunksOf(Encode(2, 2, RandomImage(ImageKind::Rgb, 2, 2, 1), properties));
    std::string order;
    for (const Chunk& c : chunks)
        order += c.type + " ";
    EXPECT_EQ(order, "IHDR IDAT tEXt tEXt zTXt tIME IEND ");
    auto text = [](const Chunk& c) { return std::string(c.data.begin(), c.data.end()); };
    EXPECT_EQ(text(chunks[2]), std::string("Title\0An icon", 13));
    EXPECT_EQ(text(chunks[3]), std::string("Source\0caf\xE9 ?", 13));
    ASSERT_EQ(text(chunks[4]).substr(0, 9), std::string("Comment\0\0", 9));
    std::vector<std::uint8_t> inflated;
    ASSERT_EQ(ZlibDecompress(std::span(chunks[4].data).subspan(9), 4000, inflated),
              InflateStatus::Ok);
    EXPECT_EQ(std::string(inflated.begin(), inflated.end()), longText);
    EXPECT_EQ(chunks[5].data, (std::vector<std::uint8_t>{0x07, 0xE8, 2, 29, 23, 59, 60}));
    // Latin-1 text: U+00FF fits, U+0100 does not; NULs go; cut and 4-byte sequences are one
    // question mark a character.
    EXPECT_EQ(png::ToLatin1("\xC3\xBF\xC4\x80"), "\xFF?");
    EXPECT_EQ(png::ToLatin1(std::string("a\0b", 3)), "ab");
    EXPECT_EQ(png::ToLatin1("\xE2\x82 \xF0\x9F\x98\x80!"), "?? ?!");
}

// --- libpng-based readers ----------------------------------------------------------------

std::optional<std::vector<std::uint8_t>> RunCapture(const std::string& command) {
    std::FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return std::nullopt;
    std::vector<std::uint8_t> out;
    std::uint8_t buffer[65536];
    for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        out.insert(out.end(), buffer, buffer + got);
    if (pclose(pipe) != 0) return std::nullopt;
    return out;
}

class PngWriterInterop : public testing::TestWithParam<bool> {};

TEST_P(PngWriterInterop, PillowAndImageMagickReadTheSamePixels) {
    ASSERT_TRUE(std::filesystem::exists("/usr/bin/convert") &&
                RunCapture("/usr/bin/python3 -c 'import PIL' 2>/dev/null"))
        << "Pillow and ImageMagick are the references";
    std::optional<ScopedZlibDisabled> noZlib;
    if (GetParam()) noZlib.emplace();
    TempDir dir;
    for (ImageKind kind : kAllKinds) {
        for (auto [width, height] : kSizes) {
            if (GetParam() && width == 256) continue;
            SCOPED_TRACE(testing::Message() << KindName(kind) << " " << width);
            const auto rgba = RandomImage(kind, width, height, 11);
            const std::string file = (dir / "a.png").string();
            WriteFileBytes(file, Encode(width, height, rgba));
            EXPECT_EQ(RunCapture("/usr/bin/python3 -c \"import sys; from PIL import Image; "
                                 "sys.stdout.buffer.write(Image.open(sys.argv[1]).convert('RGBA')"
                                 ".tobytes())\" '" +
                                 file + "' 2>/dev/null"),
                      rgba)
                << "Pillow";
            EXPECT_EQ(RunCapture("/usr/bin/convert '" + file + "' -depth 8 RGBA:- 2>/dev/null"),
                      rgba)
                << "ImageMagick";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutZlib, PngWriterInterop, testing::Bool(),
                         [](const auto& param) { return param.param ? "OwnDeflate" : "Zlib"; });

}  // namespace
}  // namespace iw::test
