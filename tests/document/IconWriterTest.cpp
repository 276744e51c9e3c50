#include <gtest/gtest.h>

#include <sys/resource.h>
#include <csignal>

#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "imaging/StandardColors.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

struct WriteFixture {
    test::MessageFixture messages;
    test::RecordingProgress progress;
    test::RecordingLog log;
    CoreContext context{messages.service, progress, log};
    test::TempDir dir;
};

// Fills image `index` with colours that every depth can hold exactly, and a few markers.
void Paint(IconSet& set, int index) {
    IconImage& image = set.Image(index);
    const int bpp = image.info.bitCount;
    for (int y = 0; y < image.info.Height(); ++y) {
        for (int x = 0; x < image.info.Width(); ++x) {
            PackedColor c;
            if (bpp == 1) {
                c = kMonoColors[static_cast<std::size_t>((x / 3 + y) % 2)];
            } else if (bpp == 4) {
                c = kStandard16Colors[static_cast<std::size_t>((x + 2 * y) % 16)];
            } else if (bpp == 8) {
                c = PackColor((x + 3 * y) % 200, 60, 9);  // 200 colours at most: an exact palette
            } else {
                c = PackColor(x * 3, y * 5, (x ^ y) & 0xFF);
            }
            if ((x + y) % 11 == 0) c = TransparentColor;
            if ((x + y) % 13 == 5 && bpp != 32) c = InverseColor;
            image.Color(x, y) = c;
            if (bpp == 32) image.Alpha(x, y) = c == TransparentColor ? 0 : (x * 31 + y) % 256;
        }
    }
}

void ExpectSamePixels(const IconImage& a, const IconImage& b) {
    ASSERT_EQ(a.info.Width(), b.info.Width());
    ASSERT_EQ(a.info.Height(), b.info.Height());
    for (int y = 0; y < a.info.Height(); ++y) {
        for (int x = 0; x < a.info.Width(); ++x) {
            ASSERT_EQ(a.Color(x, y), b.Color(x, y)) << "x=" << x << " y=" << y;
            if (a.info.bitCount == 32) {
                ASSERT_EQ(a.Alpha(x, y), b.Alpha(x, y));
            }
        }
    }
}

TEST(IconWriter, EveryDepthAndPaddingSizeRoundTrips) {
    for (int bpp : {1, 4, 8, 24, 32}) {
        for (int side : {1, 47, 256}) {
            SCOPED_TRACE(::testing::Message() << bpp << " bpp, side " << side);
            WriteFixture f;
            IconSet set;
            set.AddIcon(side - 1, side - 1, bpp);
            Paint(set, 0);
            auto path = (f.dir / "r.ico").string();
            ASSERT_TRUE(WriteIconFile(path, set, f.context));
            IconSet back;
            ASSERT_TRUE(ReadIconFile(path, back, f.context));
            ASSERT_EQ(back.Count(), 1);
            EXPECT_EQ(back.Info(0).bitCount, bpp);
            ExpectSamePixels(set.Image(0), back.Image(0));
        }
    }
}

TEST(IconWriter, DirectoryAndHeaderFields) {
    WriteFixture f;
    IconSet set;
    set.AddIcon(255, 255, 32);
    set.AddIcon(254, 254, 8);
    set.AddIcon(15, 15, 4);
    set.AddIcon(31, 31, 1);
    set.AddIcon(15, 31, 24);  // 16 wide, 32 high in the planes
    auto path = f.dir / "fields.ico";
    ASSERT_TRUE(WriteIconFile(path.string(), set, f.context));
    test::Bytes b = test::ReadFileBytes(path);
    auto le16 = [&](std::size_t at) { return b[at] | (b[at + 1] << 8); };
    auto le32 = [&](std::size_t at) {
        return static_cast<std::uint32_t>(b[at] | (b[at + 1] << 8) | (b[at + 2] << 16) |
                                          (b[at + 3] << 24));
    };
    EXPECT_EQ(le16(0), 0);
    EXPECT_EQ(le16(2), 1);
    EXPECT_EQ(le16(4), 5);
    struct Want {
        int w, h, colours, bpp;
    };
    const Want want[] = {
        {0, 0, 0, 32}, {255, 255, 0, 8}, {16, 16, 16, 4}, {32, 32, 2, 1}, {32, 16, 0, 24}};
    std::uint32_t expectedOffset = 6 + 16 * 5;
    for (int i = 0; i < 5; ++i) {
        const std::size_t e = 6 + 16 * static_cast<std::size_t>(i);
        SCOPED_TRACE(i);
        EXPECT_EQ(b[e], want[i].w);
        EXPECT_EQ(b[e + 1], want[i].h);
        EXPECT_EQ(b[e + 2], want[i].colours);
        EXPECT_EQ(b[e + 3], 0);
        EXPECT_EQ(le16(e + 4), 1);
        EXPECT_EQ(le16(e + 6), want[i].bpp);
        EXPECT_EQ(le32(e + 12), expectedOffset);
        const std::size_t h = le32(e + 12);
        EXPECT_EQ(le32(h), 40u);
        // Field 1 is written as the width and field 0 as the height.
        EXPECT_EQ(le32(h + 4), static_cast<std::uint32_t>(set.Info(i).heightMinus1 + 1));
        EXPECT_EQ(le32(h + 8), static_cast<std::uint32_t>((set.Info(i).widthMinus1 + 1) * 2));
        EXPECT_EQ(le16(h + 12), 1);
        EXPECT_EQ(le16(h + 14), want[i].bpp);
        const int w = set.Info(i).heightMinus1 + 1;
        const int rows = set.Info(i).widthMinus1 + 1;
        const std::uint32_t stride = static_cast<std::uint32_t>(((w * want[i].bpp + 31) / 32) * 4);
        const std::uint32_t maskStride = static_cast<std::uint32_t>(((w + 31) / 32) * 4);
        const std::uint32_t bits = (stride + maskStride) * static_cast<std::uint32_t>(rows);
        EXPECT_EQ(le32(h + 20), bits);
        const std::uint32_t palette = want[i].bpp <= 8 ? (1u << want[i].bpp) * 4 : 0;
        EXPECT_EQ(le32(e + 8), 40 + palette + bits);
        expectedOffset += le32(e + 8);
    }
    EXPECT_EQ(b.size(), expectedOffset);  // nothing after the last image

    // The non-square image comes back with its sides crossed.
    IconSet back;
    ASSERT_TRUE(ReadIconFile(path.string(), back, f.context));
    EXPECT_EQ(back.Info(4).Width(), 32);
    EXPECT_EQ(back.Info(4).Height(), 16);
}

