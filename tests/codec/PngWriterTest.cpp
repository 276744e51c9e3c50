// The PNG writer: every image reads back to the same pixels, in our reader and in
// libpng-based readers, and the format it picks fits the pixels.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "PngTestHelpers.h"
#include "codec/Compression.h"
#include "codec/PngChunkWriter.h"
#include "codec/PngCodec.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

constexpr ImageKind kAllKinds[] = {ImageKind::Grey,     ImageKind::GreyAlpha, ImageKind::Palette2,
                                   ImageKind::Palette4, ImageKind::Palette16, ImageKind::Palette256,
                                   ImageKind::Rgb,      ImageKind::Rgba,      ImageKind::ColorKey};
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
            {std::string(png.begin() + static_cast<std::ptrdiff_t>(at + 4), begin),
             std::vector<std::uint8_t>(begin, begin + static_cast<std::ptrdiff_t>(length))});
        at += 12 + length;
    }
    return chunks;
}

std::pair<int, int> TypeAndDepth(const std::vector<std::uint8_t>& png) {
    return {png[25], png[24]};
}

void ExpectRoundTrip(ImageKind kind, int width, int height) {
    const auto rgba =
        RandomImage(kind, width, height, static_cast<std::uint32_t>(width * 7 + height));
    const auto png = Encode(width, height, rgba);
    const auto decoded = Decode(png);
    ASSERT_TRUE(decoded) << KindName(kind) << " " << width << "x" << height;
    EXPECT_EQ(RgbaOf(*decoded), rgba) << KindName(kind) << " " << width << "x" << height;
}

TEST(PngWriter, EveryKindOfImageReadsBackToTheSamePixels) {
    for (ImageKind kind : kAllKinds) {
        for (auto [width, height] : kSizes)
            ExpectRoundTrip(kind, width, height);
    }
}

TEST(PngWriter, RoundTripsWithTheOwnDeflateToo) {
    ScopedZlibDisabled ownDeflate;
    for (ImageKind kind : kAllKinds)
        ExpectRoundTrip(kind, 47, 33);
}

TEST(PngWriter, ChoosesTheColourTypeFromThePixels) {
    struct Case {
        ImageKind kind;
        int type, depth;
    };
    // 64 x 64: above the size where palette and direct types are both tried.
    const Case cases[] = {
        {ImageKind::Grey, 0, 8},     {ImageKind::GreyAlpha, 4, 8}, {ImageKind::Palette2, 3, 1},
        {ImageKind::Palette4, 3, 2}, {ImageKind::Palette16, 3, 4}, {ImageKind::Palette256, 3, 8},
        {ImageKind::Rgb, 2, 8},      {ImageKind::Rgba, 6, 8},      {ImageKind::ColorKey, 2, 8},
    };
    for (const Case& c : cases) {
        const auto png = Encode(64, 64, RandomImage(c.kind, 64, 64, 5));
        EXPECT_EQ(TypeAndDepth(png), std::make_pair(c.type, c.depth)) << KindName(c.kind);
    }
}

std::vector<std::uint8_t> GreyLevels(int width, int height, std::vector<std::uint8_t> levels) {
    std::vector<std::uint8_t> rgba;
    for (int i = 0; i < width * height; ++i) {
        const std::uint8_t v = levels[static_cast<std::size_t>(i * 7 / 3) % levels.size()];
        rgba.insert(rgba.end(), {v, v, v, 255});
    }
    return rgba;
}

TEST(PngWriter, StoresGreyAtTheSmallestExactDepth) {
    EXPECT_EQ(TypeAndDepth(Encode(64, 64, GreyLevels(64, 64, {0, 255}))), std::make_pair(0, 1));
    EXPECT_EQ(TypeAndDepth(Encode(64, 64, GreyLevels(64, 64, {0, 85, 170, 255}))),
              std::make_pair(0, 2));
    EXPECT_EQ(TypeAndDepth(Encode(64, 64, GreyLevels(64, 64, {0, 17, 34, 51, 238}))),
              std::make_pair(0, 4));
    // Four levels that need 4 bits as grey fit a 2-bit palette.
    EXPECT_EQ(TypeAndDepth(Encode(64, 64, GreyLevels(64, 64, {0, 17, 34, 238}))),
              std::make_pair(3, 2));
    // Two levels that 1 bit cannot hold exactly: a 1-bit palette is smaller than 8-bit grey.
    EXPECT_EQ(TypeAndDepth(Encode(64, 64, GreyLevels(64, 64, {16, 224}))), std::make_pair(3, 1));
}

