// The 32-bpp image object: creation rules, pixel access, PNG loading and saving.

#include <gtest/gtest.h>

#include <limits>

#include "PngTestHelpers.h"
#include "codec/c32bppDIB.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

TEST(Dib, InitializeDibFollowsItsFailureRules) {
    c32bppDIB dib;
    EXPECT_FALSE(dib.InitializeDIB(-1, 5));
    EXPECT_FALSE(dib.InitializeDIB(5, 0));
    EXPECT_FALSE(dib.InitializeDIB(0, 5));  // a section of no pixels
    EXPECT_FALSE(dib.InitializeDIB(std::numeric_limits<std::int32_t>::min() + 1, 1));
    EXPECT_FALSE(dib.InitializeDIB(1, std::numeric_limits<std::int32_t>::min()));
    EXPECT_FALSE(dib.InitializeDIB(65536, 32768));  // 2^33 bytes: past the 32-bit image size
    EXPECT_TRUE(dib.Empty());
    ASSERT_TRUE(dib.InitializeDIB(3, -2));  // a negative height counts as its absolute value
    EXPECT_EQ(dib.Height(), 2);
    EXPECT_EQ(dib.scanWidth(), 12);
    EXPECT_EQ(dib.InfoHeader().sizeImage, 24u);
    EXPECT_EQ(dib.InfoHeader().bitCount, 32);
    EXPECT_TRUE(dib.isAlphaBlendFriendly());
    EXPECT_EQ(dib.ImageType(), ImageFormat::None);
    EXPECT_EQ(dib.GetDIBbits(), std::vector<std::uint8_t>(24, 0));
    // A failed call leaves the object empty, whatever it held.
    EXPECT_FALSE(dib.InitializeDIB(-3, 2));
    EXPECT_TRUE(dib.Empty());
    EXPECT_EQ(dib.Width(), 0);
}

TEST(Dib, KeepsRowsBottomUpInBlueGreenRedAlphaOrder) {
    c32bppDIB dib;
    ASSERT_TRUE(dib.InitializeDIB(2, 3));
    ASSERT_TRUE(dib.SetPixel(1, 0, {1, 2, 3, 4}));  // top row, right pixel
    const auto bits = dib.GetDIBbits();
    // The top row is the last one in memory.
    EXPECT_EQ(std::vector<std::uint8_t>(bits.begin() + 2 * 8 + 4, bits.begin() + 2 * 8 + 8),
              (std::vector<std::uint8_t>{1, 2, 3, 4}));
    BgraPixel p;
    ASSERT_TRUE(dib.GetPixel(1, 0, p));
    EXPECT_EQ(p, (BgraPixel{1, 2, 3, 4}));
    EXPECT_FALSE(dib.GetPixel(2, 0, p));
    EXPECT_FALSE(dib.GetPixel(0, -1, p));
    EXPECT_FALSE(dib.SetPixel(0, 3, {}));
}

TEST(Dib, SetsBitsOnlyOfTheRightSizeAndErases) {
    c32bppDIB dib;
    ASSERT_TRUE(dib.InitializeDIB(2, 2));
    EXPECT_FALSE(dib.SetDIBbits(std::vector<std::uint8_t>(15, 7)));
    ASSERT_TRUE(dib.SetDIBbits(std::vector<std::uint8_t>(16, 7)));
    EXPECT_EQ(dib.GetDIBbits(), std::vector<std::uint8_t>(16, 7));
    dib.EraseDIB();
    EXPECT_EQ(dib.GetDIBbits(), std::vector<std::uint8_t>(16, 0));
    dib.DestroyDIB();
    EXPECT_FALSE(dib.SetDIBbits({}));
}