TEST(IconWriter, LogTagsAndStatusTexts) {
    WriteFixture f;
    IconSet set;
    set.AddIcon(15, 15, 32);
    set.AddIcon(15, 15, 8);
    ASSERT_TRUE(WriteIconFile((f.dir / "log.ico").string(), set, f.context));
    std::vector<std::string> want = {"I_ST",    "I_OD",   "I_HD",   "I_HF", "IC_I:0",
                                     "IC_C:32", "IC_I:1", "IC_C:8", "I_FS"};
    EXPECT_EQ(f.log.entries, want);
    auto has = [&](const std::string& s) {
        return std::find(f.progress.statuses.begin(), f.progress.statuses.end(), s) !=
               f.progress.statuses.end();
    };
    EXPECT_TRUE(has("Adding primary icon header for icon 0"));
    EXPECT_TRUE(has("Adding primary icon header for icon 1"));
    EXPECT_TRUE(has("Adding secondary icon header for icon 1"));
    EXPECT_TRUE(has("Creating color palette for 256 color icon 1"));
    EXPECT_EQ(f.progress.statuses.back(), "");
}

TEST(IconWriter, OverwritingALongerFileLeavesNoTrailingBytes) {
    WriteFixture f;
    auto path = f.dir / "shrink.ico";
    test::WriteFileBytes(path, test::Bytes(100000, 0x55));
    IconSet set;
    set.AddIcon(15, 15, 24);
    ASSERT_TRUE(WriteIconFile(path.string(), set, f.context));
    EXPECT_EQ(std::filesystem::file_size(path), 6u + 16 + 40 + (48 + 4) * 16);
}

TEST(IconWriter, FailedSaveLeavesTheOldFileByteForByte) {
    WriteFixture f;
    auto path = f.dir / "keep.ico";
    const test::Bytes old(5000, 0x42);
    test::WriteFileBytes(path, old);
    IconSet set;
    for (int i = 0; i < 4; ++i)
        set.AddIcon(255, 255, 32);
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    auto previous = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = saved;
    small.rlim_cur = 100 * 1024;  // the file needs about 1 MiB
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool ok = WriteIconFile(path.string(), set, f.context);
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previous);
    EXPECT_FALSE(ok);
    EXPECT_EQ(test::ReadFileBytes(path), old);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(f.dir.Path()),
                            std::filesystem::directory_iterator()),
              1);
}

// Fields no file can hold are refused with a failure, never trusted: nothing is written.
TEST(Writers, RefuseImagesTheyCannotWrite) {
    const IconInfo bad[] = {{15, 15, 0},  {15, 15, 2},  {15, 15, 7},   {15, 15, 16},
                            {15, 15, -8}, {-1, 15, 32}, {15, 256, 32}, {15, 15, 2, 0, 1}};
    for (const IconInfo& info : bad) {
        WriteFixture f;
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
    WriteFixture f;
    IconSet set;
    set.AddIcon(31, 31, 32);
    set.AddIcon(15, 15, 4);
    Paint(set, 1);
    auto path = f.dir / "c.cur";
    ASSERT_TRUE(WriteCursorFile(path.string(), set, 1, 7, 9, f.context));
    test::Bytes b = test::ReadFileBytes(path);
    EXPECT_EQ(b[2], 2);
    EXPECT_EQ(b[4], 1);
    EXPECT_EQ(b[6], 16);
    EXPECT_EQ(b[7], 16);
    EXPECT_EQ(b[8], 0);  // colour count, even for 16 colours
    EXPECT_EQ(b[10] | (b[11] << 8), 7);
    EXPECT_EQ(b[12] | (b[13] << 8), 9);
    EXPECT_EQ(b[18], 22);
    EXPECT_EQ(b[19] | b[20] | b[21], 0);
    EXPECT_EQ(b[22], 40);

    IconSet back;
    ASSERT_TRUE(ReadIconFile(path.string(), back, f.context));
    ASSERT_EQ(back.Count(), 1);
    EXPECT_EQ(back.properties.hotspotX, 7);
    EXPECT_EQ(back.properties.hotspotY, 9);
    ExpectSamePixels(set.Image(1), back.Image(0));
}

}  // namespace
}  // namespace iw