TEST(PngWriter, UsesAColourKeyOnlyWhenItIsExact) {
    auto rgba = RandomImage(ImageKind::ColorKey, 64, 64, 9);
    const auto keyed = ChunksOf(Encode(64, 64, rgba));
    ASSERT_EQ(keyed[1].type, "tRNS");
    EXPECT_EQ(keyed[1].data, (std::vector<std::uint8_t>{0, 1, 0, 2, 0, 3}));
    // An opaque pixel of the key colour: the key would hide it, so alpha is stored.
    rgba[0] = 1, rgba[1] = 2, rgba[2] = 3, rgba[3] = 255;
    const auto png = Encode(64, 64, rgba);
    EXPECT_EQ(TypeAndDepth(png).first, 6);
    EXPECT_EQ(RgbaOf(*Decode(png)), rgba);
}

TEST(PngWriter, KeepsTheColoursOfTransparentPixels) {
    std::vector<std::uint8_t> rgba;
    for (int i = 0; i < 300; ++i)
        rgba.insert(rgba.end(),
                    {static_cast<std::uint8_t>(i), 9, static_cast<std::uint8_t>(i / 2), 0});
    const auto png = Encode(20, 15, rgba);
    EXPECT_EQ(RgbaOf(*Decode(png)), rgba);
}

TEST(PngWriter, PutsTranslucentPaletteEntriesFirstSoTrnsIsShort) {
    std::vector<std::uint8_t> rgba;
    for (int i = 0; i < 64 * 64; ++i) {
        const int c = i % 10;
        rgba.insert(rgba.end(), {static_cast<std::uint8_t>(c * 20), 0, 0,
                                 static_cast<std::uint8_t>(c == 7 ? 100 : 255)});
    }
    const auto chunks = ChunksOf(Encode(64, 64, rgba));
    ASSERT_EQ(chunks[1].type, "PLTE");
    EXPECT_EQ(chunks[1].data.size(), 30u);
    ASSERT_EQ(chunks[2].type, "tRNS");
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
    const auto png = Encode(256, 256, RandomImage(ImageKind::Rgba, 256, 256, 3));
    int idats = 0;
    for (const Chunk& chunk : ChunksOf(png)) {
        if (chunk.type != "IDAT") continue;
        ++idats;
        EXPECT_LE(chunk.data.size(), 65536u);
    }
    EXPECT_GE(idats, 2);
}

TEST(PngWriter, WritesTextAndTimeChunksForTheProperties) {
    PngProperties properties;
    ASSERT_TRUE(properties.Set(pngTitle, "An icon"));
    ASSERT_TRUE(properties.Set(pngSource, "caf\xC3\xA9 \xE6\x97\xA5"));
    const std::string longText(2000, 'x');
    ASSERT_TRUE(properties.Set(pngComment, longText));
    ASSERT_TRUE(properties.Set(pngLastModified, PngTime{2024, 2, 29, 23, 59, 60}));
    const auto chunks = ChunksOf(Encode(2, 2, RandomImage(ImageKind::Rgb, 2, 2, 1), properties));
    std::vector<std::string> order;
    for (const Chunk& c : chunks)
        order.push_back(c.type);
    EXPECT_EQ(order,
              (std::vector<std::string>{"IHDR", "IDAT", "tEXt", "tEXt", "zTXt", "tIME", "IEND"}));
    auto text = [](const Chunk& c) { return std::string(c.data.begin(), c.data.end()); };
    EXPECT_EQ(text(chunks[2]), std::string("Title\0An icon", 13));
    EXPECT_EQ(text(chunks[3]), std::string("Source\0caf\xE9 ?", 13));
    const std::string commentHead("Comment\0\0", 9);
    ASSERT_EQ(text(chunks[4]).substr(0, 9), commentHead);
    std::vector<std::uint8_t> inflated;
    ASSERT_EQ(ZlibDecompress(std::span(chunks[4].data).subspan(9), 4000, inflated),
              InflateStatus::Ok);
    EXPECT_EQ(std::string(inflated.begin(), inflated.end()), longText);
    EXPECT_EQ(chunks[5].data, (std::vector<std::uint8_t>{0x07, 0xE8, 2, 29, 23, 59, 60}));
}

TEST(PngProperties, LooksUpKeywordsWithTheApostropheKeptOnSource) {
    EXPECT_EQ(PngPropertyLookup("Source"), -1);
    EXPECT_EQ(PngPropertyLookup("Source'"), 256);
    EXPECT_EQ(PngPropertyLookup("source'"), 256);
    EXPECT_EQ(PngPropertyLookup("TITLE"), 1);
    EXPECT_EQ(PngPropertyLookup("Creation Time"), 16);
    EXPECT_EQ(PngPropertyLookup("Comment"), 512);
    EXPECT_EQ(PngPropertyLookup("Nonsense"), -1);
    EXPECT_EQ(PngPropertyLookup(""), -1);
    EXPECT_EQ(PngPropertyKeyword(256), "Source");
}

