// The canvas handing its events to the tools: which tools record an undo snapshot.
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace iw
