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

using Cells = std::set<std::pair<int, int>>;

Cells Footprint(std::string_view shape) {
    Cells cells;
    for (const Point& p : BrushPoints(shape, 0, 0))
        cells.insert({p.x, p.y});
    return cells;
}

// The cells of the whole 256 x 256 store that hold `color`.
Cells Painted(const IconImage& image, PackedColor color) {
    Cells cells;
    for (int x = 0; x < IconImage::kSide; ++x) {
        for (int y = 0; y < IconImage::kSide; ++y) {
            if (image.Color(x, y) == color) cells.insert({x, y});
        }
    }
    return cells;
}

TEST(PlotPixel, StoresTheColourAsGivenAlphaOnlyAt32BitsAndDropsPointsOutside) {
    IconImage deep = test::MakeImage(16, 16, 32);
    IconImage mono = test::MakeImage(16, 16, 1);
    mono.Alpha(3, 4) = 77;
    deep.KeepOriginalPng({1, 2, 3});
    EXPECT_FALSE(PlotPixel(deep, 99, 99, 5, 255));
    EXPECT_FALSE(deep.OriginalPng().empty());
    EXPECT_TRUE(PlotPixel(deep, 3, 4, PackColor(1, 2, 3), 100));
    EXPECT_TRUE(deep.OriginalPng().empty());  // the pixels no longer match the stream
    EXPECT_TRUE(PlotPixel(mono, 3, 4, PackColor(10, 200, 30), 100));
    EXPECT_TRUE(PlotPixel(mono, 5, 5, InverseColor, 100));
    EXPECT_EQ(deep.Alpha(3, 4), 100);
    EXPECT_EQ(mono.Alpha(3, 4), 77);
    EXPECT_EQ(mono.Color(3, 4), PackColor(10, 200, 30));  // no palette matching here
    EXPECT_EQ(mono.Color(5, 5), InverseColor);
    for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {16, 0}, {0, 16}})
        EXPECT_FALSE(PlotPixel(deep, x, y, 5, 255)) << x << "," << y;
    EXPECT_TRUE(Painted(deep, 5).empty());
}

TEST(BrushFootprint, SquaresAreBlocksAndCirclesNestSymmetrically) {
    EXPECT_EQ(Footprint("SSquare"), (Cells{{0, 0}}));
    EXPECT_EQ(Footprint("MSquare").size(), 9u);
    const Cells large = Footprint("LSquare");
    EXPECT_EQ(large.size(), 25u);
    EXPECT_TRUE(large.count({-2, -2}) && large.count({2, 2}));

    const Cells small = Footprint("SCircle");
    const Cells medium = Footprint("MCircle");
    const Cells ring3 = Footprint("LCircle");
    EXPECT_EQ(small, (Cells{{0, 0}, {0, -1}, {0, 1}, {-1, 0}, {1, 0}}));
    EXPECT_TRUE(std::includes(medium.begin(), medium.end(), small.begin(), small.end()));
    EXPECT_TRUE(std::includes(ring3.begin(), ring3.end(), medium.begin(), medium.end()));
    // 360 integer radians hit every cell of both rings: 16 cells at radius 2, 24 at 3.
    EXPECT_EQ(medium.size(), 5u + 16u);
    EXPECT_EQ(ring3.size(), 5u + 16u + 24u);
    for (const auto& [x, y] : ring3) {
        EXPECT_TRUE(ring3.count({-x, y}) && ring3.count({x, -y}));
        EXPECT_LE(std::max(std::abs(x), std::abs(y)), 3);
    }
    EXPECT_FALSE(medium.count({2, 2}));  // the radius-2 ring misses the block's corners
    EXPECT_TRUE(ring3.count({2, 2}));
}

TEST(BrushStamp, DropsPointsOutsideTheImageAndPaintsTheRest) {
    IconImage image = test::MakeImage(16, 16, 32);
    StampBrush(image, "LSquare", 0, 0, 9, 255);
    EXPECT_EQ(Painted(image, 9).size(), 9u);  // the 3 x 3 quarter inside
    StampBrush(image, "SCircle", -1, 8, 7, 255);
    EXPECT_EQ(Painted(image, 7), (Cells{{0, 8}}));
    StampBrush(image, "LSquare", 15, 15, 6, 255);  // no wrapping into the next row
    EXPECT_EQ(Painted(image, 6).size(), 9u);
    for (const auto& [x, y] : Painted(image, 6))
        EXPECT_TRUE(x >= 13 && x <= 15 && y >= 13 && y <= 15) << x << "," << y;
}

TEST(BrushStroke, LeavesNoGapsBetweenDistantPoints) {
    IconImage image = test::MakeImage(32, 32, 32);
    StampBrush(image, "SSquare", 0, 0, 9, 255);
    BrushStroke(image, "SSquare", {0, 0}, {20, 10}, 9, 255);
    std::set<int> columns;
    for (const auto& cell : Painted(image, 9))
        columns.insert(cell.first);
    EXPECT_EQ(Painted(image, 9).size(), 21u);  // one cell in each column of the line
    EXPECT_EQ(columns.size(), 21u);
}

TEST(Airbrush, DrawsOneChanceInThirtyThreeAndReseedsEverySpray) {
    // u = 2/33 gives an integer part of 2 after multiplying by 33: a dot every time.
    test::ScriptedRandom always({2.0 / 33.0 + 1e-9});
    EXPECT_EQ(SprayPoints(10, 10, 4, always).size(), 5u * 360u);
    test::ScriptedRandom never({0.5, 0.01, 0.99, 1.5 / 33.0, 3.5 / 33.0});
    EXPECT_TRUE(SprayPoints(10, 10, 4, never).empty());
    EXPECT_EQ(never.reseeds, 1);
    // Only the last ring's 360 chances (r = 0) come out as dots, all on the centre.
    std::vector<double> values(4 * 360, 0.9);
    values.resize(5 * 360, 2.5 / 33.0);
    test::ScriptedRandom lastRing(values);
    const auto dots = SprayPoints(7, 8, 4, lastRing);
    EXPECT_EQ(dots, std::vector<Point>(360, Point{7, 8}));
}

TEST(Airbrush, StaysWithinItsRadiusAndDropsDotsOutsideTheImage) {
    test::ScriptedRandom always({2.5 / 33.0});
    for (int radius : {4, 6, 8}) {
        for (const Point& dot : SprayPoints(50, 60, radius, always))
            EXPECT_LE(std::hypot(dot.x - 50, dot.y - 60), radius + 0.75);
    }
    IconImage image = test::MakeImage(16, 16, 32);
    Spray(image, 0, 0, 4, 9, 255, always);
    const Cells painted = Painted(image, 9);
    EXPECT_TRUE(painted.count({0, 0}) && painted.count({4, 0}) && painted.count({0, 4}));
    for (const auto& [x, y] : painted)
        EXPECT_TRUE(x <= 4 && y <= 4) << x << "," << y;
}

}  // namespace
}  // namespace iw
