// The main window's life: the start-up dialog, dropped files, closing with
// ask-to-save and the settings kept for the next run, the missing-zlib warning, the log list
// and an edit request.
#include <QComboBox>
#include <QDockWidget>
#include <QDropEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>
#include <fstream>

#include "WindowFixture.h"
#include "codec/zlib/Compression.h"
#include "ui/dialogs/StartupDialog.h"

namespace iw::test {
namespace {

using WindowLifecycle = WindowTest;

TEST_F(WindowLifecycle, StartupDialogTilesMakeTheirSetsAndTheChoiceIsWrittenOnClose) {
    Start();
    {
        ui::StartupDialog dialog(
            editor(), [this] { return window->OpenFile(); }, window.get());
        dialog.show();
        Click(dialog, "cmdNewCursor");
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(editor().Document().Mode(), FileMode::CUR);
    }
    {
        ui::StartupDialog dialog(
            editor(), [] { return false; }, window.get());
        dialog.show();
        auto* templates = Child<QListWidget>(dialog, "lstTemplates");
        const auto found = templates->findItems("Windows Application", Qt::MatchStartsWith);
        ASSERT_EQ(found.size(), 1);
        templates->setCurrentItem(found.front());
        Child<QComboBox>(dialog, "cboStartup")->setCurrentIndex(2);
        Click(dialog, "cmdTemplate");
        EXPECT_EQ(editor().Set().Count(), 5);
    }
    EXPECT_EQ(editor().Settings().Store().GetValue("Settings\\Startup", ""), "2");
}

// Of several dropped files the first opens; closing it after a change asks first; the next run
// starts where this one ended.
TEST_F(WindowLifecycle, OfDroppedFilesTheFirstOpensAndTheNextRunStartsWhereThisOneEnded) {
    Start();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(
                      TestDataPath("interop/icotool-cursor-32.cur").string())),
                  QUrl::fromLocalFile(QString::fromStdString(
                      TestDataPath("interop/magick-8bpp-48.ico").string()))});
    const QPointF at(window->width() / 2.0, window->height() / 2.0);
    QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(window->windowTitle(),
              QStringLiteral("icotool-cursor-32.cur[*] - Quorvale Iconwright"));
    EXPECT_FALSE(window->statusBar()->currentMessage().isEmpty());

    QTest::keyClick(window.get(), Qt::Key_E);  // Ellipse
    Trigger("mnuGrid");
    editor().Tools().SetForeColor(PackColor(10, 20, 30));
    Stroke({{1, 1}, {4, 4}});
    const std::size_t asked = presenter.shown.size();
    presenter.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    presenter.answers = {MessageAnswer::No};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(presenter.shown.size(), asked + 2);

    ui::MainWindow next(Options());  // the next run, over the same data folder
    next.Start(QString());
    EXPECT_EQ(next.GetEditor().Tools().State().CurrentTool, ToolId::Ellipse);
    EXPECT_EQ(next.GetEditor().Tools().State().ForeColor, PackColor(10, 20, 30));
    EXPECT_TRUE(next.findChild<QAction*>("mnuGrid")->isChecked());
    EXPECT_TRUE(next.findChild<QAction*>("tbrToolsEllipse")->isChecked());
}

TEST_F(WindowLifecycle, WithoutZlibTheCriticalMessageFollowsStartup) {
    ScopedZlibDisabled noZlib;
    Start();
    ASSERT_EQ(presenter.shown.size(), 1u);
    EXPECT_EQ(presenter.shown[0].key, "ZlibMissing");
}

// An edit request names the program above the canvas; the log switch beside it shows the log
// list, which saving fills.
TEST_F(WindowLifecycle, AnEditRequestNamesTheProgramAndTheLogSwitchShowsTheLog) {
    const std::string icon = TestDataPath("interop/magick-8bpp-48.ico").string();
    std::ofstream(temp / "request.xml") << "<XML><Request><Program>Paint Studio</Program><File>"
                                        << icon << "</File></Request></XML>";
    Start((temp / "request.xml").string() + " /log");
    auto* banner = Find<QLabel>("lblEditRequest");
    EXPECT_TRUE(banner->isVisible());
    EXPECT_EQ(banner->text(), QStringLiteral("You are editing an icon for Paint Studio"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("magick-8bpp-48.ico[*] - Quorvale Iconwright"));

    EXPECT_TRUE(Find<QDockWidget>("frmLog")->isVisible());
    auto* list = Find<QListWidget>("lstLog");
    const int before = list->count();
    ASSERT_TRUE(editor().Document().SaveAs((temp / "logged.ico").string()));
    EXPECT_GT(list->count(), before);
}

}  // namespace
}  // namespace iw::test
