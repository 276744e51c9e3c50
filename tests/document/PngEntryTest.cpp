#include <gtest/gtest.h>

#include "codec/PngCodec.h"
#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "document/io/ImageRgba.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

struct Fixture {
    test::MessageFixture messages;
    NullProgress progress;
    test::RecordingLog log;
    CoreContext context{messages.service, progress, log};
    test::TempDir dir;

    IconSet Read(const test::Bytes& bytes, const std::string& name) {
        IconSet set;
        EXPECT_TRUE(ReadIconData(bytes, name, set, progress).Ok());
        return set;
    }
};

void PaintGradient(IconImage& image) {
    for (int y = 0; y < image.info.Height(); ++y) {
        for (int x = 0; x < image.info.Width(); ++x) {
            image.Color(x, y) = PackColor(x, y, (x * y) & 0xFF);
            image.Alpha(x, y) = (x + y) & 0xFF;
        }
    }
}

// A PNG stream of `width` x `height` with a gradient and an alpha ramp.
test::Bytes GradientPng(int width, int height) {
    std::vector<std::uint8_t> rgba;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            rgba.insert(rgba.end(), {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                                     static_cast<std::uint8_t>(x ^ y),
                                     static_cast<std::uint8_t>((x * 7 + y) & 0xFF)});
        }
    }
    test::Bytes png;
    EXPECT_TRUE(EncodePngStream(width, height, rgba, png));
    return png;
}

test::EntrySpec PngEntry(test::Bytes png, int dirWidth, int dirHeight, int dirBitCount) {
    test::EntrySpec entry;
    entry.data = std::move(png);
    entry.width = dirWidth;
    entry.height = dirHeight;
    entry.bitCount = dirBitCount;
    return entry;
}

TEST(PngEntries, RoundTripThroughWriterAndReader) {
    Fixture f;
    IconSet set;
    set.AddIcon(255, 255, 32);
    set.Info(0).png = 1;
    PaintGradient(set.Image(0));
    set.AddIcon(47, 32, 32);  // 48 wide, 33 high: a PNG entry keeps its own sides
    set.Info(1).png = 1;
    PaintGradient(set.Image(1));
    auto path = (f.dir / "p.ico").string();
    ASSERT_TRUE(WriteIconFile(path, set, f.context));
    EXPECT_NE(std::find(f.log.entries.begin(), f.log.entries.end(), "I_AI"), f.log.entries.end());
    test::Bytes b = test::ReadFileBytes(path);
    EXPECT_EQ(b[6], 0);  // 256 written as 0
    EXPECT_EQ(b[6 + 16 + 0], 48);
    EXPECT_EQ(b[6 + 16 + 1], 33);

    IconSet back;
    ASSERT_TRUE(ReadIconFile(path, back, f.context));
    ASSERT_EQ(back.Count(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(back.Info(i).png, 1);
        EXPECT_EQ(back.Info(i).Width(), set.Info(i).Width());
        EXPECT_EQ(back.Info(i).Height(), set.Info(i).Height());
        for (int y = 0; y < set.Info(i).Height(); ++y) {
            for (int x = 0; x < set.Info(i).Width(); ++x) {
                ASSERT_EQ(std::as_const(back).Image(i).Color(x, y), set.Image(i).Color(x, y));
                ASSERT_EQ(std::as_const(back).Image(i).Alpha(x, y), set.Image(i).Alpha(x, y));
            }
        }
    }
    // Looking at the pixels kept the bytes; an unchanged image is written from them.
    EXPECT_FALSE(back.Image(0).OriginalPng().empty());
    auto again = (f.dir / "again.ico").string();
    ASSERT_TRUE(WriteIconFile(again, back, f.context));
    EXPECT_EQ(test::ReadFileBytes(again), b);
}

TEST(PngEntries, AreDecodedOnlyWhenTheirPixelsAreNeeded) {
    Fixture f;
    const test::Bytes png = GradientPng(40, 24);
    const test::Bytes file = test::BuildIconFile({PngEntry(png, 40, 24, 32)});
    IconSet set = f.Read(file, "lazy.ico");
    ASSERT_EQ(set.Count(), 1);
    const IconImage& image = std::as_const(set).Image(0);
    // Nothing is decoded or allocated yet.
    EXPECT_EQ(image.info.Width(), 40);
    EXPECT_EQ(image.info.Height(), 24);
    EXPECT_TRUE(image.PixelsPending());
    EXPECT_FALSE(image.PlanesAllocated());
    EXPECT_EQ(image.OriginalPng(), png);

    // An untouched entry is saved as the very bytes it was read from.
    std::optional<test::Bytes> saved = EncodeIconFile(set, f.context);
    ASSERT_TRUE(saved);
    EXPECT_EQ(*saved, file);
    EXPECT_TRUE(image.PixelsPending());

    // Reading a pixel decodes and keeps the bytes; taking a pixel to change drops them.
    RgbaImage decoded;
    ASSERT_TRUE(DecodePngStream(png, decoded));
    EXPECT_EQ(ImageToRgba(image), decoded.rgba);
    EXPECT_FALSE(image.PixelsPending());
    EXPECT_EQ(image.OriginalPng(), png);
    set.Image(0).Color(1, 1) = PackColor(1, 2, 3);
    EXPECT_TRUE(image.OriginalPng().empty());
    saved = EncodeIconFile(set, f.context);
    ASSERT_TRUE(saved);
    IconSet back = f.Read(*saved, "changed.ico");
    EXPECT_EQ(std::as_const(back).Image(0).Color(1, 1), PackColor(1, 2, 3));
}

TEST(PngEntries, CorruptDataBehindASoundHeaderStaysBlankAndKeepsTheUsersBytes) {
    Fixture f;
    test::Bytes png = GradientPng(32, 32);
    // The image data's chunk claims more than there is.
    const auto idat = std::search(png.begin(), png.end(), "IDAT", std::next("IDAT", 4)) - 4;
    std::fill(idat, idat + 3, 0x01);
    const test::Bytes file = test::BuildIconFile({PngEntry(png, 32, 32, 32)});
    IconSet set = f.Read(file, "bad.ico");
    const IconImage& image = std::as_const(set).Image(0);
    EXPECT_EQ(image.info.bitCount, 32);
    EXPECT_EQ(image.info.Width(), 32);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x)
            ASSERT_EQ(image.Color(x, y) | image.Alpha(x, y), 0);
    }
    EXPECT_FALSE(image.PlanesAllocated());
    std::optional<test::Bytes> saved = EncodeIconFile(set, f.context);
    ASSERT_TRUE(saved);
    EXPECT_EQ(*saved, file);
}

