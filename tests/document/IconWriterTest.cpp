// The icon and cursor writers: every depth round-trips, the directory and headers hold
// what the format says, a failed save keeps the old file, and images no file can hold are
// refused.

#include <gtest/gtest.h>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "services/core/CheckedBytes.h"
#include "support/FileSizeLimit.h"
#include "support/IcoBuilder.h"
#include "support/TestImages.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

TEST(IconWriter, EveryDepthAndPaddingSizeRoundTrips) {
    for (int bpp : {1, 4, 8, 24, 32}) {
        for (int side : {1, 47, 256}) {
            SCOPED_TRACE(::testing::Message() << bpp << " bpp, side " << side);
            test::CoreFixture f;
            IconSet set = test::SetOf(test::MakeImage(side, side, bpp));
            test::PaintExact(set.Image(0));
            const auto path = (f.dir / "r.ico").string();
            ASSERT_TRUE(WriteIconFile(path, set, f.context));
            IconSet back;
            ASSERT_TRUE(ReadIconFile(path, back, f.context));
            ASSERT_EQ(back.Count(), 1);
            EXPECT_EQ(back.Info(0).bitCount, bpp);
            EXPECT_TRUE(test::SamePixels(set.Image(0), back.Image(0)));
        }
    }
}

// Directory entry (width, height, colours, reserved, planes, bits, size, offset) and header
// (size, width, twice the height, planes, bits, image size) of every image. Field 1 is
// written as the width and field 0 as the height.
TEST(IconWriter, DirectoryAndHeaderFields) {
    test::CoreFixture f;
    IconSet set;
    for (auto [w1, h1, bpp] :
         {std::tuple{255, 255, 32}, {254, 254, 8}, {15, 15, 4}, {31, 31, 1}, {15, 31, 24}})
        set.AddIcon(w1, h1, bpp);
    const auto path = f.dir / "fields.ico";
    ASSERT_TRUE(WriteIconFile(path.string(), set, f.context));
    const test::Bytes b = test::ReadFileBytes(path);
    EXPECT_EQ(std::tuple(LoadLE16(&b[0]), LoadLE16(&b[2]), LoadLE16(&b[4])), std::tuple(0, 1, 5));
    std::uint32_t offset = 6 + 16 * 5;
    for (int i = 0; i < 5; ++i) {
        const std::uint8_t* e = &b[6 + 16 * static_cast<std::size_t>(i)];
        const std::uint8_t* h = &b[LoadLE32(e + 12)];
        const std::uint32_t w = set.Info(i).heightMinus1 + 1, rows = set.Info(i).widthMinus1 + 1;
        const std::uint32_t bpp = static_cast<std::uint32_t>(set.Info(i).bitCount);
        const std::uint32_t bits = ((w * bpp + 31) / 32 * 4 + (w + 31) / 32 * 4) * rows;
        const std::uint32_t size = 40 + (bpp <= 8 ? (4u << bpp) : 0) + bits;
        std::vector<std::uint32_t> got(e, e + 4);
        got.insert(got.end(), {LoadLE16(e + 4), LoadLE16(e + 6), LoadLE32(e + 8), LoadLE32(e + 12),
                               LoadLE32(h), LoadLE32(h + 4), LoadLE32(h + 8), LoadLE16(h + 12),
                               LoadLE16(h + 14), LoadLE32(h + 20)});
        const std::vector<std::uint32_t> want = {
            w % 256, rows % 256, bpp == 1 ? 2u : bpp == 4 ? 16u : 0u,
            0,       1,          bpp,
            size,    offset,     40,
            w,       2 * rows,   1,
            bpp,     bits};
        EXPECT_EQ(got, want) << "image " << i;
        offset += size;
    }
    EXPECT_EQ(b.size(), offset);  // nothing after the last image
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path.string(), back, f.context));
    EXPECT_EQ(std::pair(back.Info(4).Width(), back.Info(4).Height()), std::pair(32, 16));
}

TEST(IconWriter, AFailedSaveLeavesTheOldFileByteForByte) {
    test::CoreFixture f;
    const auto path = f.dir / "keep.ico";
    const test::Bytes old(5000, 0x42);
    test::WriteFileBytes(path, old);
    IconSet set;
    for (int i = 0; i < 4; ++i)
        set.AddIcon(255, 255, 32);
    // The file needs about 1 MiB.
    EXPECT_FALSE(test::UnderFileSizeLimit(
        100 * 1024, [&] { return WriteIconFile(path.string(), set, f.context); }));
    EXPECT_EQ(test::ReadFileBytes(path), old);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(f.dir.Path()), {}), 1);
}

// Fields no file can hold are refused with a failure, never trusted: nothing is written.
TEST(Writers, RefuseImagesTheyCannotWrite) {
    const IconInfo bad[] = {{15, 15, 0},  {15, 15, 2},  {15, 15, 7},   {15, 15, 16},
                            {15, 15, -8}, {-1, 15, 32}, {15, 256, 32}, {15, 15, 2, 0, 1}};
    for (const IconInfo& info : bad) {
        test::CoreFixture f;
        IconSet set;
        set.AddIcon(15, 15, 32);
        set.InsertIcon(1, IconImage());
        set.Info(1) = info;
        const auto path = (f.dir / "bad").string();
        EXPECT_FALSE(WriteIconFile(path, set, f.context) ||
                     WriteCursorFile(path, set, 1, 0, 0, f.context) ||
                     WriteAnimatedCursor(path, set, f.context));
        EXPECT_FALSE(std::filesystem::exists(path));
        EXPECT_TRUE(BuildCursorFile(set, 0, 0, 0, f.context));  // the good image still can
    }
}

TEST(CursorWriter, OneImageAtOffset22WithHotspotAndColourCountZero) {
    test::CoreFixture f;
    IconSet set;
    set.AddIcon(31, 31, 32);
    set.InsertIcon(1, test::MakeImage(16, 16, 4));
    test::PaintExact(set.Image(1));
    const auto path = f.dir / "c.cur";
    ASSERT_TRUE(WriteCursorFile(path.string(), set, 1, 7, 9, f.context));
    const test::Bytes b = test::ReadFileBytes(path);
    // Reserved, type 2, one image; 16 x 16, colour count 0 even for 16 colours, reserved;
    // hotspot 7, 9; the size; offset 22; then the bitmap header.
    EXPECT_EQ(test::Bytes(b.begin(), b.begin() + 14),
              (test::Bytes{0, 0, 2, 0, 1, 0, 16, 16, 0, 0, 7, 0, 9, 0}));
    EXPECT_EQ(LoadLE32(&b[18]), 22u);
    EXPECT_EQ(b[22], 40);
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path.string(), back, f.context));
    ASSERT_EQ(back.Count(), 1);
    EXPECT_EQ(std::pair(back.properties.hotspotX, back.properties.hotspotY),
              (std::pair<std::int16_t, std::int16_t>(7, 9)));
    EXPECT_TRUE(test::SamePixels(set.Image(1), back.Image(0)));
}

}  // namespace
}  // namespace iw
