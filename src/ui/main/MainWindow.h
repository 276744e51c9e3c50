#pragma once
// frmMain: the editor's main window. It owns one Editor and the Qt adapters the core
// reaches the user through, implements IMainWindowView for the core, follows the editor as
// an IEditorObserver and lays out its parts:
//   tbrMain and the menus (MainActions), the tools and their options (ToolBox) with the
//   colours (ColorBox) on the left, the canvas (CanvasArea / CanvasWidget) in the middle
//   under the edit-request banner, the preview, the icon list and the inspector
//   (InspectorBox) on the right, the palette strip below, the status bar at the bottom and
//   the log list (LogList) docked when asked for.

#include <QMainWindow>
#include <memory>
#include <optional>

#include "editor/Airbrush.h"
#include "editor/DocumentStore.h"
#include "editor/Editor.h"
#include "editor/MainWindowView.h"
#include "ui/adapters/FileChooser.h"
#include "ui/widgets/CurrentPicture.h"

class QLabel;

namespace iw::ui {

class CanvasArea;
class CanvasWidget;
class ColorBox;
class IconListView;
class InspectorBox;
class LogList;
class MainActions;
class MessagePresenter;
class PaletteStrip;
class PreviewWidget;
class SplashScreen;
class StatusProgress;
class ToolBox;

struct MainWindowOptions {
    StartupFolders folders;                  // empty members: the program's own
    IMessagePresenter* presenter = nullptr;  // nullptr: the message window frmMessage
    IFileChooser* files = nullptr;           // nullptr: the desktop's file dialogs
    bool splash = true;                      // false: never a splash, whatever the settings say
};

class MainWindow final : public QMainWindow, public IMainWindowView, public IEditorObserver {
    Q_OBJECT

  public:
    explicit MainWindow(MainWindowOptions options = {});
    ~MainWindow() override;

    // The core's start-up (steps 1 to 8) with this command line, then the warning when no
    // compression library could be loaded.
    StartupResult Start(const QString& commandLine);
    // The start-up dialog, for a start-up that made nothing and was given no file.
    void ShowStartupDialog();

    // What another main window of the program is made with: the same folders, message
    // presenter and file chooser when they were lent, else its own; no splash.
    MainWindowOptions OptionsForAnotherWindow() const;

    Editor& GetEditor() { return *editor_; }
    CanvasWidget* Canvas() const { return canvas_; }
    MainActions* Actions() const { return actions_; }
    IconListView* IconList() const { return icons_; }

    // File commands that need a dialog.
    bool OpenFile();
    bool SaveFileAs();

    // IMainWindowView
    void ApplyUseFont(bool useFont) override;
    void ShowSplash() override;
    void RestoreWindow(const WindowSettings& window) override;
    void ShowLogList() override;
    void ShowEditRequest(const std::string& text) override;
    std::optional<std::string> ChooseSavePath(FileMode mode,
                                              const std::string& suggestedName) override;

    // IEditorObserver
    void CaptionChanged() override;
    void ModeChanged() override;
    void SetChanged() override;
    void CurrentImageChanged() override;
    void ImageChanged() override;
    void ColorsChanged() override;
    void ToolChanged() override;
    void ViewChanged() override;
    void UndoStateChanged() override;
    void InspectorChanged() override;
    void RecentFilesChanged() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void BuildLayout();
    void ConnectActions();
    void ApplyWindowSettings();
    void RefreshPalette();
    void ShowHelp();

    MainWindowOptions options_;
    std::unique_ptr<MessagePresenter> ownPresenter_;
    std::unique_ptr<DialogFileChooser> ownFiles_;
    IFileChooser* files_ = nullptr;
    std::unique_ptr<StatusProgress> progress_;
    LogList* log_ = nullptr;
    FileDocumentStore documents_;
    ClockRandomSource random_;
    std::unique_ptr<Editor> editor_;
    std::unique_ptr<CurrentPicture> picture_;
    std::unique_ptr<SplashScreen> splash_;
    QFont desktopFont_;
    bool shutDown_ = false;
    bool paletteStale_ = false;  // the image changed during a stroke

    MainActions* actions_ = nullptr;
    ToolBox* tools_ = nullptr;
    ColorBox* colors_ = nullptr;
    CanvasWidget* canvas_ = nullptr;
    CanvasArea* area_ = nullptr;
    QLabel* banner_ = nullptr;
    PreviewWidget* preview_ = nullptr;
    IconListView* icons_ = nullptr;
    InspectorBox* inspector_ = nullptr;
    PaletteStrip* palette_ = nullptr;
    QLabel* pixelText_ = nullptr;
    QLabel* zoomText_ = nullptr;
};

}  // namespace iw::ui
