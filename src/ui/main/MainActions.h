#pragma once
// The main window's menus (File, Edit, View, the mode menu "&Icon"/"&Cursor", Help) and its
// tool bar tbrMain. Each item calls the core, or asks the window through a signal for what
// only the window can do (dialogs, closing); enabled and checked states are read back from
// the core whenever an editor event names them.

#include <QObject>
#include <array>

#include "editor/Editor.h"

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;
class QToolBar;

namespace iw::ui {

// The menus of the menu bar, in their order. Image and Tools appear only once a window
// adds a command to them.
enum class MenuId { File, Edit, View, Image, Mode, Tools, Help };

class MainActions final : public QObject {
    Q_OBJECT

  public:
    MainActions(Editor& editor, QMainWindow& window);

    // The menu `id`, made on first use in its place on the menu bar. Windows add their
    // commands here (each from a file of its own), through AddCommand.
    QMenu* MenuFor(MenuId id);
    // A command of a menu: its object name, its text through the lookup, what it calls.
    QAction* AddCommand(MenuId id, const char* name, const TextId& text,
                        std::function<void()> command);

    // The Edit menu: Undo and Repeat now; the clipboard commands join them below.
    QMenu* EditMenu() const { return edit_; }
    QToolBar* MainToolBar() const { return toolBar_; }

    void RefreshUndo();
    void RefreshView();
    void RefreshMode();
    void RefreshRecent();
    // The preview background and the inspector's menu checks.
    void RefreshWindowSettings();

  signals:
    void OpenRequested();
    void SaveAsRequested();
    void ExitRequested();
    void AboutRequested();
    void HelpRequested();
    // The preview background or the inspector's visibility was changed from the menu.
    void WindowSettingsChanged();

  private:
    QAction* Add(QMenu* menu, const char* name, const TextId& text, std::function<void()> command);
    void MakeFileMenu(QMenu* menu);
    void MakeEditMenu(QMenu* menu);
    void MakeViewMenu(QMenu* menu);
    void MakeModeMenu(QMenu* menu);
    void MakeHelpMenu(QMenu* menu);
    void MakeToolBar();

    Editor& editor_;
    QMainWindow& window_;
    std::array<QMenu*, 7> menus_{};  // by MenuId
    QMenu* edit_ = nullptr;
    QMenu* mode_ = nullptr;
    QToolBar* toolBar_ = nullptr;
    QAction* new_ = nullptr;
    QAction* open_ = nullptr;
    QAction* save_ = nullptr;
    std::array<QAction*, 4> recent_{};
    QAction* recentSeparator_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* repeat_ = nullptr;
    QAction* zoomIn_ = nullptr;
    QAction* zoomOut_ = nullptr;
    QAction* normalZoom_ = nullptr;
    QAction* auto_ = nullptr;
    QAction* grid_ = nullptr;
    std::array<QAction*, 3> preview_{};  // by PreviewBackground
    QAction* inspector_ = nullptr;
    std::array<QAction*, 3> modes_{};  // by FileMode
    QAction* checkIcon_ = nullptr;
};

}  // namespace iw::ui
