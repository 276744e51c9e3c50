// Between the planes and RGBA: lossless round trips at every depth, regions, and the
// depth rules on the way back.

#include <gtest/gtest.h>

#include "imaging/ImageRgbaPixels.h"
#include "imaging/StandardColors.h"
#include "support/TestImages.h"

namespace iw {
namespace {

TEST(ImageRgbaPixels, ReadingAndWritingBackChangesNothingAtAnyDepth) {
    for (int bits : {1, 4, 8, 24, 32}) {
        IconImage image = test::MakeImage(13, 9, bits);
        test::PaintExact(image);
        const IconImage original = image.Clone();
        WriteImageRgba(image, 0, 0, ReadImageRgba(image));
        // A region taken out and put back in its place changes nothing either.
        WriteImageRgba(image, 4, 2, ReadImageRgba(image, {4, 2, 6, 5}));
        EXPECT_TRUE(test::SamePixels(image, original)) << bits << " bits";
    }
}

TEST(ImageRgbaPixels, RegionsAreClippedToTheImage) {
    IconImage image = test::MakeImage(5, 4, 32);
    image.Color(4, 3) = PackColor(1, 2, 3);
    image.Alpha(4, 3) = 77;
    const RgbaBuffer corner = ReadImageRgba(image, {3, 2, 10, 10});
    ASSERT_EQ(std::pair(corner.Width(), corner.Height()), std::pair(2, 2));
    EXPECT_EQ(corner.At(1, 1), (Rgba{1, 2, 3, 77}));
    EXPECT_TRUE(ReadImageRgba(image, {-5, 0, 3, 3}).Empty());

    RgbaBuffer big(8, 8);
    big.At(0, 0) = {9, 9, 9, 255};
    image.KeepOriginalPng(std::vector<std::uint8_t>{1, 2, 3});
    WriteImageRgba(image, 4, 3, big);  // only (4, 3) lies inside
    EXPECT_TRUE(std::as_const(image).OriginalPng().empty());
    EXPECT_EQ(std::pair(image.Color(4, 3), image.Color(5, 3)), std::pair(PackColor(9, 9, 9), 0));
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
    IconImage image = test::MakeImage(16, 16, 32);
    image.Color(15, 15) = PackColor(1, 1, 1);
    RgbaBuffer wide(20, 3);
    wide.At(19, 2) = {4, 5, 6, 255};
    ReplaceImageRgba(image, wide);
    // Field 0 is the planes' x extent; what lay outside the new sides is cleared.
    EXPECT_EQ(std::tuple(image.info.widthMinus1, image.info.heightMinus1, image.Color(19, 2),
                         image.Color(15, 15)),
              std::tuple(std::int16_t{19}, std::int16_t{2}, PackColor(4, 5, 6), 0));
}

}  // namespace
}  // namespace iw
