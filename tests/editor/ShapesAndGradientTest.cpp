// Line, Rectangle, Ellipse and the four gradients.
#include <gtest/gtest.h>

#include <set>

#include "editor/Geometry.h"
#include "editor/Gradient.h"
#include "editor/Shapes.h"

namespace iw {
namespace {

std::set<std::pair<int, int>> Cells(const std::vector<Point>& points) {
    std::set<std::pair<int, int>> cells;
    for (const Point& p : points)
        cells.insert({p.x, p.y});
    return cells;
}

TEST(Line, ConnectsBothEndsInAnyDirection) {
    for (Point to : {Point{9, 3}, Point{-4, 7}, Point{2, -9}, Point{0, 0}, Point{-6, -6}}) {
        const auto line = LinePoints({0, 0}, to);
        EXPECT_EQ(line.front(), (Point{0, 0}));
        EXPECT_EQ(line.back(), to);
        for (std::size_t i = 1; i < line.size(); ++i) {
            EXPECT_LE(std::abs(line[i].x - line[i - 1].x), 1);
            EXPECT_LE(std::abs(line[i].y - line[i - 1].y), 1);
        }
        EXPECT_EQ(line.size(),
                  static_cast<std::size_t>(std::max(std::abs(to.x), std::abs(to.y)) + 1));
    }
}

TEST(Line, WidthThickensAcrossTheLine) {
    EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, 1)).size(), 10u);
    EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, 2)).size(), 2u * 11u);
    EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, 3)).size(), 3u * 12u);
    EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, 4)).size(), 4u * 13u);
    // Width 3 is centred on the line.
    const auto three = Cells(ThickLinePoints({5, 5}, {5, 5}, 3));
    EXPECT_TRUE(three.count({4, 4}) && three.count({6, 6}));
    // An unknown width draws a thin line.
    EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, 9)).size(), 10u);
}

TEST(Rectangle, OutlineIsTheBorderAndFillIsEverything) {
    const auto outline = Cells(RectanglePoints({7, 5}, {2, 1}, false));
    const auto filled = Cells(RectanglePoints({2, 1}, {7, 5}, true));
    EXPECT_EQ(filled.size(), 6u * 5u);
    EXPECT_EQ(outline.size(), 2u * 6u + 2u * 3u);
    EXPECT_FALSE(outline.count({4, 3}));
    EXPECT_TRUE(outline.count({2, 1}) && outline.count({7, 5}));
}

TEST(Rectangle, FarOutsideTheStoreStaysSmall) {
    EXPECT_LE(RectanglePoints({-5000, -5000}, {5000, 5000}, true).size(), 256u * 256u);
    EXPECT_TRUE(RectanglePoints({300, 300}, {400, 400}, true).empty());
}

TEST(Ellipse, IsSymmetricInsideItsBoxAndTheOutlineIsClosed) {
    const auto filled = Cells(EllipsePoints({0, 0}, {10, 6}, true));
    const auto outline = Cells(EllipsePoints({0, 0}, {10, 6}, false));
    for (const auto& [x, y] : filled) {
        EXPECT_TRUE(filled.count({10 - x, y}));
        EXPECT_TRUE(filled.count({x, 6 - y}));
        EXPECT_TRUE(x >= 0 && x <= 10 && y >= 0 && y <= 6);
    }
    // It touches all four sides of its box but not the corners.
    EXPECT_TRUE(filled.count({0, 3}) && filled.count({10, 3}) && filled.count({5, 0}) &&
                filled.count({5, 6}));
    EXPECT_FALSE(filled.count({0, 0}));
    for (const auto& cell : outline)
        EXPECT_TRUE(filled.count(cell));
    EXPECT_LT(outline.size(), filled.size());
    // Closed: the cells inside the outline are not reachable from outside the box.
    EXPECT_FALSE(outline.count({5, 3}));
}

IconImage Blank(int width, int height, int bits) {
    IconImage image;
    image.info.widthMinus1 = static_cast<std::int16_t>(width - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(height - 1);
    image.info.bitCount = static_cast<std::int16_t>(bits);
    return image;
}

TEST(Gradient, BlendsChannelsAndAlphaFromForegroundToBackground) {
    IconImage image = Blank(5, 3, 32);
    PaintGradient(image, GradientDirection::Horizontal, PackColor(0, 100, 200), 0,
                  PackColor(200, 100, 0));
    EXPECT_EQ(image.Color(0, 1), PackColor(0, 100, 200));
    EXPECT_EQ(image.Color(4, 1), PackColor(200, 100, 0));
    EXPECT_EQ(image.Color(2, 0), PackColor(100, 100, 100));
    EXPECT_EQ(image.Alpha(0, 2), 0);
    EXPECT_EQ(image.Alpha(4, 2), 255);
    // 255 * 0.5 = 127.5 rounds to the even 128.
    EXPECT_EQ(image.Alpha(2, 2), 128);
}

TEST(Gradient, LowDepthImagesGetPaletteColours) {
    IconImage image = Blank(16, 16, 4);
    PaintGradient(image, GradientDirection::Vertical, PackColor(0, 0, 0), 255,
                  PackColor(255, 255, 255));
    for (int y = 0; y < 16; ++y) {
        const PackedColor c = image.Color(0, y);
        EXPECT_TRUE(c == PackColor(0, 0, 0) || c == PackColor(128, 128, 128) ||
                    c == PackColor(192, 192, 192) || c == PackColor(255, 255, 255))
            << y;
    }
}

TEST(Gradient, MarkerEndsSplitTheImageInHalves) {
    IconImage image = Blank(4, 4, 8);
    PaintGradient(image, GradientDirection::Vertical, TransparentColor, 255, PackColor(1, 2, 3));
    EXPECT_EQ(image.Color(0, 1), TransparentColor);
    EXPECT_EQ(image.Color(0, 2), PackColor(1, 2, 3));
}

}  // namespace
}  // namespace iw
