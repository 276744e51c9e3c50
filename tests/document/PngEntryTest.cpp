// PNG entries: written as 8-bit RGBA with their own sides, read back the same, decoded only
// when needed and saved as read until changed, and a broken stream left blank.

#include <gtest/gtest.h>

#include "codec/png/PngCodec.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "document/io/ImageRgba.h"
#include "document/io/PngEntryEncoder.h"
#include "support/IcoBuilder.h"
#include "support/TestImages.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

// A PNG-compressed image of its own colours with alpha rising across it (no markers: a PNG
// entry holds colours).
IconImage PngImage(int width, int height) {
    IconImage image = test::MakeImage(width, height, 32, test::PatternColor);
    image.info.png = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.Alpha(x, y) = (x + y) & 0xFF;
    }
    return image;
}

// A 256 px entry is written as 0 in the directory; a 48 x 33 one keeps its own sides. An
// unchanged image read back is written from the bytes it was read from.
TEST(PngEntries, RoundTripThroughWriterAndReader) {
    test::CoreFixture f;
    IconSet set = test::SetOf(PngImage(256, 256));
    set.InsertIcon(1, PngImage(48, 33));
    const auto path = (f.dir / "p.ico").string();
    ASSERT_TRUE(WriteIconFile(path, set, f.context));
    const test::Bytes b = test::ReadFileBytes(path);
    EXPECT_EQ(std::tuple(b[6], b[7], b[22], b[23]), std::tuple(0, 0, 48, 33));
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path, back, f.context));
    ASSERT_EQ(back.Count(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(std::tuple(back.Info(i).png, back.Info(i).Width(), back.Info(i).Height()),
                  std::tuple(std::int16_t{1}, set.Info(i).Width(), set.Info(i).Height()));
        EXPECT_TRUE(test::SamePixels(std::as_const(back).Image(i), set.Image(i)));
    }
    EXPECT_FALSE(back.Image(0).OriginalPng().empty());
    ASSERT_TRUE(WriteIconFile((f.dir / "again.ico").string(), back, f.context));
    EXPECT_EQ(test::ReadFileBytes(f.dir / "again.ico"), b);
}

// Windows reads the PNG of an icon entry as 32-bit ARGB only, so an entry is always written
// as 8-bit RGBA, even where a palette or a colour key would hold its pixels exactly.
TEST(PngEntries, AreWrittenAsEightBitRgba) {
    IconImage image = test::MakeImage(
        16, 16, 32, [](int x, int) { return x < 8 ? PackColor(255, 0, 0) : TransparentColor; });
    image.info.png = 1;
    const std::vector<std::uint8_t> stream = EncodePngEntry(image);
    ASSERT_GT(stream.size(), 26u);
    EXPECT_EQ(std::pair(stream[24], stream[25]), (std::pair<std::uint8_t, std::uint8_t>(8, 6)));
}

// An entry is decoded only when its pixels are needed, and saved as the bytes it was read
// from until somebody changes it: also when its data turns out corrupt (it then shows blank).
TEST(PngEntries, AreDecodedWhenNeededAndSavedAsReadUntilChanged) {
    test::CoreFixture f;
    test::EntrySpec good;
    good.width = 40, good.height = 24;
    const IconImage picture = PngImage(40, 24);
    ASSERT_TRUE(EncodePngStream(40, 24, ImageToRgba(picture), good.data));
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
    IconSet set = test::SetOf(PngImage(16, 16));
    set.InsertIcon(1, test::MakeImage(16, 16, 24, test::PatternColor));
    QuietContext quiet;
    CoreContext& context = quiet.Context();
    test::Bytes b = EncodeIconFile(set, context).value();
    const std::size_t pngAt = LoadLE32(&b[6 + 12]);
    b[pngAt + 20] ^= 0xFF;  // inside IHDR: its CRC no longer matches or its size is wrong
    b[pngAt + 40] ^= 0xFF;
    IconSet back;
    ASSERT_TRUE(ReadIconData(b, "broken.ico", back, context.progress).Ok());
    ASSERT_EQ(back.Count(), 2);
    EXPECT_EQ(back.Info(0).png, 1);
    EXPECT_TRUE(back.Image(0).OriginalPng().empty());
    EXPECT_EQ(back.Image(1).Color(3, 4), test::PatternColor(3, 4));
}

}  // namespace
}  // namespace iw
