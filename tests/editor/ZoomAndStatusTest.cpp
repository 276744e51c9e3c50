// Zoom arithmetic, the status text for the pixel under the mouse, the channel boxes and the
// tool options.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/PixelStatus.h"
#include "editor/ToolControls.h"
#include "editor/ViewController.h"

namespace iw {
namespace {

// The side less one is tested on purpose: 33 cells of 24 are 792 screen pixels, one cell
// more than 768, yet (33 - 1) x 24 = 768 passes. The height test runs with the value the
// width test left.
TEST(CapPixelSize, CapsLargeImagesTestingTheSideLessOneOnPurpose) {
    const std::tuple<int, int, int, int> cases[] = {
        {48, 32, 32, 24}, {4, 256, 256, 3}, {3, 256, 256, 3}, {48, 16, 16, 48},
        {24, 33, 33, 24}, {24, 34, 34, 22}, {48, 16, 64, 12}, {48, 64, 16, 12}};
    for (const auto& [size, width, height, capped] : cases)
        EXPECT_EQ(CapPixelSize(size, width, height), capped)
            << size << " " << width << "x" << height;
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

TEST(PixelStatus, NamesMarkersChannelsAndLowDepthColours) {
    // A colour the palette lacks is named after what it is saved as.
    const std::tuple<int, PackedColor, int, const char*> cases[] = {
        {32, TransparentColor, 0, "Transparent"},
        {1, InverseColor, 0, "Inverted"},
        {24, PackColor(1, 2, 3), 9, "R 1, G 2, B 3"},
        {32, PackColor(1, 2, 3), 9, "R 1, G 2, B 3, A 9"},
        {8, PackColor(128, 0, 0), 0, "R 128, G 0, B 0"},
        {4, PackColor(192, 192, 192), 0, "R 192, G 192, B 192 (Silver)"},
        {1, PackColor(10, 10, 10), 0, "R 10, G 10, B 10 (Black)"}};
    for (const auto& [bits, color, alpha, text] : cases) {
        const IconImage image = test::MakeImage(
            1, 1, bits, [c = color](int, int) { return c; }, alpha);
        EXPECT_EQ(PixelStatusText(image, 0, 0), text);
        EXPECT_EQ(PixelStatusText(image, 1, 0), "");  // beside the image
    }
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