TEST(Dib, CopiesPixelsAndState) {
    c32bppDIB source = DibFromRgba(3, 1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    source.Alpha(true);
    source.ImageType(ImageFormat::Png);
    source.PngPropertySet(pngAuthor, "me");
    c32bppDIB copy;
    ASSERT_TRUE(source.CopyImageTo(copy));
    EXPECT_EQ(copy.GetDIBbits(), source.GetDIBbits());
    EXPECT_TRUE(copy.Alpha());
    EXPECT_EQ(copy.ImageType(), ImageFormat::Png);
    EXPECT_EQ(copy.PngPropertyGet(pngAuthor), "me");
    c32bppDIB empty;
    EXPECT_FALSE(empty.CopyImageTo(copy));
    EXPECT_TRUE(copy.Empty());
}

TEST(Dib, LoadsPngFromMemoryKeepingTheSourceWhenAsked) {
    const auto png = ReadFileBytes(SharedPath("testdata/pngsuite/png/basn6a08.png"));
    c32bppDIB dib;
    ASSERT_TRUE(dib.LoadPicture_Stream(png, true));
    EXPECT_EQ(dib.Width(), 32);
    EXPECT_TRUE(dib.Alpha());
    EXPECT_EQ(dib.ImageType(), ImageFormat::Png);
    EXPECT_EQ(
        std::vector<std::uint8_t>(dib.GetOrginalFormat().begin(), dib.GetOrginalFormat().end()),
        png);
    ASSERT_TRUE(dib.LoadPicture_Stream(png, false));
    EXPECT_TRUE(dib.GetOrginalFormat().empty());
    std::vector<std::uint8_t> broken(png.begin(), png.begin() + 100);
    EXPECT_FALSE(dib.LoadPicture_Stream(broken, true));
    EXPECT_TRUE(dib.Empty());
    EXPECT_TRUE(dib.GetOrginalFormat().empty());
}

TEST(Dib, LoadsPngFilesWithAndWithoutKeepingThem) {
    const auto file = SharedPath("testdata/pngsuite/png/basi3p08.png");
    c32bppDIB streamed, kept;
    ASSERT_TRUE(streamed.LoadPicture_File(file, false));
    ASSERT_TRUE(kept.LoadPicture_File(file, true));
    EXPECT_EQ(streamed.GetDIBbits(), kept.GetDIBbits());
    EXPECT_EQ(kept.GetOrginalFormat().size(), std::filesystem::file_size(file));
    EXPECT_FALSE(streamed.LoadPicture_File("/nonexistent/file.png"));
}

TEST(Dib, SavingAsksBeforeReplacingAFile) {
    TempDir dir;
    const auto file = dir / "out.png";
    c32bppDIB dib = DibFromRgba(2, 1, {10, 20, 30, 255, 40, 50, 60, 128});
    MessageFixture messages;
    ASSERT_TRUE(dib.SaveToFile_PNG(file, &messages.service));
    EXPECT_TRUE(messages.presenter.shown.empty());  // nothing to replace: no question
    c32bppDIB back;
    ASSERT_TRUE(back.LoadPicture_File(file));
    EXPECT_EQ(back.GetDIBbits(), dib.GetDIBbits());

    WriteFileBytes(file, {1, 2, 3});
    messages.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(dib.SaveToFile_PNG(file, &messages.service));
    ASSERT_EQ(messages.presenter.shown.size(), 1u);
    EXPECT_EQ(messages.presenter.shown[0].text, "Overwrite existing file?");
    EXPECT_EQ(messages.presenter.shown[0].title, "Overwrite Confirmation");
    EXPECT_EQ(messages.presenter.shown[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(ReadFileBytes(file), (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_FALSE(dib.SaveToFile_PNG(file, nullptr));  // nobody to ask: kept
    EXPECT_EQ(ReadFileBytes(file), (std::vector<std::uint8_t>{1, 2, 3}));

    messages.presenter.answer = MessageAnswer::Yes;
    ASSERT_TRUE(dib.SaveToFile_PNG(file, &messages.service));
    ASSERT_TRUE(back.LoadPicture_File(file));
    EXPECT_EQ(back.GetDIBbits(), dib.GetDIBbits());
}

TEST(Dib, SavesToAStreamWithItsProperties) {
    c32bppDIB dib = DibFromRgba(1, 1, {1, 2, 3, 255});
    ASSERT_TRUE(dib.PngPropertySet(pngSoftware, "Iconwright"));
    std::vector<std::uint8_t> png;
    ASSERT_TRUE(dib.SaveToStream_PNG(png));
    const std::string text(png.begin(), png.end());
    EXPECT_NE(text.find(std::string("tEXtSoftware\0Iconwright", 23)), std::string::npos);
    c32bppDIB empty;
    EXPECT_FALSE(empty.SaveToStream_PNG(png));
}

TEST(Dib, GdiPlusStaysOffWhereThereIsNone) {
    c32bppDIB dib;
    dib.isGDIplusEnabled(true);
    EXPECT_FALSE(dib.isGDIplusEnabled());
}

}  // namespace
}  // namespace iw::test
