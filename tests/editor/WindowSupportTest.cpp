// What the main window asks of the core besides the editing itself: the palette strip's
// colours, the tool state kept between runs, and the Check Icon command.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/FormatsCheck.h"
#include "editor/PaletteStrip.h"
#include "editor/ToolSettings.h"
#include "imaging/StandardColors.h"

namespace iw {
namespace {

IconImage Image(int side, int bits, PackedColor fill) {
    return test::MakeImage(side, side, bits, [fill](int, int) { return fill; });
}

// Every field of the tool state, to compare whole states.
auto Fields(const ToolState& s) {
    return std::tie(s.CurrentTool, s.BrushShape, s.LineWidth, s.SpraySize, s.ShapeFilled,
                    s.Gradient, s.Selection, s.ForeColor, s.BackColor, s.CurrentAlpha);
}

TEST(PaletteStrip, ImageColoursComeColumnByColumnWithoutMarkersOrRepeats) {
    IconImage image = Image(4, 8, TransparentColor);
    image.Color(1, 0) = PackColor(1, 0, 0);
    image.Color(0, 3) = PackColor(2, 0, 0);  // column 0 is met first
    image.Color(0, 2) = InverseColor;
    image.Color(1, 1) = PackColor(2, 0, 0);  // seen already
    image.Color(3, 3) = PackColor(3, 0, 0);
    EXPECT_EQ(
        DistinctColors(image),
        (std::vector<PackedColor>{PackColor(2, 0, 0), PackColor(1, 0, 0), PackColor(3, 0, 0)}));
    // Only the image's own cells count: a pixel beyond its sides is not one of its colours.
    image.Color(4, 0) = PackColor(9, 9, 9);
    EXPECT_EQ(DistinctColors(image).size(), 3u);

    // At 256 colours the list stops.
    IconImage many = Image(32, 8, 0);
    for (int i = 0; i < 32 * 32; ++i)
        many.Color(i / 32, i % 32) = i;  // 1024 distinct colours
    const std::vector<PackedColor> colors = DistinctColors(many);
    ASSERT_EQ(colors.size(), 256u);
    EXPECT_EQ(colors[255], 255);
    EXPECT_EQ(PaletteStripColors(many).size(), 258u);
}

// Below 8 bits the strip is the depth's fixed palette; at 8 bits and above the image's own
// colours, or the default strip while the image has none.
TEST(PaletteStrip, EightBitsAndMoreShowTheImagesColoursAfterTheTwoMarkers) {
    const auto strip = [](const IconImage& image) {
        const std::vector<PackedColor> colors = PaletteStripColors(image);
        EXPECT_EQ(colors[0], TransparentColor);
        EXPECT_EQ(colors[1], InverseColor);
        return std::vector<PackedColor>(colors.begin() + 2, colors.end());
    };
    EXPECT_EQ(strip(Image(8, 4, 0)).size(), kStandard16Colors.size());
    EXPECT_EQ(strip(Image(8, 8, PackColor(7, 8, 9))), std::vector<PackedColor>{PackColor(7, 8, 9)});
    EXPECT_EQ(strip(Image(8, 8, TransparentColor)), DefaultStripColors());
    EXPECT_EQ(strip(Image(8, 32, 0)), DefaultStripColors());
}

TEST(ToolSettings, TheToolItsOptionsAndColoursComeBackInTheNextRun) {
    EditorEvents events;
    ToolControls before(events);
    before.SelectTool(ToolId::Line);
    before.SetBrushShape("MCircle");
    before.SetLineWidth("3");
    before.SetSpraySize("8");
    before.SetShapeFilled(true);
    before.SetGradientDirection(GradientDirection::Center);
    before.SetSelectionMode(SelectionMode::Transparent);
    before.SetForeColor(PackColor(1, 2, 3));
    before.SetBackColor(InverseColor);
    before.SetAlpha(77);
    XmlStore store;
    SaveToolState(store, before.State());

    ToolControls after(events);
    RestoreToolState(store, after);
    EXPECT_EQ(Fields(after.State()),
              std::tuple(ToolId::Line, "MCircle", 3, 8, true, GradientDirection::Center,
                         SelectionMode::Transparent, PackColor(1, 2, 3), InverseColor, 77));
}

TEST(ToolSettings, StoredValuesTheControlsDoNotOfferLeaveTheDefaults) {
    XmlStore store;
    for (const auto& [key, value] : std::vector<std::pair<std::string_view, std::string_view>>{
             {settings::Tool, "Hammer"},
             {settings::BrushShape, "XLCircle"},
             {settings::LineWidth, "5"},
             {settings::SpraySize, "5"},
             {settings::ShapeFill, "perhaps"},
             {settings::Gradient, "4"},
             {settings::SelectionMode, "-1"},
             {settings::ForeColor, "16777216"},
             {settings::BackColor, "-9"},
             {settings::Alpha, "256"}}) {
        store.SetValue(key, value);
    }
    EditorEvents events;
    ToolControls tools(events);
    RestoreToolState(store, tools);
    EXPECT_EQ(Fields(tools.State()), Fields(ToolState{}));
}

struct CheckIcon : ::testing::Test {
    test::EditorFixture f;
    Editor& editor = f.editor;
};

TEST_F(CheckIcon, AddsTheMissingFormatsOfIconsOnly) {
    f.Open(test::SolidSet(32, 32, PackColor(1, 2, 3)));
    const int required = static_cast<int>(editor.Inspector().RequiredFormats().size());
    ASSERT_GT(required, 1);
    EXPECT_TRUE(RunFormatsCheck(editor.Inspector()));
    EXPECT_EQ(editor.Set().Count(), required);
    EXPECT_FALSE(RunFormatsCheck(editor.Inspector()));  // nothing missing any more

    f.Open(test::SolidSet(32, 32, PackColor(1, 2, 3)), "one.cur");
    EXPECT_FALSE(RunFormatsCheck(editor.Inspector()));
    EXPECT_EQ(editor.Set().Count(), 1);
}

}  // namespace
}  // namespace iw
