// The main window's document work driven through its widgets: opening a file into the icon
// list, drawing with the pencil and undoing it, the caption with its modified marker,
// ask-to-save, save as and the recent files, the mode menu and a cursor's hotspot.
#include <QMenu>

#include "WindowFixture.h"
#include "document/io/IconFileReader.h"
#include "ui/widgets/IconListView.h"

namespace iw::test {
namespace {

const PackedColor kRed = PackColor(255, 0, 0);

using WindowDocument = WindowTest;

TEST_F(WindowDocument, AnOpenedFileShowsEveryImageInTheListAndAClickEditsOne) {
    Start(TestDataPath("interop/magick-32bpp-16-256.ico").string());
    auto* list = Find<ui::IconListView>("picIcons");
    ASSERT_EQ(list->model()->rowCount(), editor().Set().Count());
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), QStringLiteral("256 x 256\n32 bit"));
    EXPECT_TRUE(list->model()->index(0, 0).data(ui::IconListModel::PngRole).toBool());

    const QModelIndex sixth = list->model()->index(5, 0);
    list->scrollTo(sixth);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualRect(sixth).center());
    EXPECT_EQ(editor().CurrentIcon(), 5);
    EXPECT_EQ(editor().CurrentImage().info.Width(), 24);
    // The canvas takes the new image's size at the current zoom.
    EXPECT_EQ(window->Canvas()->width(), 24 * editor().View().State().PixelSize);
}

// A pencil stroke marks the window modified and Undo and Repeat take it back and again; New
// asks first (Cancel keeps the drawing); Save As writes it and names the window.
TEST_F(WindowDocument, APencilStrokeUndoesAndIsKeptByCancelAndWrittenBySaveAs) {
    Start();
    ChooseFromPalette(kRed);
    QTest::keyClick(window.get(), Qt::Key_P);  // the Pencil
    const PackedColor before = PixelAt({2, 3});
    EXPECT_EQ(window->windowTitle(), QStringLiteral("untitled[*] - Quorvale Iconwright"));
    EXPECT_FALSE(Find<QAction>("mnuUndo")->isEnabled());
    Stroke({{2, 3}, {3, 3}, {4, 3}});
    EXPECT_EQ(std::tuple(PixelAt({2, 3}), PixelAt({4, 3})), std::tuple(kRed, kRed));
    EXPECT_NE(PixelAt({5, 3}), kRed);
    EXPECT_TRUE(window->isWindowModified());
    Trigger("mnuUndo");
    EXPECT_EQ(PixelAt({2, 3}), before);
    EXPECT_FALSE(window->isWindowModified());
    Trigger("mnuRepeat");
    EXPECT_EQ(PixelAt({2, 3}), kRed);

    presenter.answers = {MessageAnswer::Cancel};
    Trigger("mnuNew");
    EXPECT_EQ(presenter.Keys(), std::vector<std::string>{"SaveUntitled"});
    EXPECT_EQ(PixelAt({2, 3}), kRed);
    EXPECT_TRUE(files.saveModes.empty());  // Cancel never saves
    files.savePath = (temp / "drawn.ico").string();
    Trigger("mnuSaveAs");
    ASSERT_EQ(files.saveModes, std::vector<FileMode>{FileMode::ICO});
    EXPECT_EQ(window->windowTitle(), QStringLiteral("drawn.ico[*] - Quorvale Iconwright"));
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(Find<QAction>("mnuRecent1")->text().endsWith(QStringLiteral("drawn.ico")));

    IconSet read;
    CoreFixture core;
    ASSERT_TRUE(ReadIconFile(*files.savePath, read, core.context));
    EXPECT_EQ(read.Image(0).Color(2, 3), kRed);

    // A second file goes first in the recent list; the second entry opens the first file.
    ASSERT_TRUE(editor().Document().SaveAs((temp / "b.ico").string()));
    EXPECT_TRUE(Find<QAction>("mnuRecent2")->text().endsWith(QStringLiteral("drawn.ico")));
    Trigger("mnuRecent2");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("drawn.ico[*] - Quorvale Iconwright"));
    EXPECT_TRUE(Find<QAction>("mnuRecent1")->text().endsWith(QStringLiteral("drawn.ico")));
}

// A cursor shows its mode in the mode menu and offers Set Hotspot, which a click on the
// canvas answers; back to an icon, the mode menu follows.
TEST_F(WindowDocument, ACursorShowsItsModeAndAClickSetsItsHotspot) {
    Start(TestDataPath("interop/icotool-cursor-32.cur").string());
    EXPECT_EQ(Find<QMenu>("mnuMode")->title(), QStringLiteral("&Cursor"));
    EXPECT_TRUE(Find<QAction>("mnuCUR")->isChecked());
    EXPECT_FALSE(Find<QAction>("mnuCheckIcon")->isEnabled());
    auto* setHotspot = Find<QAction>("mnuSetHotspot");
    ASSERT_TRUE(setHotspot->isEnabled());
    setHotspot->trigger();
    EXPECT_TRUE(editor().Hotspot().Setting());
    Stroke({{5, 6}});
    EXPECT_EQ(editor().Hotspot().Position(), (Point{5, 6}));
    EXPECT_FALSE(setHotspot->isChecked());

    Trigger("mnuICO");
    EXPECT_EQ(Find<QMenu>("mnuMode")->title(), QStringLiteral("&Icon"));
    EXPECT_TRUE(Find<QAction>("mnuCheckIcon")->isEnabled());
    EXPECT_FALSE(setHotspot->isEnabled());
    EXPECT_TRUE(window->isWindowModified());
}

}  // namespace
}  // namespace iw::test
