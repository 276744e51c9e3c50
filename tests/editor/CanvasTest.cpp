// The canvas handing its events to the tools: which tools record an undo snapshot; and the
// Set Hotspot mode taking a click instead of the tool.
#include <gtest/gtest.h>

#include <functional>

#include "EditorFakes.h"

namespace iw {
namespace {

using enum ToolId;

TEST(Canvas, PaintingToolsRecordOneSnapshotAStrokeAndTheOthersNone) {
    const std::pair<ToolId, bool> cases[] = {
        {Fill, true},    {Airbrush, true},  {Pencil, true},     {Line, true},   {Gradient, true},
        {Ellipse, true}, {Rectangle, true}, {PickColor, false}, {Select, true}, {Text, false},
    };
    for (const auto& [tool, paints] : cases) {
        test::EditorFixture f;
        ASSERT_TRUE(f.Open(test::SolidSet(16, 32, PackColor(255, 255, 255))));
        f.editor.Tools().SelectTool(tool);
        f.observer.events.clear();
        f.Stroke({{2, 2}, {9, 6}, {12, 12}});
        EXPECT_EQ(f.editor.History().UndoCount(), paints ? 0 : -1) << static_cast<int>(tool);
        EXPECT_EQ(f.observer.events["image"] > 0, paints) << static_cast<int>(tool);
        EXPECT_EQ(f.observer.events["inspector"], paints ? 1 : 0) << static_cast<int>(tool);
        EXPECT_EQ(f.editor.Document().Unmodified(), !paints) << static_cast<int>(tool);
        EXPECT_FALSE(f.editor.Canvas().Pressed());
    }
}

TEST(Canvas, SetHotspotTakesOneClickOnTheImageOfACursor) {
    for (const char* name : {"a.ico", "a.cur", "a.ani"}) {
        test::EditorFixture f;
        ASSERT_TRUE(f.Open(test::SolidSet(16, 32, PackColor(9, 9, 9)), name));
        HotspotControl& hotspot = f.editor.Hotspot();
        const bool cursor = f.editor.Document().Mode() != FileMode::ICO;
        EXPECT_EQ(hotspot.Begin(), cursor) << name;
        f.Stroke({{5, 6}});  // the pencil is the tool
        EXPECT_EQ(f.editor.History().UndoCount(), cursor ? -1 : 0) << name;
        EXPECT_EQ(hotspot.Position(), cursor ? std::optional(Point{5, 6}) : std::nullopt);
        EXPECT_EQ(f.editor.Document().Unmodified(), false);
        EXPECT_FALSE(hotspot.Setting());
        if (!cursor) continue;

        // Escape, another tool and a click beside the image end it without a change.
        const std::function<void()> ends[] = {
            [&] {
                EXPECT_TRUE(f.editor.Canvas().KeyPress({CanvasKey::Escape, {}}));
            },
            [&] { f.editor.Tools().SelectTool(ToolId::Fill); },
            [&] {
                f.Stroke({{16, 2}});
            },
        };
        for (const auto& end : ends) {
            f.observer.events.clear();
            ASSERT_TRUE(hotspot.Begin());
            end();
            EXPECT_FALSE(hotspot.Setting());
            EXPECT_EQ(f.observer.events["hotspot"], 2);
            EXPECT_EQ(f.observer.events["image"], 0);
        }
        EXPECT_EQ(hotspot.Position(), (Point{5, 6}));
    }
}

}  // namespace
}  // namespace iw
