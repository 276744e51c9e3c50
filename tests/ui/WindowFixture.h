#pragma once
// A main window over a temporary data folder, with its message boxes answered by a script
// and its file dialogs by preset paths, driven as a user would through its widgets.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

#include "support/TestSupport.h"
#include "ui/adapters/FileChooser.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/CanvasWidget.h"
#include "ui/widgets/PaletteStrip.h"

namespace iw::test {

// Answers each message box with the next scripted answer (OK once the script is spent).
class ScriptedPresenter final : public IMessagePresenter {
  public:
    MessageBoxResult Present(const MessageBoxRequest& request) override {
        shown.push_back(request);
        MessageAnswer answer = MessageAnswer::Ok;
        if (!answers.empty()) {
            answer = answers.front();
            answers.pop_front();
        }
        return {answer, false};
    }
    std::vector<std::string> Keys() const {
        std::vector<std::string> keys;
        for (const MessageBoxRequest& request : shown)
            keys.push_back(request.key);
        return keys;
    }
    std::deque<MessageAnswer> answers;
    std::vector<MessageBoxRequest> shown;
};

template <typename T = QWidget>
T* Child(QWidget& parent, const char* name) {
    T* found = parent.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}
// A left click in the middle of the named widget.
inline void Click(QWidget& parent, const char* name) {
    QTest::mouseClick(Child(parent, name), Qt::LeftButton);
}
// Types over what the named box holds, as a user would.
inline void Retype(QWidget& parent, const char* box, const QString& text) {
    auto* edit = Child<QLineEdit>(parent, box);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

class ScriptedFiles final : public ui::IFileChooser {
  public:
    std::optional<std::string> ChooseOpenPath() override { return openPath; }
    std::optional<std::string> ChooseSavePath(FileMode mode, const std::string&) override {
        saveModes.push_back(mode);
        return savePath;
    }
    std::optional<std::string> openPath;
    std::optional<std::string> savePath;
    std::vector<FileMode> saveModes;
};

class WindowTest : public ::testing::Test {
  protected:
    WindowTest() {
        setenv("XDG_DATA_HOME", temp.Path().c_str(), 1);
        std::filesystem::create_directories(temp / "data");
        window = std::make_unique<ui::MainWindow>(Options());
    }
    // A window's options over this test's data folder, message boxes and file dialogs.
    ui::MainWindowOptions Options() {
        ui::MainWindowOptions options;
        options.folders.dataFolder = temp / "data";
        options.folders.programTemplates = TestDataPath("../../data/Templates");
        options.folders.userTemplates = temp / "data" / "Templates";
        options.presenter = &presenter;
        options.files = &files;
        options.splash = false;
        return options;
    }

    // Starts the window with a command line and waits until it shows.
    void Start(const std::string& commandLine = "") {
        window->Start(QString::fromStdString(commandLine));
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        QApplication::processEvents();  // the layout settles at the shown size
    }

    Editor& editor() { return window->GetEditor(); }

    template <typename T = QWidget>
    T* Find(const char* name) const {
        T* found = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void Trigger(const char* action) { Find<QAction>(action)->trigger(); }

    // The centre of an image cell on the canvas.
    QPoint CellCentre(Point cell) {
        const int size = editor().View().State().PixelSize;
        return {cell.x * size + size / 2, cell.y * size + size / 2};
    }
    // A press at the first cell, moves through the others, the release at the last.
    void Stroke(const std::vector<Point>& cells, Qt::MouseButton button = Qt::LeftButton) {
        QWidget* canvas = window->Canvas();
        QTest::mousePress(canvas, button, Qt::NoModifier, CellCentre(cells.front()));
        for (std::size_t i = 1; i < cells.size(); ++i)
            QTest::mouseMove(canvas, CellCentre(cells[i]));
        QTest::mouseRelease(canvas, button, Qt::NoModifier, CellCentre(cells.back()));
    }
    PackedColor PixelAt(Point cell) { return editor().CurrentImage().Color(cell.x, cell.y); }
    // A left click on that colour of the palette strip.
    void ChooseFromPalette(PackedColor color) {
        auto* palette = Find<ui::PaletteStrip>("picPalette");
        const auto& colors = palette->Colors();
        const auto found = std::find(colors.begin(), colors.end(), color);
        ASSERT_NE(found, colors.end());
        QTest::mouseClick(palette, Qt::LeftButton, Qt::NoModifier,
                          palette->CellRect(static_cast<int>(found - colors.begin())).center());
        ASSERT_EQ(editor().Tools().State().ForeColor, color);
    }
    // Runs `drive` on the modal window or pop-up menu called `name` as soon as it shows (the
    // caller then opens it, which blocks until `drive` closes it).
    static void WhenShown(const char* name, std::function<void(QWidget&)> drive) {
        auto* poll = new QTimer;
        poll->setInterval(5);
        QObject::connect(poll, &QTimer::timeout, [poll, name, drive] {
            QWidget* modal = QApplication::activePopupWidget();
            if (!modal) modal = QApplication::activeModalWidget();
            if (!modal || modal->objectName() != QLatin1String(name)) return;
            poll->stop();
            poll->deleteLater();
            drive(*modal);
        });
        poll->start();
    }

    TempDir temp;
    ScriptedPresenter presenter;
    ScriptedFiles files;
    std::unique_ptr<ui::MainWindow> window;
};

}  // namespace iw::test
