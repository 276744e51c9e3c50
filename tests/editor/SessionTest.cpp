// A scripted session that drives the editor as the main window will: start, open a file,
// pick tools and colours, draw, undo and repeat, save, open again and compare, over real
// files with the real readers and writers.
#include <gtest/gtest.h>

#include "EditorFakes.h"

namespace iw {
namespace {

IconSet OriginalSet() {
    IconSet original = test::SolidSet(32, 32, PackColor(255, 255, 255));
    original.AddIcon(15, 15, 32);
    return original;
}

TEST(Session, OpenDrawUndoSaveReopenOnRealFiles) {
    test::BasicEditorFixture<FileDocumentStore> f;
    const std::string path = f.WriteIcon("session.ico", OriginalSet());
    Editor& editor = f.editor;
    ToolControls& tools = editor.Tools();

    editor.RunStartup(path, f.folders);
    ASSERT_EQ(editor.Document().FileName(), path);
    editor.View().SetViewport({800, 600});  // fit in window by default: 17 a cell

    // A red rectangle outline, dragged from (2, 2) through a larger shape to (10, 8).
    ASSERT_TRUE(tools.SelectTool("Rectangle"));
    tools.SetForeColor(PackColor(255, 0, 0));
    f.Stroke({editor.View().CanvasToImage(2 * 17 + 5, 2 * 17 + 5), {20, 20}, {10, 8}});
    EXPECT_EQ(editor.CurrentImage().Color(20, 20), PackColor(255, 255, 255));
    EXPECT_EQ(editor.CurrentImage().Color(10, 8), PackColor(255, 0, 0));
    EXPECT_EQ(editor.Canvas().StatusTextAt({2, 2}), "R 255, G 0, B 0, A 255");

    // Fill the inside with the background colour using the right button.
    tools.SelectTool(ToolId::Fill);
    tools.SetBackColor(PackColor(0, 0, 255));
    f.Stroke({{5, 5}}, MouseButton::Right);
    EXPECT_EQ(editor.CurrentImage().Color(9, 7), PackColor(0, 0, 255));
    EXPECT_EQ(editor.CurrentImage().Color(11, 7), PackColor(255, 255, 255));

    // A pencil stroke that goes wrong, undone, repeated, undone again.
    tools.SelectTool(ToolId::Pencil);
    tools.SetBrushShape("MSquare");
    f.Stroke({{20, 20}, {25, 20}});
    EXPECT_EQ(editor.CurrentImage().Color(23, 21), PackColor(255, 0, 0));
    EXPECT_TRUE(editor.Undo());
    EXPECT_EQ(editor.CurrentImage().Color(23, 21), PackColor(255, 255, 255));
    EXPECT_TRUE(editor.Repeat());
    EXPECT_EQ(editor.CurrentImage().Color(23, 21), PackColor(255, 0, 0));
    EXPECT_TRUE(editor.Undo());

    // Pick the fill colour back into the foreground.
    tools.SelectTool(ToolId::PickColor);
    f.Stroke({{5, 5}});
    EXPECT_EQ(tools.State().ForeColor, PackColor(0, 0, 255));

    EXPECT_FALSE(editor.Document().Unmodified());
    ASSERT_TRUE(editor.Document().Save());
    EXPECT_TRUE(editor.Document().Unmodified());
    EXPECT_TRUE(f.presenter.shown.empty());

    IconImage expected = editor.CurrentImage().Clone();
    ASSERT_TRUE(editor.Document().NewDocument());
    ASSERT_TRUE(editor.Document().OpenDocument(path));
    ASSERT_EQ(editor.Set().Count(), 2);
    EXPECT_TRUE(test::SamePixels(editor.Set().Image(0), expected));
    EXPECT_FALSE(editor.UndoEnabled());
    EXPECT_EQ(editor.Settings().RecentFiles()[0], path);
}

}  // namespace
}  // namespace iw
