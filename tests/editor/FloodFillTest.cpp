// The Fill tool: which pixels join the region, and painting it.
#include <gtest/gtest.h>

#include "editor/FloodFill.h"
#include "support/TestImages.h"

namespace iw {
namespace {

IconImage Filled(int width, int height, int bits, PackedColor color, int alpha) {
    return test::MakeImage(
        width, height, bits, [color](int, int) { return color; }, alpha);
}

constexpr PackedColor kRed = PackColor(255, 0, 0);
constexpr PackedColor kBlue = PackColor(0, 0, 255);
constexpr PackedColor kGreen = PackColor(0, 255, 0);

TEST(FloodFill, FillsTheWholeUniformImageButNothingBeyondIt) {
    IconImage image = Filled(20, 12, 32, kRed, 255);
    EXPECT_EQ(FloodFill(image, 5, 5, kBlue, 128), 20 * 12);
    EXPECT_EQ(std::pair(image.Color(19, 11), image.Alpha(19, 11)), std::pair(kBlue, 128));
    // Store cells beyond the image stay untouched.
    EXPECT_EQ(std::pair(image.Color(20, 0), image.Color(0, 12)), std::pair(0, 0));
    // Filling with the colour already there ends too.
    IconImage large = Filled(256, 256, 32, kRed, 255);
    EXPECT_EQ(FloodFill(large, 128, 128, kRed, 255), 256 * 256);
}

TEST(FloodFill, MatchesAlphaOnlyIn32BitImages) {
    IconImage image = Filled(10, 10, 32, kRed, 255);
    for (int y = 0; y < 10; ++y)
        image.Alpha(5, y) = 254;  // a wall of the same colour, one step less opaque
    EXPECT_EQ(FloodFill(image, 0, 0, kBlue, 255), 50);
    EXPECT_EQ(std::tuple(image.Color(4, 9), image.Color(5, 0), image.Color(6, 0)),
              std::tuple(kBlue, kRed, kRed));
    // Plane 1 means nothing at 24 bits.
    IconImage flat = Filled(10, 10, 24, kRed, 255);
    flat.Alpha(3, 3) = 0;
    EXPECT_EQ(FloodFill(flat, 0, 0, kBlue, 0), 100);
}

TEST(FloodFill, IsFourConnectedAndFollowsWindingPaths) {
    IconImage image = Filled(8, 8, 32, kRed, 255);
    for (int i = 0; i < 8; ++i)  // a blue diagonal: the red halves touch only at corners
        image.Color(i, i) = kBlue;
    EXPECT_EQ(FloodFill(image, 7, 0, kGreen, 255), 28);
    EXPECT_EQ(image.Color(0, 7), kRed);

    // A comb: columns of red joined alternately at the bottom and the top.
    IconImage comb = Filled(9, 9, 32, kBlue, 255);
    for (int x = 0; x < 9; x += 2) {
        for (int y = 1; y < 8; ++y)
            comb.Color(x, y) = kRed;
    }
    for (int x = 0; x + 2 < 9; x += 2)
        comb.Color(x + 1, (x / 2) % 2 == 0 ? 7 : 1) = kRed;
    EXPECT_EQ(FloodFill(comb, 0, 1, kGreen, 255), 5 * 7 + 4);
    EXPECT_EQ(comb.Color(8, 1), kGreen);
}

TEST(FloodFill, MatchesMarkersAndIgnoresPointsOutside) {
    IconImage image = Filled(6, 6, 8, TransparentColor, 0);
    image.Color(2, 2) = kRed;
    EXPECT_EQ(FloodFill(image, -1, 0, kBlue, 255), 0);
    EXPECT_EQ(FloodFill(image, 6, 0, kBlue, 255), 0);
    EXPECT_EQ(FloodFill(image, 0, 0, kBlue, 255), 35);
    EXPECT_EQ(image.Color(2, 2), kRed);
}

}  // namespace
}  // namespace iw
