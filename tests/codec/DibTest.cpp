// The 32-bpp image object: creation rules, pixel layout, PNG loading and saving.

#include <gtest/gtest.h>

#include <limits>

#include "PngTestHelpers.h"
#include "codec/png/c32bppDIB.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

TEST(Dib, InitializeDibFollowsItsFailureRules) {
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    const std::pair<std::int32_t, std::int32_t> refused[] = {
        {-1, 5},       {5, 0},    {0, 5},
        {kMin + 1, 1}, {1, kMin}, {65536, 32768},  // 2^33 bytes: past the 32-bit image size
    };
    c32bppDIB dib;
    for (auto [width, height] : refused) {
        ASSERT_TRUE(dib.InitializeDIB(1, 1));
        EXPECT_FALSE(dib.InitializeDIB(width, height)) << width << " x " << height;
        EXPECT_TRUE(dib.Empty());  // whatever it held before
    }
    ASSERT_TRUE(dib.InitializeDIB(3, -2));  // a negative height counts as its absolute value
    EXPECT_EQ(dib.Height(), 2);
    EXPECT_EQ(dib.InfoHeader().sizeImage, 24u);
    EXPECT_EQ(dib.GetDIBbits(), std::vector<std::uint8_t>(24, 0));
}

TEST(Dib, KeepsRowsBottomUpInBlueGreenRedAlphaOrder) {
    c32bppDIB dib;
    ASSERT_TRUE(dib.InitializeDIB(2, 3));
    ASSERT_TRUE(dib.SetPixel(1, 0, {1, 2, 3, 4}));  // top row, right pixel
    const auto bits = dib.GetDIBbits();
    // The top row is the last one in memory.
    EXPECT_EQ(std::vector<std::uint8_t>(bits.begin() + 20, bits.end()),
              (std::vector<std::uint8_t>{1, 2, 3, 4}));
    BgraPixel p;
    ASSERT_TRUE(dib.GetPixel(1, 0, p));
    EXPECT_EQ(p, (BgraPixel{1, 2, 3, 4}));
    EXPECT_FALSE(dib.GetPixel(2, 0, p) || dib.GetPixel(0, -1, p) || dib.SetPixel(0, 3, {}));
}

TEST(Dib, LoadsPngKeepingTheSourceWhenAsked) {
    const auto file = TestDataPath("pngsuite/png/basn6a08.png");
    const auto png = ReadFileBytes(file);
    c32bppDIB dib, streamed;
    ASSERT_TRUE(dib.LoadPicture_Stream(png, true));
    EXPECT_TRUE(dib.Alpha());
    EXPECT_EQ(dib.ImageType(), ImageFormat::Png);
    EXPECT_TRUE(std::ranges::equal(dib.GetOrginalFormat(), png));
    ASSERT_TRUE(streamed.LoadPicture_File(file, false));
    EXPECT_EQ(streamed.GetDIBbits(), dib.GetDIBbits());
    EXPECT_TRUE(streamed.GetOrginalFormat().empty());
    ASSERT_TRUE(streamed.LoadPicture_File(file, true));
    EXPECT_TRUE(std::ranges::equal(streamed.GetOrginalFormat(), png));
    EXPECT_FALSE(streamed.LoadPicture_File("/nonexistent/file.png"));
    EXPECT_FALSE(
        dib.LoadPicture_Stream(std::vector<std::uint8_t>(png.begin(), png.begin() + 100), true));
    EXPECT_TRUE(dib.Empty());
    EXPECT_TRUE(dib.GetOrginalFormat().empty());
}

TEST(Dib, SavingReplacesAFileOnlyWhenAllowed) {
    TempDir dir;
    const auto file = dir / "out.png";
    c32bppDIB dib = DibFromRgba(2, 1, {10, 20, 30, 255, 40, 50, 60, 128}), back;
    ASSERT_TRUE(dib.PngPropertySet(pngSoftware, "Iconwright"));
    ASSERT_TRUE(dib.SaveToFile_PNG(file, false));  // nothing to replace
    const auto saved = ReadFileBytes(file);
    EXPECT_NE(
        std::string(saved.begin(), saved.end()).find(std::string("tEXtSoftware\0Iconwright", 23)),
        std::string::npos);
    std::vector<std::uint8_t> stream;
    ASSERT_TRUE(dib.SaveToStream_PNG(stream));
    EXPECT_EQ(stream, saved);
    EXPECT_FALSE(c32bppDIB().SaveToStream_PNG(stream));

    WriteFileBytes(file, {1, 2, 3});
    EXPECT_FALSE(dib.SaveToFile_PNG(file, false));
    EXPECT_EQ(ReadFileBytes(file), (std::vector<std::uint8_t>{1, 2, 3}));
    ASSERT_TRUE(dib.SaveToFile_PNG(file, true));
    ASSERT_TRUE(back.LoadPicture_File(file));
    EXPECT_EQ(back.GetDIBbits(), dib.GetDIBbits());
}

}  // namespace
}  // namespace iw::test
