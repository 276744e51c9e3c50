#include <gtest/gtest.h>

#include "codec/png/PngCodec.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "document/io/ImageRgba.h"
#include "document/io/PngEntryEncoder.h"
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
};

void PaintGradient(IconImage& image) {
    for (int y = 0; y < image.info.Height(); ++y) {
        for (int x = 0; x < image.info.Width(); ++x) {
            image.Color(x, y) = PackColor(x, y, (x * y) & 0xFF);
            image.Alpha(x, y) = (x + y) & 0xFF;
        }
    }
}

test::EntrySpec GradientPngEntry(int width, int height) {
    std::vector<std::uint8_t> rgba;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            rgba.insert(rgba.end(), {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                                     static_cast<std::uint8_t>(x ^ y),
                                     static_cast<std::uint8_t>((x * 7 + y) & 0xFF)});
        }
    }
    test::EntrySpec entry;
    entry.width = width;
    entry.height = height;
    EXPECT_TRUE(EncodePngStream(width, height, rgba, entry.data));
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

// Windows reads the PNG of an icon entry as 32-bit ARGB only, so an entry is always written
// as 8-bit RGBA, even where a palette or a colour key would hold its pixels exactly.
TEST(PngEntries, AreWrittenAsEightBitRgba) {
    IconImage image;
    image.info = {15, 15, 32, 0, 1};
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            image.Color(x, y) = x < 8 ? PackColor(255, 0, 0) : 0;
            image.Alpha(x, y) = x < 8 ? 255 : 0;
        }
    }
    const std::vector<std::uint8_t> stream = EncodePngEntry(image);
    ASSERT_GT(stream.size(), 26u);
    EXPECT_EQ(stream[24], 8);  // IHDR bit depth
    EXPECT_EQ(stream[25], 6);  // IHDR colour type: RGBA
}

// An entry is decoded only when its pixels are needed, and saved as the bytes it was read
// from until somebody changes it: also when its data turns out corrupt (it then shows blank).
TEST(PngEntries, AreDecodedWhenNeededAndSavedAsReadUntilChanged) {
    Fixture f;
    const test::EntrySpec good = GradientPngEntry(40, 24);
    test::EntrySpec corrupt = good;
    corrupt.data.resize(corrupt.data.size() - 20);  // the image data runs past the end
    for (const test::EntrySpec& entry : {good, corrupt}) {
        const test::Bytes file = test::BuildIconFile({entry});
        IconSet set;
        ASSERT_TRUE(ReadIconData(file, "p.ico", set, f.progress).Ok());
        const IconImage& image = std::as_const(set).Image(0);
        EXPECT_TRUE(image.PixelsPending());
        EXPECT_EQ(EncodeIconFile(set, f.context), file);
        RgbaImage decoded;
        if (!DecodePngStream(entry.data, decoded)) decoded.rgba.assign(40 * 24 * 4, 0);
        EXPECT_EQ(ImageToRgba(image), decoded.rgba);
        EXPECT_EQ(EncodeIconFile(set, f.context), file);  // looking kept the bytes
        set.Image(0).Color(1, 1) = PackColor(1, 2, 3);
        EXPECT_TRUE(image.OriginalPng().empty());
        EXPECT_NE(EncodeIconFile(set, f.context), file);
    }
}

TEST(PngEntries, BrokenStreamStaysBlankAndTheReadGoesOn) {
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
    b[pngAt + 20] ^= 0xFF;  // inside IHDR: its CRC no longer matches or its size is wrong
    b[pngAt + 40] ^= 0xFF;
    test::WriteFileBytes(path, b);
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path.string(), back, f.context));
    ASSERT_EQ(back.Count(), 2);
    EXPECT_EQ(back.Info(0).png, 1);
    EXPECT_TRUE(back.Image(0).OriginalPng().empty());
    EXPECT_EQ(back.Image(1).Color(3, 4), set.Image(1).Color(3, 4));
}

}  // namespace
}  // namespace iw
