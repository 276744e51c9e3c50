// Zoom arithmetic, the status text for the pixel under the mouse, the channel boxes and the
// tool options.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/PixelStatus.h"
#include "editor/ToolControls.h"
#include "editor/ViewController.h"

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

TEST(ViewController, FitInWindowTakesTheSmallerQuotientAndStepsTurnItOff) {
    EditorEvents events;
    ViewController view(events);
    view.ZoomIn();  // no image yet: nothing to zoom
    EXPECT_EQ(view.State().PixelSize, 32);
    view.ShowImage(32, 32);  // (800-32)/32 = 24, (600-32)/32 = 17
    EXPECT_EQ(view.State().PixelSize, 17);
    view.ShowImage(16, 16);
    view.SetViewport({4000, 4000});  // 248, clamped to 48
    EXPECT_EQ(view.State().PixelSize, 48);
    view.SetViewport({20, 20});  // negative room still gives 1
    EXPECT_EQ(view.State().PixelSize, 1);
    view.SetViewport({4000, 4000});
    view.ShowImage(256, 256);  // 15, then the cap
    EXPECT_EQ(view.State().PixelSize, 3);

    view.SetViewport({800, 600});
    view.ShowImage(32, 32);
    view.NormalZoom();
    view.ZoomOut();
    EXPECT_EQ(view.State().PixelSize, 1);  // zoom out from 1 stays 1 after the clamp
    EXPECT_FALSE(view.State().FitInWindow);
    view.Restore({23, false, true});
    view.ZoomIn();
    EXPECT_EQ(view.State().PixelSize, 24);
    view.ZoomIn();
    EXPECT_EQ(view.State().PixelSize, 24);  // 31 * 25 > 768
    EXPECT_EQ(view.CanvasSize().width, 32 * 24);
    view.ToggleGrid();
    EXPECT_FALSE(view.State().ShowGrid);
    view.SetFitInWindow(true);
    EXPECT_EQ(view.State().PixelSize, 17);
    // Positions left of or above the canvas round down to negative cells.
    EXPECT_EQ(view.CanvasToImage(35, 51), (Point{2, 3}));
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

TEST(ToolControls, ChannelBoxesTakeNumbersFromZeroBelow256AndAlphaFallsBackTo255) {
    EXPECT_EQ(ParseChannelEntry(" 255 "), 255);
    EXPECT_EQ(ParseChannelEntry("255.9"), 255);
    EXPECT_EQ(ParseChannelEntry("12.5"), 12);
    for (const char* bad : {"256", "-1", "", "abc", "1e2", "12a", "0x10", "nan"})
        EXPECT_FALSE(ParseChannelEntry(bad).has_value()) << bad;
    EditorEvents events;
    test::RecordingObserver observer;
    events.Add(observer);
    ToolControls tools(events);
    tools.SetForeColor(PackColor(10, 20, 30));
    EXPECT_FALSE(tools.ApplyChannelEntry(Channel::Green, "200").has_value());
    tools.ApplyChannelEntry(Channel::Blue, "300");
    EXPECT_EQ(tools.State().ForeColor, PackColor(10, 200, 30));
    tools.SetAlpha(400);
    EXPECT_EQ(tools.ChannelValue(Channel::Alpha), 255);
    EXPECT_FALSE(tools.ApplyChannelEntry(Channel::Alpha, "90").has_value());
    EXPECT_EQ(tools.State().CurrentAlpha, 90);
    EXPECT_EQ(tools.ApplyChannelEntry(Channel::Alpha, "x"), "255");
    EXPECT_EQ(tools.State().CurrentAlpha, 255);
    tools.SetForeColor(TransparentColor);
    tools.SwitchColors();
    EXPECT_EQ(tools.State().BackColor, TransparentColor);
    tools.SwitchColors();
    tools.ApplyChannelEntry(Channel::Red, "7");
    EXPECT_EQ(tools.State().ForeColor, PackColor(7, 0, 0));
    EXPECT_EQ(observer.events["colors"], 9);
}

TEST(ToolControls, OptionsTakeOnlyOfferedTags) {
    EditorEvents events;
    ToolControls tools(events);
    EXPECT_TRUE(tools.SelectTool("Pick Color"));
    EXPECT_FALSE(tools.SelectTool("Nonsense"));
    EXPECT_EQ(tools.State().CurrentTool, ToolId::PickColor);
    tools.SelectTool(ToolId::Ellipse);
    EXPECT_EQ(tools.Panel(), OptionPanel::Shape);
    EXPECT_FALSE(tools.SetSpraySize("5"));
    EXPECT_FALSE(tools.SetLineWidth("2x"));
    EXPECT_TRUE(tools.SetLineWidth("4"));
    EXPECT_EQ(tools.State().LineWidth, 4);
    EXPECT_FALSE(tools.SetBrushShape("XCircle"));
    EXPECT_EQ(tools.State().BrushShape, "SSquare");
}

}  // namespace
}  // namespace iw
