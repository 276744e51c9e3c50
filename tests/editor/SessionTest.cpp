// A scripted session that drives the editor as the main window will: start, open a file,
// pick tools and colours, draw, undo and repeat, save, open again and compare; once over
// the in-memory fake file store and once over real files with the real readers and writers.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "document/io/IconFileWriter.h"
#include "editor/PixelStatus.h"
#include "editor/RecentFiles.h"
#include "editor/ToolTable.h"

namespace iw {
namespace {

IconSet OriginalSet() {
    IconSet original = test::SolidSet(32, 32, PackColor(255, 255, 255));
    original.AddIcon(15, 15, 32);
    return original;
}

template <typename Fixture>
void DriveSession(Fixture& f, const std::string& path) {
    Editor& editor = f.editor;

    editor.RunStartup(path, f.folders);
    ASSERT_EQ(editor.FileName(), path);
    editor.SetViewport({800, 600});
    EXPECT_EQ(editor.State().PixelSize, 17);  // fit in window by default
    EXPECT_EQ(editor.CanvasSize().width, 32 * 17);

    // A red rectangle outline, dragged from (2, 2) to (10, 8).
    SelectTool(editor.State(), "Rectangle");
    editor.State().ForeColor = PackColor(255, 0, 0);
    editor.PointerPress(CanvasToImage(2 * 17 + 5, 2 * 17 + 5, 17), MouseButton::Left);
    editor.PointerMove({20, 20});  // the rubber band goes through a larger shape first
    editor.PointerMove({10, 8});
    editor.PointerRelease({10, 8});
    EXPECT_EQ(editor.CurrentImage().Color(20, 20), PackColor(255, 255, 255));
    EXPECT_EQ(editor.CurrentImage().Color(10, 8), PackColor(255, 0, 0));
    EXPECT_EQ(editor.StatusTextAt({2, 2}), "R 255, G 0, B 0, A 255");

    // Fill the inside with the background colour using the right button.
    SelectTool(editor.State(), "Fill");
    editor.State().BackColor = PackColor(0, 0, 255);
    editor.PointerPress({5, 5}, MouseButton::Right);
    editor.PointerRelease({5, 5});
    EXPECT_EQ(editor.CurrentImage().Color(9, 7), PackColor(0, 0, 255));
    EXPECT_EQ(editor.CurrentImage().Color(11, 7), PackColor(255, 255, 255));

    // A pencil stroke that goes wrong, undone, repeated, undone again.
    SelectTool(editor.State(), "Pencil");
    SetBrushShape(editor.State(), "MSquare");
    editor.PointerPress({20, 20}, MouseButton::Left);
    editor.PointerMove({25, 20});
    editor.PointerRelease({25, 20});
    EXPECT_EQ(editor.CurrentImage().Color(23, 21), PackColor(255, 0, 0));
    EXPECT_TRUE(editor.Undo());
    EXPECT_EQ(editor.CurrentImage().Color(23, 21), PackColor(255, 255, 255));
    EXPECT_TRUE(editor.RepeatEnabled());
    EXPECT_TRUE(editor.Repeat());
    EXPECT_EQ(editor.CurrentImage().Color(23, 21), PackColor(255, 0, 0));
    EXPECT_TRUE(editor.Undo());

    // Pick the fill colour back into the foreground.
    SelectTool(editor.State(), "Pick Color");
    editor.PointerPress({5, 5}, MouseButton::Left);
    editor.PointerRelease({5, 5});
    EXPECT_EQ(editor.State().ForeColor, PackColor(0, 0, 255));

    EXPECT_FALSE(editor.Unmodified());
    ASSERT_TRUE(editor.Save());
    EXPECT_TRUE(editor.Unmodified());
    EXPECT_TRUE(f.presenter.shown.empty());

    IconImage expected = editor.CurrentImage().Clone();
    ASSERT_TRUE(editor.NewDocument());
    ASSERT_TRUE(editor.OpenDocument(path));
    ASSERT_EQ(editor.Set().Count(), 2);
    const IconImage& reopened = editor.Set().Image(0);
    for (int x = 0; x < 32; ++x) {
        for (int y = 0; y < 32; ++y) {
            ASSERT_EQ(reopened.Color(x, y), expected.Color(x, y)) << x << "," << y;
            ASSERT_EQ(reopened.Alpha(x, y), expected.Alpha(x, y)) << x << "," << y;
        }
    }
    EXPECT_FALSE(editor.UndoEnabled());
    EXPECT_EQ(RecentFile(editor.SettingsStore(), 1), path);
}

TEST(Session, OpenDrawUndoSaveReopen) {
    test::EditorFixture f;
    const std::string path = f.PathFor("session.ico");
    f.documents.Put(path, OriginalSet());
    DriveSession(f, path);
}

TEST(Session, OpenDrawUndoSaveReopenOnRealFiles) {
    test::BasicEditorFixture<FileDocumentStore> f;
    const std::string path = f.PathFor("session.ico");
    MessageService messages(f.editor.Messages().Store(), f.presenter);
    CoreContext context{messages, f.progress, f.log};
    ASSERT_TRUE(WriteIconFile(path, OriginalSet(), context));
    DriveSession(f, path);
    // What is on disk is an icon file that the reader takes back whole.
    EXPECT_GT(std::filesystem::file_size(path), 6u + 2 * 16 + 2 * 40);
}

}  // namespace
}  // namespace iw
