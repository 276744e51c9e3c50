// The Text tool's renderer and the RGBA conversions under it: what reaches the editor is
// straight RGBA in the chosen colour, with the alpha the antialiasing choice allows.
#include <gtest/gtest.h>

#include <set>

#include "ui/adapters/RgbaImage.h"
#include "ui/adapters/TextRenderer.h"

namespace iw::test {
namespace {

// The alphas of the picture's pixels, and whether every visible pixel has `color`.
std::set<int> Alphas(const RgbaPicture& picture, PackedColor color, bool& allInColor) {
    std::set<int> alphas;
    allInColor = true;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* p = picture.Pixel(x, y);
            alphas.insert(p[3]);
            if (p[3] > 0 && PackColor(p[0], p[1], p[2]) != color) allInColor = false;
        }
    }
    return alphas;
}

TEST(TextRenderer, GlyphsTakeTheColourAndTheAlphaTheAntialiasingAllows) {
    struct Case {
        bool antialias;
        PackedColor color;
        int alpha;
        PackedColor drawn;
    };
    const PackedColor violet = PackColor(120, 20, 200);
    for (const Case& c : {Case{false, violet, 255, violet}, Case{false, violet, 90, violet},
                          Case{true, violet, 200, violet},
                          Case{false, TransparentColor, 255, PackColor(0, 0, 0)}}) {
        SCOPED_TRACE(c.antialias ? "antialiased" : "sharp");
        ui::TextLook look;
        look.font.setPointSize(14);
        look.antialias = c.antialias;
        look.color = c.color;
        look.alpha = c.alpha;
        const RgbaPicture picture = ui::RenderText(QStringLiteral("Aw\n8"), look);
        ASSERT_TRUE(picture.WellFormed());
        EXPECT_GT(picture.height, picture.width / 2);  // two lines
        bool allInColor = false;
        const std::set<int> alphas = Alphas(picture, c.drawn, allInColor);
        EXPECT_TRUE(allInColor);  // straight alpha: no darkened edge colours
        EXPECT_TRUE(alphas.contains(0));
        EXPECT_EQ(*alphas.rbegin(), c.alpha);  // the largest
        // Sharp: glyph or nothing; antialiased: soft edges.
        EXPECT_EQ(alphas.size() > 2, c.antialias);
    }
    EXPECT_FALSE(ui::RenderText(QStringLiteral(" \n "), {}).WellFormed());
}

TEST(RgbaImage, PremultipliedPicturesComeBackStraight) {
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(200, 100, 50, 128));
    const RgbaPicture picture = ui::PictureOfQImage(image);
    ASSERT_TRUE(picture.WellFormed());
    const std::uint8_t* p = picture.Pixel(2, 1);
    EXPECT_NEAR(p[0], 200, 2);
    EXPECT_NEAR(p[1], 100, 2);
    EXPECT_NEAR(p[2], 50, 2);
    EXPECT_EQ(p[3], 128);
    const QImage back = ui::ImageOfPicture(picture);
    EXPECT_EQ(back.size(), QSize(3, 2));
    EXPECT_EQ(back.pixelColor(2, 1).alpha(), 128);
    EXPECT_TRUE(ui::ImageOfPicture(RgbaPicture{2, 2, {}}).isNull());  // bytes missing
}

}  // namespace
}  // namespace iw::test
