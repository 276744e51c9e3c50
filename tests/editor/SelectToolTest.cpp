// The Select tool and the floating selection: lifting a dragged rectangle, moving it with
// the mouse and the keys, the two ways of dropping it, and everything that drops it first.
#include <gtest/gtest.h>

#include <functional>

#include "EditorFakes.h"
#include "editor/FloatingPicture.h"

namespace iw {
namespace {

using test::PatternColor;

struct Select : ::testing::Test {
    Select() {
        EXPECT_TRUE(f.Open(test::PatternSet(8, 32)));
        editor.Tools().SelectTool(ToolId::Select);
    }
    PackedColor At(int x, int y) const { return editor.CurrentImage().Color(x, y); }
    std::optional<CellRect> Floating() const {
        const IFloatingSelection* floating = editor.Canvas().FloatingSelection();
        return floating ? std::optional(floating->Rect()) : std::nullopt;
    }
    bool Key(CanvasKey key, bool shift = false) { return canvas.KeyPress({key, {shift}}); }

    test::EditorFixture f;
    Editor& editor = f.editor;
    CanvasController& canvas = editor.Canvas();
};

TEST_F(Select, ADraggedRectangleIsClippedToTheImageAndLiftedOutLeavingAHole) {
    canvas.PointerPress({2, 2}, MouseButton::Left);
    canvas.PointerMove({20, 5});
    EXPECT_EQ(canvas.RubberBand(), (CellRect{2, 2, 6, 4}));
    EXPECT_EQ(editor.History().UndoCount(), -1);
    canvas.PointerRelease({20, -3});  // the release cell counts: the band turns upwards

    EXPECT_EQ(canvas.RubberBand(), std::nullopt);
    ASSERT_EQ(Floating(), (CellRect{2, 0, 6, 3}));
    EXPECT_EQ(canvas.FloatingSelection()->Pixels().Color(1, 2), PatternColor(3, 2));
    EXPECT_EQ(At(3, 2), TransparentColor);
    EXPECT_EQ(At(3, 3), PatternColor(3, 3));
    EXPECT_EQ(editor.History().UndoCount(), 0);
    EXPECT_EQ(canvas.CursorAt({4, 1}), CursorHint::Move);
}

TEST_F(Select, MouseAndKeysMoveItAClickOutsideDropsItAndUndoBringsBackTheImage) {
    f.Stroke({{1, 1}, {2, 2}});
    f.Stroke({{2, 2}, {4, 5}});  // grabbed inside: moved by (2, 3)
    EXPECT_EQ(Floating(), (CellRect{3, 4, 2, 2}));
    EXPECT_TRUE(Key(CanvasKey::Left));
    EXPECT_TRUE(Key(CanvasKey::Down, true));  // eight cells, held so one cell stays over it
    EXPECT_EQ(Floating(), (CellRect{2, 7, 2, 2}));
    EXPECT_TRUE(Key(CanvasKey::Up));
    EXPECT_EQ(f.observer.events["image"], 1);  // only the lift changed pixels so far
    f.Stroke({{0, 0}});                        // a click outside: dropped, no new one
    EXPECT_EQ(Floating(), std::nullopt);
    EXPECT_FALSE(Key(CanvasKey::Enter));  // nothing left to drop: the window passes it on
    EXPECT_EQ(At(2, 6), PatternColor(1, 1));
    ASSERT_TRUE(editor.Undo());
    EXPECT_EQ(At(1, 1), PatternColor(1, 1));
    EXPECT_EQ(At(2, 6), PatternColor(2, 6));

    f.Stroke({{4, 4}, {4, 6}});
    EXPECT_TRUE(Key(CanvasKey::Delete));  // thrown away: the hole stays
    EXPECT_EQ(Floating(), std::nullopt);
    EXPECT_EQ(At(4, 5), TransparentColor);
}

TEST(SelectTool, EveryWayOfLeavingTheSelectionDropsItIntoTheImage) {
    const std::pair<std::function<void(Editor&)>, PackedColor> leaves[] = {
        {[](Editor& e) { e.Tools().SelectTool(ToolId::Pencil); }, PatternColor(1, 1)},
        {[](Editor& e) {
             e.Canvas().KeyPress({CanvasKey::Escape, {}});
         },
         PatternColor(1, 1)},
        {[](Editor& e) { e.AddUndo(); }, PatternColor(1, 1)},
        {[](Editor& e) { e.Document().Save(); }, PatternColor(1, 1)},
        {[](Editor& e) { e.SelectImage(0); }, PatternColor(1, 1)},
        {[](Editor& e) { e.Undo(); }, PatternColor(4, 1)},  // dropped, then the lift undone
        {[](Editor& e) { e.Inspector().Fix(); }, PatternColor(1, 1)},
    };
    for (const auto& [leave, color] : leaves) {
        test::EditorFixture f;
        ASSERT_TRUE(f.Open(test::PatternSet(8, 32)));
        f.editor.Tools().SelectTool(ToolId::Select);
        f.Stroke({{0, 0}, {1, 1}});
        f.Stroke({{0, 0}, {3, 0}});
        f.editor.Tools().SelectTool(ToolId::Select);  // Select again keeps it
        ASSERT_NE(f.editor.Canvas().FloatingSelection(), nullptr);
        leave(f.editor);
        EXPECT_EQ(f.editor.Canvas().FloatingSelection(), nullptr);
        // The image it floated over: the only one, or the last once the fix added larger.
        EXPECT_EQ(f.editor.Set().Image(f.editor.Set().LastIcon()).Color(4, 1), color);
    }
}

TEST(FloatingPicture, OpaqueDropsCopyTransparentOnesLetTheImageShowThrough) {
    struct Case {
        int bits;
        SelectionMode mode;
        PackedColor top;
        int topAlpha;
        PackedColor under;
        int underAlpha;
        PackedColor color;  // the image cell afterwards
        int alpha;
    };
    using enum SelectionMode;
    const PackedColor red = PackColor(255, 0, 0);
    const PackedColor blue = PackColor(0, 0, 255);
    const Case cases[] = {
        {32, Opaque, blue, 128, red, 255, blue, 128},
        {32, Transparent, TransparentColor, 200, red, 255, red, 255},
        {32, Transparent, blue, 128, TransparentColor, 0, blue, 128},
        {32, Transparent, blue, 51, red, 102, PackColor(157, 0, 98), 133},
        {4, Transparent, InverseColor, 0, red, 0, InverseColor, 0},
    };
    for (const Case& c : cases) {
        IconImage image;
        image.info.bitCount = static_cast<std::int16_t>(c.bits);
        image.info.widthMinus1 = image.info.heightMinus1 = 3;
        image.Color(2, 1) = c.under;
        image.Alpha(2, 1) = c.underAlpha;
        IconImage top;
        top.info = image.info;
        top.Color(1, 0) = c.top;
        top.Alpha(1, 0) = c.topAlpha;
        FloatingPicture(std::move(top), {1, 1}).Drop(image, c.mode);
        EXPECT_EQ(image.Color(2, 1), c.color) << c.top << " over " << c.under;
        EXPECT_EQ(image.Alpha(2, 1), c.alpha) << c.top << " over " << c.under;
    }
}

}  // namespace
}  // namespace iw
