// Between the planes and RGBA: lossless round trips at every depth, regions, and the
// depth rules on the way back.

#include <gtest/gtest.h>

#include "SyntheticImages.h"
#include "imaging/ImageRgbaPixels.h"
#include "imaging/StandardColors.h"

namespace iw {
namespace {

// Colours each depth holds exactly, with transparent and (below 32 bits) inverting pixels.
void PaintForDepth(IconImage& image) {
    const int bits = image.info.bitCount;
    for (int y = 0; y < image.info.Height(); ++y) {
        for (int x = 0; x < image.info.Width(); ++x) {
            PackedColor c = bits == 1 ? kMonoColors[static_cast<std::size_t>((x + y) % 2)]
                            : bits == 4
                                ? kStandard16Colors[static_cast<std::size_t>((x * 3 + y) % 16)]
                                : PackColor(x * 9, y * 7, 200 - x);
            if ((x + 2 * y) % 7 == 0) c = TransparentColor;
            if ((x + y) % 5 == 3 && bits != 32) c = InverseColor;
            image.Color(x, y) = c;
            if (bits == 32) image.Alpha(x, y) = c == TransparentColor ? 0 : 1 + (x * 13 + y) % 255;
        }
    }
}

TEST(ImageRgbaPixels, ReadingAndWritingBackChangesNothingAtAnyDepth) {
    for (int bits : {1, 4, 8, 24, 32}) {
        IconImage image;
        test::ShapeImage(image, 13, 9, bits);
        PaintForDepth(image);
        const IconImage original = image.Clone();
        WriteImageRgba(image, 0, 0, ReadImageRgba(image));
        // A region taken out and put back in its place changes nothing either.
        WriteImageRgba(image, 4, 2, ReadImageRgba(image, {4, 2, 6, 5}));
        for (int y = 0; y < 9; ++y) {
            for (int x = 0; x < 13; ++x) {
                ASSERT_EQ(image.Color(x, y), original.Color(x, y))
                    << bits << " bits " << x << "," << y;
                ASSERT_EQ(image.Alpha(x, y), original.Alpha(x, y));
            }
        }
    }
}

TEST(ImageRgbaPixels, RegionsAreClippedToTheImage) {
    IconImage image;
    test::ShapeImage(image, 5, 4, 32);
    image.Color(4, 3) = PackColor(1, 2, 3);
    image.Alpha(4, 3) = 77;
    const RgbaBuffer corner = ReadImageRgba(image, {3, 2, 10, 10});
    ASSERT_EQ(corner.Width(), 2);
    ASSERT_EQ(corner.Height(), 2);
    EXPECT_EQ(corner.At(1, 1), (Rgba{1, 2, 3, 77}));
    EXPECT_TRUE(ReadImageRgba(image, {-5, 0, 3, 3}).Empty());

    RgbaBuffer big(8, 8);
    big.At(0, 0) = {9, 9, 9, 255};
    image.KeepOriginalPng(std::vector<std::uint8_t>{1, 2, 3});
    WriteImageRgba(image, 4, 3, big);  // only (4, 3) lies inside
    const IconImage& written = image;
    EXPECT_TRUE(written.OriginalPng().empty());
    EXPECT_EQ(written.Color(4, 3), PackColor(9, 9, 9));
    EXPECT_EQ(written.Color(5, 3), 0);  // beyond the sides: untouched
}

TEST(ImageRgbaPixels, WritingFollowsTheDepthRules) {
    struct Case {
        Rgba pixel;
        int bits;
        PackedColor expected;
    };
    const Case cases[] = {
        {{200, 200, 200, 127}, 8, TransparentColor},
        {{200, 10, 20, 128}, 24, PackColor(200, 10, 20)},
        {{200, 200, 200, 255}, 4, PackColor(192, 192, 192)},
        {{100, 200, 30, 255}, 4, PackColor(255, 255, 0)},
        {{128, 128, 127, 200}, 1, PackColor(255, 255, 255)},
        {{127, 128, 127, 200}, 1, 0},
        {{0, 0, 0, 0}, 32, TransparentColor},
        {{5, 0, 0, 0}, 32, PackColor(5, 0, 0)},
        {{0, 0, 0, 1}, 32, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ColorAtDepth(c.pixel, false, c.bits), c.expected) << c.bits;
        EXPECT_EQ(ColorAtDepth(c.pixel, true, c.bits), InverseColor);
    }
}

TEST(ImageRgbaPixels, ReplacingSetsTheSidesCrosswiseAsTheFieldsSay) {
    IconImage image;
    test::ShapeImage(image, 16, 16, 32);
    image.Color(15, 15) = PackColor(1, 1, 1);
    RgbaBuffer wide(20, 3);
    wide.At(19, 2) = {4, 5, 6, 255};
    ReplaceImageRgba(image, wide);
    EXPECT_EQ(image.info.widthMinus1, 19);  // field 0: the planes' x extent
    EXPECT_EQ(image.info.heightMinus1, 2);
    EXPECT_EQ(image.Color(19, 2), PackColor(4, 5, 6));
    EXPECT_EQ(image.Color(15, 15), 0);
}

}  // namespace
}  // namespace iw