TEST(PngEntries, BrokenHeaderStaysBlankAndTheReadGoesOn) {
    Fixture f;
    IconSet set;
    set.AddIcon(15, 15, 32);
    set.Info(0).png = 1;
    PaintGradient(set.Image(0));
    set.AddIcon(15, 15, 24);
    PaintGradient(set.Image(1));
    auto path = f.dir / "broken.ico";
    ASSERT_TRUE(WriteIconFile(path.string(), set, f.context));
    test::Bytes b = test::ReadFileBytes(path);
    const std::size_t pngAt = b[6 + 12] | (b[6 + 13] << 8);
    b[pngAt + 20] ^= 0xFF;  // the IHDR's height: far beyond an icon's
    test::WriteFileBytes(path, b);
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path.string(), back, f.context));
    ASSERT_EQ(back.Count(), 2);
    EXPECT_EQ(back.Info(0).png, 1);
    EXPECT_EQ(back.Info(0).bitCount, 32);
    EXPECT_TRUE(back.Image(0).OriginalPng().empty());
    EXPECT_EQ(back.Image(1).Color(3, 4), set.Image(1).Color(3, 4));
}

TEST(PngEntries, AreThirtyTwoBitWhateverTheDirectorySaysAndKeepTheirAlpha) {
    Fixture f;
    const test::Bytes png = GradientPng(16, 16);
    RgbaImage decoded;
    ASSERT_TRUE(DecodePngStream(png, decoded));
    for (int dirBitCount : {0, 1, 4, 8, 24}) {
        SCOPED_TRACE(dirBitCount);
        IconSet set = f.Read(test::BuildIconFile({PngEntry(png, 256, 8, dirBitCount)}), "a.ico");
        EXPECT_EQ(set.Info(0).bitCount, 32);
        EXPECT_EQ(set.Info(0).Width(), 16);  // the IHDR's sides, not the directory's
        EXPECT_EQ(set.Info(0).Height(), 16);
        EXPECT_EQ(ImageToRgba(std::as_const(set).Image(0)), decoded.rgba);
    }
}

// Cursors store every image as a bitmap: a PNG entry of an icon becomes a 32-bit bitmap
// that the cursor reader finds, 256 pixels and alpha included.
TEST(PngEntries, BecomeThirtyTwoBitBitmapsInCursorsAndAnimatedCursors) {
    Fixture f;
    const test::Bytes file = test::BuildIconFile({PngEntry(GradientPng(256, 256), 256, 256, 32)});
    IconSet set = f.Read(file, "big.ico");
    set.properties.hotspotX = 5;
    const std::optional<test::Bytes> cursor = BuildCursorFile(set, 0, 5, 6, f.context);
    const std::optional<test::Bytes> animated = BuildAnimatedCursor(set, f.context);
    ASSERT_TRUE(cursor && animated);
    EXPECT_EQ((*cursor)[22], 40);
    EXPECT_EQ((*cursor)[22 + 14], 32);
    for (const auto& [bytes, name] : {std::pair{*cursor, "c.cur"}, std::pair{*animated, "c.ani"}}) {
        SCOPED_TRACE(name);
        IconSet back = f.Read(bytes, name);
        ASSERT_GE(back.Count(), 1);
        EXPECT_EQ(back.Info(0).png, 0);
        EXPECT_EQ(back.Info(0).bitCount, 32);
        EXPECT_EQ(ImageToRgba(std::as_const(back).Image(0)),
                  ImageToRgba(std::as_const(set).Image(0)));
    }

    // A PNG-compressed image of a lower depth shows as its PNG stream would: opaque but
    // where a marker stands.
    IconSet low;
    low.AddIcon(7, 7, 8);
    low.Info(0).png = 1;
    low.Image(0).Color(1, 1) = PackColor(10, 20, 30);
    low.Image(0).Color(2, 2) = TransparentColor;
    const std::optional<test::Bytes> lowCursor = BuildCursorFile(low, 0, 0, 0, f.context);
    ASSERT_TRUE(lowCursor);
    IconSet back = f.Read(*lowCursor, "low.cur");
    EXPECT_EQ(ImageToRgba(std::as_const(back).Image(0)), ImageToRgba(std::as_const(low).Image(0)));
}

}  // namespace
}  // namespace iw
