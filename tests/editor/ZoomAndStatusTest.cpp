// Zoom arithmetic, the status text for the pixel under the mouse and the channel boxes.
#include <gtest/gtest.h>

#include "editor/PixelStatus.h"
#include "editor/ToolTable.h"
#include "editor/Zoom.h"

namespace iw {
namespace {

TEST(CapPixelSize, CapsLargeImagesTestingTheSideLessOneOnPurpose) {
    EXPECT_EQ(CapPixelSize(48, 32, 32), 24);  // 31 * 48 = 1488 > 768, 768 / 32 = 24
    EXPECT_EQ(CapPixelSize(4, 256, 256), 3);  // 255 * 4 = 1020 > 768, 768 / 256 = 3
    EXPECT_EQ(CapPixelSize(3, 256, 256), 3);  // 255 * 3 = 765 is allowed
    EXPECT_EQ(CapPixelSize(48, 16, 16), 48);  // 15 * 48 = 720
    // 33 * 24 = 792 screen pixels: one cell more than 768, yet (33 - 1) * 24 = 768 passes.
    EXPECT_EQ(CapPixelSize(24, 33, 33), 24);
    EXPECT_EQ(CapPixelSize(24, 34, 34), 22);
    // The height test runs with the value the width test left.
    EXPECT_EQ(CapPixelSize(48, 16, 64), 12);
    EXPECT_EQ(CapPixelSize(48, 64, 16), 12);
}

TEST(Zoom, FitInWindowTakesTheSmallerQuotientAndStepsTurnItOff) {
    EditorState state;
    state.FitInWindow = true;
    LayoutCanvas(state, {800, 600}, 32, 32);  // (800-32)/32 = 24, (600-32)/32 = 17
    EXPECT_EQ(state.PixelSize, 17);
    LayoutCanvas(state, {4000, 4000}, 16, 16);  // 248, clamped to 48
    EXPECT_EQ(state.PixelSize, 48);
    LayoutCanvas(state, {20, 20}, 16, 16);  // negative room still gives 1
    EXPECT_EQ(state.PixelSize, 1);
    LayoutCanvas(state, {4000, 4000}, 256, 256);  // 15, then the cap
    EXPECT_EQ(state.PixelSize, 3);

    state.PixelSize = 1;
    ZoomOut(state, {800, 600}, 32, 32);
    EXPECT_EQ(state.PixelSize, 1);  // zoom out from 1 stays 1 after the clamp
    EXPECT_FALSE(state.FitInWindow);
    state.PixelSize = 23;
    ZoomIn(state, {800, 600}, 32, 32);
    EXPECT_EQ(state.PixelSize, 24);
    ZoomIn(state, {800, 600}, 32, 32);
    EXPECT_EQ(state.PixelSize, 24);  // 31 * 25 > 768
    NormalZoom(state, {800, 600}, 8, 8);
    EXPECT_EQ(state.PixelSize, 1);
    // Positions left of or above the canvas round down to negative cells.
    EXPECT_EQ(CanvasToImage(31, 47, 16), (Point{1, 2}));
    EXPECT_EQ(CanvasToImage(-1, -17, 16), (Point{-1, -2}));
}

IconImage OnePixel(int bits, PackedColor color, int alpha) {
    IconImage image;
    image.info.widthMinus1 = 0;
    image.info.heightMinus1 = 0;
    image.info.bitCount = static_cast<std::int16_t>(bits);
    image.Color(0, 0) = color;
    image.Alpha(0, 0) = alpha;
    return image;
}

TEST(PixelStatus, NamesMarkersChannelsAndLowDepthColours) {
    EXPECT_EQ(PixelStatusText(OnePixel(32, TransparentColor, 0), 0, 0), "Transparent");
    EXPECT_EQ(PixelStatusText(OnePixel(1, InverseColor, 0), 0, 0), "Inverted");
    EXPECT_EQ(PixelStatusText(OnePixel(24, PackColor(1, 2, 3), 9), 0, 0), "R 1, G 2, B 3");
    EXPECT_EQ(PixelStatusText(OnePixel(32, PackColor(1, 2, 3), 9), 0, 0), "R 1, G 2, B 3, A 9");
    EXPECT_EQ(PixelStatusText(OnePixel(8, PackColor(128, 0, 0), 0), 0, 0), "R 128, G 0, B 0");
    EXPECT_EQ(PixelStatusText(OnePixel(32, 0, 0), 1, 0), "");
    EXPECT_EQ(PixelStatusText(OnePixel(4, PackColor(192, 192, 192), 0), 0, 0),
              "R 192, G 192, B 192 (Silver)");
    // A colour the palette lacks is named after what it is saved as.
    EXPECT_EQ(PixelStatusText(OnePixel(1, PackColor(10, 10, 10), 0), 0, 0),
              "R 10, G 10, B 10 (Black)");
}

TEST(ChannelEntry, TakesNumbersFromZeroBelow256AndAlphaFallsBackTo255) {
    EXPECT_EQ(ParseChannelEntry(" 255 "), 255);
    EXPECT_EQ(ParseChannelEntry("255.9"), 255);
    EXPECT_EQ(ParseChannelEntry("12.5"), 12);
    for (const char* bad : {"256", "-1", "", "abc", "1e2", "12a", "0x10", "nan"})
        EXPECT_FALSE(ParseChannelEntry(bad).has_value()) << bad;
    EditorState state;
    state.ForeColor = PackColor(10, 20, 30);
    EXPECT_FALSE(ApplyChannelEntry(state, Channel::Green, "200").has_value());
    ApplyChannelEntry(state, Channel::Blue, "300");
    EXPECT_EQ(state.ForeColor, PackColor(10, 200, 30));
    state.CurrentAlpha = 40;
    EXPECT_FALSE(ApplyChannelEntry(state, Channel::Alpha, "90").has_value());
    EXPECT_EQ(state.CurrentAlpha, 90);
    EXPECT_EQ(ApplyChannelEntry(state, Channel::Alpha, "x"), "255");
    EXPECT_EQ(state.CurrentAlpha, 255);
    state.ForeColor = TransparentColor;
    ApplyChannelEntry(state, Channel::Red, "7");
    EXPECT_EQ(state.ForeColor, PackColor(7, 0, 0));
}

TEST(Tools, OptionsTakeOnlyOfferedTags) {
    EditorState state;
    EXPECT_TRUE(SelectTool(state, "Pick Color"));
    EXPECT_FALSE(SelectTool(state, "Nonsense"));
    EXPECT_EQ(state.CurrentTool, ToolId::PickColor);
    EXPECT_EQ(InfoOf(ToolId::Ellipse).panel, OptionPanel::Shape);
    EXPECT_FALSE(SetSpraySize(state, "5"));
    EXPECT_FALSE(SetLineWidth(state, "2x"));
    EXPECT_TRUE(SetLineWidth(state, "4"));
    EXPECT_EQ(state.LineWidth, 4);
    EXPECT_FALSE(SetBrushShape(state, "XCircle"));
}

}  // namespace
}  // namespace iw
