// The plotting routine, the Pencil's brush footprints and the airbrush's dots.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "EditorFakes.h"
#include "editor/Airbrush.h"
#include "editor/Brush.h"
#include "editor/PixelPlot.h"

namespace iw {
namespace {

IconImage Image(int side, int bits) {
    IconImage image;
    image.info.widthMinus1 = static_cast<std::int16_t>(side - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(side - 1);
    image.info.bitCount = static_cast<std::int16_t>(bits);
    return image;
}

std::set<std::pair<int, int>> Footprint(std::string_view shape) {
    std::set<std::pair<int, int>> cells;
    for (const Point& p : BrushPoints(shape, 0, 0))
        cells.insert({p.x, p.y});
    return cells;
}

int PaintedCells(const IconImage& image, PackedColor color) {
    int count = 0;
    for (int x = 0; x < IconImage::kSide; ++x) {
        for (int y = 0; y < IconImage::kSide; ++y)
            count += image.Color(x, y) == color ? 1 : 0;
    }
    return count;
}

TEST(PlotPixel, WritesAlphaOnlyInto32BitImages) {
    IconImage deep = Image(16, 32);
    IconImage flat = Image(16, 24);
    flat.Alpha(3, 4) = 77;
    EXPECT_TRUE(PlotPixel(deep, 3, 4, PackColor(1, 2, 3), 100));
    EXPECT_TRUE(PlotPixel(flat, 3, 4, PackColor(1, 2, 3), 100));
    EXPECT_EQ(deep.Alpha(3, 4), 100);
    EXPECT_EQ(flat.Alpha(3, 4), 77);
    EXPECT_EQ(flat.Color(3, 4), PackColor(1, 2, 3));
}

TEST(PlotPixel, StoresColoursUnmappedAtEveryDepthAndKeepsMarkers) {
    IconImage mono = Image(8, 1);
    PlotPixel(mono, 0, 0, PackColor(10, 200, 30), 255);
    PlotPixel(mono, 1, 0, InverseColor, 255);
    EXPECT_EQ(mono.Color(0, 0), PackColor(10, 200, 30));
    EXPECT_EQ(mono.Color(1, 0), InverseColor);
}

TEST(PlotPixel, DropsPointsOutsideTheImageOnEverySide) {
    IconImage image = Image(16, 32);
    EXPECT_FALSE(PlotPixel(image, -1, 0, 5, 255));
    EXPECT_FALSE(PlotPixel(image, 0, -1, 5, 255));
    EXPECT_FALSE(PlotPixel(image, 16, 0, 5, 255));
    EXPECT_FALSE(PlotPixel(image, 0, 16, 5, 255));
    EXPECT_EQ(PaintedCells(image, 5), 0);
    EXPECT_TRUE(PlotPixel(image, 15, 15, 5, 255));
}

TEST(PlotPixel, DropsTheOriginalPngStream) {
    IconImage image = Image(16, 32);
    image.originalPng = {1, 2, 3};
    PlotPixel(image, 99, 99, 5, 255);
    EXPECT_FALSE(image.originalPng.empty());
    PlotPixel(image, 1, 1, 5, 255);
    EXPECT_TRUE(image.originalPng.empty());
}

TEST(BrushFootprint, SquaresAreSolidBlocks) {
    EXPECT_EQ(Footprint("SSquare"), (std::set<std::pair<int, int>>{{0, 0}}));
    const auto medium = Footprint("MSquare");
    const auto large = Footprint("LSquare");
    EXPECT_EQ(medium.size(), 9u);
    EXPECT_EQ(large.size(), 25u);
    for (const auto& [x, y] : large) {
        EXPECT_LE(std::abs(x), 2);
        EXPECT_LE(std::abs(y), 2);
    }
}

TEST(BrushFootprint, CirclesNestAndAreSymmetric) {
    const auto small = Footprint("SCircle");
    const auto medium = Footprint("MCircle");
    const auto large = Footprint("LCircle");
    EXPECT_EQ(small, (std::set<std::pair<int, int>>{{0, 0}, {0, -1}, {0, 1}, {-1, 0}, {1, 0}}));
    for (const auto& cell : small)
        EXPECT_TRUE(medium.count(cell));
    for (const auto& cell : medium)
        EXPECT_TRUE(large.count(cell));
    // 360 integer radians hit every cell of both rings: 16 cells at radius 2, 24 at 3.
    EXPECT_EQ(medium.size(), 5u + 16u);
    EXPECT_EQ(large.size(), 5u + 16u + 24u);
    for (const auto& [x, y] : large) {
        EXPECT_TRUE(large.count({-x, y}));
        EXPECT_TRUE(large.count({x, -y}));
        EXPECT_LE(std::max(std::abs(x), std::abs(y)), 3);
    }
    // The radius-2 ring never reaches the corners of the 5 x 5 block, the radius-3 ring does
    // reach (2, 2).
    EXPECT_FALSE(medium.count({2, 2}));
    EXPECT_TRUE(large.count({2, 2}));
}

TEST(BrushStamp, DropsPointsLeftOfAndAboveTheImageButPaintsTheRest) {
    IconImage image = Image(16, 32);
    StampBrush(image, "LSquare", 0, 0, 9, 255);
    EXPECT_EQ(PaintedCells(image, 9), 9);  // the 3 x 3 quarter inside
    IconImage circle = Image(16, 32);
    StampBrush(circle, "SCircle", -1, 5, 9, 255);
    EXPECT_EQ(PaintedCells(circle, 9), 1);  // only (0, 5) of the plus
    EXPECT_EQ(circle.Color(0, 5), 9);
}

TEST(BrushStamp, ClipsAtTheRightAndBottomEdgesWithoutWrapping) {
    IconImage image = Image(16, 32);
    StampBrush(image, "LSquare", 15, 15, 9, 255);
    EXPECT_EQ(PaintedCells(image, 9), 9);
    EXPECT_EQ(image.Color(16, 15), 0);  // a cell of the store beyond the image
    EXPECT_EQ(image.Color(0, 16), 0);
}

TEST(BrushStroke, LeavesNoGapsBetweenDistantPoints) {
    IconImage image = Image(32, 32);
    StampBrush(image, "SSquare", 0, 0, 9, 255);
    BrushStroke(image, "SSquare", {0, 0}, {20, 10}, 9, 255);
    EXPECT_EQ(PaintedCells(image, 9), 21);  // one cell for every column of the line
    for (int x = 0; x <= 20; ++x) {
        int inColumn = 0;
        for (int y = 0; y < 32; ++y)
            inColumn += image.Color(x, y) == 9 ? 1 : 0;
        EXPECT_EQ(inColumn, 1) << "column " << x;
    }
}

TEST(Airbrush, DrawsOneChanceInThirtyThreeAndReseedsEverySpray) {
    // u = 2/33 gives an integer part of 2 after multiplying by 33: a dot every time.
    test::ScriptedRandom always({2.0 / 33.0 + 1e-9});
    EXPECT_EQ(SprayPoints(10, 10, 4, always).size(), 5u * 360u);
    test::ScriptedRandom never({0.5, 0.01, 0.99, 1.5 / 33.0, 3.5 / 33.0});
    EXPECT_TRUE(SprayPoints(10, 10, 4, never).empty());
    EXPECT_EQ(never.reseeds, 1);
}

TEST(Airbrush, StaysWithinItsRadius) {
    test::ScriptedRandom always({2.5 / 33.0});
    for (int radius : {4, 6, 8}) {
        for (const Point& dot : SprayPoints(50, 60, radius, always)) {
            EXPECT_LE(std::abs(dot.x - 50), radius);
            EXPECT_LE(std::abs(dot.y - 60), radius);
        }
    }
}

TEST(Airbrush, RingZeroHitsTheCentre) {
    // Only the last ring's 360 chances (r = 0) come out as dots.
    std::vector<double> values(4 * 360, 0.9);
    values.resize(5 * 360, 2.5 / 33.0);
    test::ScriptedRandom lastRing(values);
    const auto dots = SprayPoints(7, 8, 4, lastRing);
    ASSERT_EQ(dots.size(), 360u);
    for (const Point& dot : dots)
        EXPECT_EQ(dot, (Point{7, 8}));
}

TEST(Airbrush, DotsOutsideTheImageAreDropped) {
    test::ScriptedRandom always({2.5 / 33.0});
    IconImage image = Image(16, 32);
    Spray(image, 0, 0, 4, 9, 255, always);
    const int painted = PaintedCells(image, 9);
    EXPECT_GT(painted, 0);
    for (int x = 0; x < 16; ++x) {
        for (int y = 0; y < 16; ++y) {
            if (image.Color(x, y) == 9) {
                EXPECT_TRUE(x <= 4 && y <= 4);
            }
        }
    }
}

}  // namespace
}  // namespace iw
