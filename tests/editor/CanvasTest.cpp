// The canvas handing its events to the tools: which tools record an undo snapshot, and the
// floating selection's hooks (keys, cursor, dropped before Undo and image switches).
#include <gtest/gtest.h>

#include "EditorFakes.h"

namespace iw {
namespace {

using enum ToolId;

TEST(Canvas, PaintingToolsRecordOneSnapshotAStrokeAndTheOthersNone) {
    const std::pair<ToolId, bool> cases[] = {
        {Fill, true},    {Airbrush, true},  {Pencil, true},     {Line, true},    {Gradient, true},
        {Ellipse, true}, {Rectangle, true}, {PickColor, false}, {Select, false}, {Text, false},
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

// Marks its origin with 77 when dropped.
struct MarkFloating final : IFloatingSelection {
    explicit MarkFloating(Point at) : origin(at) {}
    Point Origin() const override { return origin; }
    const IconImage& Pixels() const override { return pixels; }
    void Drop(IconImage& image, SelectionMode) override { image.Color(origin.x, origin.y) = 77; }
    Point origin;
    IconImage pixels;
};

// A stand-in for Select: a press lifts a floating selection, the right arrow moves it.
struct LiftTool final : ITool {
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        context.undo.AddUndo();
        context.floating = std::make_unique<MarkFloating>(event.cell);
        return {};
    }
    ToolResult Move(ToolContext&, const PointerEvent&) override { return {}; }
    std::optional<ToolResult> Key(ToolContext& context, const KeyEvent& event) override {
        if (!context.floating || event.key != CanvasKey::Right) return std::nullopt;
        static_cast<MarkFloating&>(*context.floating).origin.x += 1;
        return ToolResult{true};
    }
    CursorHint CursorAt(const IFloatingSelection* floating, Point cell) const override {
        return floating && floating->Origin() == cell ? CursorHint::Move : CursorHint::Tool;
    }
};

TEST(Canvas, AFloatingSelectionIsDroppedBeforeUndoAndImageSwitchesAndLetGoWithTheSet) {
    test::EditorFixture f;
    ToolSet tools = StandardTools();
    tools[static_cast<std::size_t>(Select)] = std::make_unique<LiftTool>();
    Editor editor{EditorServices{f.presenter, f.progress, f.log, f.documents, f.view, f.random},
                  std::move(tools)};
    IconSet two = test::SolidSet(8, 32, 0);
    two.AddIcon(7, 7, 32);
    f.documents.Put(f.PathFor("two.ico"), two);
    ASSERT_TRUE(editor.Document().OpenDocument(f.PathFor("two.ico")));
    editor.Tools().SelectTool(Select);
    CanvasController& canvas = editor.Canvas();
    const auto lift = [&](Point at) {
        canvas.PointerPress(at, MouseButton::Left);
        canvas.PointerRelease(at);
    };

    lift({2, 2});
    ASSERT_NE(canvas.FloatingSelection(), nullptr);
    EXPECT_EQ(canvas.CursorAt({2, 2}), CursorHint::Move);
    EXPECT_TRUE(canvas.KeyPress({CanvasKey::Right, {}}));
    EXPECT_FALSE(canvas.KeyPress({CanvasKey::Delete, {}}));  // the window passes it on
    EXPECT_TRUE(editor.Undo());  // drops at (3, 2), then undoes the lift
    EXPECT_EQ(canvas.FloatingSelection(), nullptr);
    EXPECT_EQ(editor.CurrentImage().Color(3, 2), 0);
    EXPECT_TRUE(editor.Repeat());  // the redo snapshot holds the dropped selection
    EXPECT_EQ(editor.CurrentImage().Color(3, 2), 77);

    lift({5, 5});
    editor.SelectImage(1);
    EXPECT_EQ(editor.Set().Image(0).Color(5, 5), 77);
    lift({1, 1});
    f.presenter.answer = MessageAnswer::No;
    ASSERT_TRUE(editor.Document().NewDocument());
    EXPECT_EQ(canvas.FloatingSelection(), nullptr);
    EXPECT_EQ(editor.CurrentImage().Color(1, 1), TransparentColor);
}

}  // namespace
}  // namespace iw
