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
    struct Expect {
        int side, bits;
        PackedColor inside;
    };
    const Expect expected[] = {{256, 32, PackColor(255, 0, 0)},
                               {48, 32, PackColor(255, 0, 0)},
                               {32, 8, PackColor(255, 0, 0)},
                               {16, 4, PackColor(255, 0, 0)},
                               {16, 1, PackColor(0, 0, 0)}};
    for (int i = 0; i < 5; ++i) {
        const IconImage& image = set.Image(i);
        const Expect& e = expected[i];
        ASSERT_EQ(image.info.Width(), e.side);
        ASSERT_EQ(image.info.Height(), e.side);
        EXPECT_EQ(image.info.bitCount, e.bits);
        EXPECT_EQ(image.info.png, i == 0 ? 1 : 0);
        // A 2:1 picture fills the middle half of the square; above and below it stay clear.
        const int top = e.side / 4;
        EXPECT_EQ(image.Color(e.side / 2, top - 1), TransparentColor) << e.side;
        EXPECT_EQ(image.Color(e.side / 2, top), e.inside) << e.side;
        EXPECT_EQ(image.Color(0, e.side - top - 1), e.inside) << e.side;
        EXPECT_EQ(image.Color(e.side - 1, e.side - top), TransparentColor) << e.side;
        EXPECT_EQ(image.Alpha(e.side / 2, top), e.bits == 32 ? 255 : 0);
    }
    EXPECT_FALSE(ConvertPicture(RgbaBuffer(), formats, set, f.progress));
    EXPECT_TRUE(set.Empty());
}

}  // namespace
}  // namespace iw
