// "Convert an Image": sizes, padding and depths of the converted set.

#include <gtest/gtest.h>

#include "PictureTestHelpers.h"
#include "document/io/ImageConversion.h"

namespace iw {
namespace {

using test::Flat;
using test::Format;
using Fixture = test::CoreFixture;

TEST(ConvertPicture, EveryFormatIsTheFittedPictureAtItsDepth) {
    Fixture f;
    const std::vector<IconInfo> formats = {Format(256, 32, true), Format(48, 32), Format(32, 8),
                                           Format(16, 4), Format(16, 1)};
    IconSet set;
    set.AddIcon(9, 9, 24);
    set.properties.name = "old";
    ASSERT_TRUE(ConvertPicture(Flat(600, 300, {255, 0, 0, 255}), formats, set, f.progress));
    ASSERT_EQ(set.Count(), 5);
    EXPECT_TRUE(set.properties.name.empty());
    EXPECT_EQ(f.progress.statuses, (std::vector<std::string>{"Importing Image...", ""}));
    EXPECT_EQ(f.progress.progress.back(), std::pair(5, 5));
    for (int i = 0; i < 5; ++i) {
        const IconImage& image = set.Image(i);
        const int side = formats[i].Width(), bits = formats[i].bitCount;
        const PackedColor inside = bits == 1 ? PackColor(0, 0, 0) : PackColor(255, 0, 0);
        ASSERT_EQ(std::tuple(image.info.Width(), image.info.Height(), int{image.info.bitCount},
                             int{image.info.png}),
                  std::tuple(side, side, bits, i == 0 ? 1 : 0));
        // A 2:1 picture fills the middle half of the square; above and below it stay clear.
        const int top = side / 4;
        EXPECT_EQ(
            std::tuple(image.Color(side / 2, top - 1), image.Color(side / 2, top),
                       image.Color(0, side - top - 1), image.Color(side - 1, side - top),
                       image.Alpha(side / 2, top)),
            std::tuple(TransparentColor, inside, inside, TransparentColor, bits == 32 ? 255 : 0))
            << side;
    }
    EXPECT_FALSE(ConvertPicture(RgbaBuffer(), formats, set, f.progress));
    EXPECT_TRUE(set.Empty());
}

}  // namespace
}  // namespace iw