TEST(PngProperties, AcceptsTheTenTextIdsAndTheThreeSpareOnes) {
    PngProperties properties;
    for (int id : {1, 2, 4, 8, 16, 32, 64, 128, 256, 512, 2048, 4096, 8192}) {
        EXPECT_TRUE(properties.Set(id, "v" + std::to_string(id))) << id;
    }
    for (int id : {0, 3, 1024, 16384, -1})
        EXPECT_FALSE(properties.Set(id, "x")) << id;
    EXPECT_EQ(properties.Get(64), "v64");
    EXPECT_EQ(properties.Get(8192), "v8192");
    EXPECT_TRUE(properties.Set(64, ""));
    EXPECT_EQ(properties.Get(64), "");
    EXPECT_FALSE(properties.Set(pngTitle, PngTime{2024, 1, 1, 0, 0, 0}));
    EXPECT_FALSE(properties.Set(pngLastModified, PngTime{2023, 2, 29, 0, 0, 0}));
    EXPECT_FALSE(properties.Set(pngLastModified, PngTime{2023, 13, 1, 0, 0, 0}));
    EXPECT_TRUE(properties.Set(pngLastModified, PngTime{2000, 2, 29, 0, 0, 0}));
}

TEST(PngWriter, ConvertsTextToLatin1) {
    EXPECT_EQ(png::ToLatin1("plain"), "plain");
    EXPECT_EQ(png::ToLatin1("\xC3\xBF\xC4\x80"), "\xFF?");  // U+00FF fits, U+0100 does not
    EXPECT_EQ(png::ToLatin1(std::string("a\0b", 3)), "ab");
    EXPECT_EQ(png::ToLatin1("\xE2\x82"), "??");  // a cut sequence
    EXPECT_EQ(png::ToLatin1("\xF0\x9F\x98\x80!"), "?!");
}

TEST(PngWriter, RefusesPixelsThatDoNotMatchTheSize) {
    std::vector<std::uint8_t> png;
    EXPECT_FALSE(EncodePngStream(2, 2, std::vector<std::uint8_t>(15), png));
    EXPECT_FALSE(EncodePngStream(0, 2, {}, png));
    EXPECT_TRUE(png.empty());
}

// --- libpng-based readers ----------------------------------------------------------------

bool HaveTool(const char* path) {
    return std::filesystem::exists(path);
}

std::optional<std::vector<std::uint8_t>> ReadWithPillow(const std::filesystem::path& file) {
    return RunCapture(
        "/usr/bin/python3 -c \"import sys; from PIL import Image; "
        "sys.stdout.buffer.write(Image.open(sys.argv[1]).convert('RGBA').tobytes())\" '" +
        file.string() + "' 2>/dev/null");
}

std::optional<std::vector<std::uint8_t>> ReadWithImageMagick(const std::filesystem::path& file) {
    return RunCapture("/usr/bin/convert '" + file.string() + "' -depth 8 RGBA:- 2>/dev/null");
}

void ExpectExternalReadersAgree(bool ownDeflate) {
    if (!HaveTool("/usr/bin/python3") || !HaveTool("/usr/bin/convert"))
        GTEST_SKIP() << "Pillow or ImageMagick missing";
    if (!RunCapture("/usr/bin/python3 -c 'import PIL' 2>/dev/null"))
        GTEST_SKIP() << "Pillow missing";
    std::optional<ScopedZlibDisabled> noZlib;
    if (ownDeflate) noZlib.emplace();
    TempDir dir;
    for (ImageKind kind : kAllKinds) {
        for (auto [width, height] : kSizes) {
            if (ownDeflate && width == 256) continue;
            const auto rgba = RandomImage(kind, width, height, 11);
            const auto file = dir / (std::string(KindName(kind)) + std::to_string(width) + ".png");
            WriteFileBytes(file, Encode(width, height, rgba));
            const std::string what = std::string(KindName(kind)) + " " + std::to_string(width);
            EXPECT_EQ(ReadWithPillow(file), rgba) << "Pillow, " << what;
            EXPECT_EQ(ReadWithImageMagick(file), rgba) << "ImageMagick, " << what;
        }
    }
}

TEST(PngWriterInterop, PillowAndImageMagickReadTheSamePixels) {
    ExpectExternalReadersAgree(false);
}

TEST(PngWriterInterop, OutputOfTheOwnDeflateReadsInOtherReaders) {
    ExpectExternalReadersAgree(true);
}

}  // namespace
}  // namespace iw::test
