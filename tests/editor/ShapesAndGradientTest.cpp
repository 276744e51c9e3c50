// Line, Rectangle, Ellipse and the gradients.
#include <gtest/gtest.h>

#include <set>

#include "editor/Geometry.h"
#include "editor/Gradient.h"
#include "editor/Shapes.h"
#include "support/TestImages.h"

namespace iw {
namespace {

std::set<std::pair<int, int>> Cells(const std::vector<Point>& points) {
    std::set<std::pair<int, int>> cells;
    for (const Point& p : points)
        cells.insert({p.x, p.y});
    return cells;
}

TEST(Line, ConnectsBothEndsInAnyDirectionAndThickensAcross) {
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
    for (int width = 1; width <= 4; ++width) {
        EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, width)).size(),
                  static_cast<std::size_t>(width * (9 + width)));
    }
    const auto three = Cells(ThickLinePoints({5, 5}, {5, 5}, 3));  // centred
    EXPECT_TRUE(three.count({4, 4}) && three.count({6, 6}));
    EXPECT_EQ(Cells(ThickLinePoints({0, 0}, {9, 0}, 9)).size(), 10u);  // unknown: thin
}

TEST(Rectangle, OutlineIsTheBorderAndFillIsEverything) {
    const auto outline = Cells(RectanglePoints({7, 5}, {2, 1}, false));
    EXPECT_EQ(Cells(RectanglePoints({2, 1}, {7, 5}, true)).size(), 6u * 5u);
    EXPECT_EQ(outline.size(), 2u * 6u + 2u * 3u);
    EXPECT_FALSE(outline.count({4, 3}));
    EXPECT_TRUE(outline.count({2, 1}) && outline.count({7, 5}));
    // Far outside the store it stays small.
    EXPECT_LE(RectanglePoints({-5000, -5000}, {5000, 5000}, true).size(), 256u * 256u);
    EXPECT_TRUE(RectanglePoints({300, 300}, {400, 400}, true).empty());
}

TEST(Ellipse, IsSymmetricInsideItsBoxAndTheOutlineIsClosed) {
    const auto filled = Cells(EllipsePoints({0, 0}, {10, 6}, true));
    const auto outline = Cells(EllipsePoints({0, 0}, {10, 6}, false));
    for (const auto& [x, y] : filled) {
        EXPECT_TRUE(filled.count({10 - x, y}) && filled.count({x, 6 - y}));
        EXPECT_TRUE(x >= 0 && x <= 10 && y >= 0 && y <= 6);
    }
    // It touches all four sides of its box but not the corners.
    EXPECT_TRUE(filled.count({0, 3}) && filled.count({10, 3}) && filled.count({5, 0}) &&
                filled.count({5, 6}));
    EXPECT_FALSE(filled.count({0, 0}));
    for (const auto& cell : outline)
        EXPECT_TRUE(filled.count(cell));
    EXPECT_FALSE(outline.count({5, 3}));
    EXPECT_TRUE(outline.count({0, 3}) && outline.count({5, 0}));
}

TEST(Gradient, BlendsChannelsAndAlphaFromForegroundToBackground) {
    IconImage image = test::MakeImage(5, 3, 32);
    PaintGradient(image, GradientDirection::Horizontal, PackColor(0, 100, 200), 0,
                  PackColor(200, 100, 0));
    EXPECT_EQ(std::tuple(image.Color(0, 1), image.Color(4, 1), image.Color(2, 0)),
              std::tuple(PackColor(0, 100, 200), PackColor(200, 100, 0), PackColor(100, 100, 100)));
    // 127.5 rounds to the even 128.
    EXPECT_EQ(std::tuple(image.Alpha(0, 2), image.Alpha(4, 2), image.Alpha(2, 2)),
              std::tuple(0, 255, 128));
}

TEST(Gradient, MapsLowDepthsToTheirPaletteAndSplitsBetweenMarkerEnds) {
    IconImage image = test::MakeImage(16, 16, 4);
    PaintGradient(image, GradientDirection::Vertical, 0, 255, PackColor(255, 255, 255));
    for (int y = 0; y < 16; ++y) {
        const PackedColor c = image.Color(0, y);
        EXPECT_TRUE(c == 0 || c == PackColor(128, 128, 128) || c == PackColor(192, 192, 192) ||
                    c == PackColor(255, 255, 255))
            << y;
    }
    IconImage halves = test::MakeImage(4, 4, 8);
    PaintGradient(halves, GradientDirection::Vertical, TransparentColor, 255, PackColor(1, 2, 3));
    EXPECT_EQ(std::pair(halves.Color(0, 1), halves.Color(0, 2)),
              std::pair(TransparentColor, PackColor(1, 2, 3)));
}

}  // namespace
}  // namespace iw
