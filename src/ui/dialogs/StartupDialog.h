#pragma once
// The start-up dialog (frmStartup), shown when start-up made nothing and no file was named:
// tiles for a new icon (32 x 32, or of any size and depth), cursor or animated cursor and for
// opening a file, the templates, the recent files, and the start-up choice (written to
// "Settings\Startup" as it closes).

#include <QDialog>
#include <functional>

#include "editor/Editor.h"

class QComboBox;
class QGroupBox;
class QListWidget;
class QToolButton;

namespace iw::ui {

class StartupDialog final : public QDialog {
    Q_OBJECT

  public:
    // `openFile` runs the window's Open command and says whether a file was opened.
    StartupDialog(Editor& editor, std::function<bool()> openFile, QWidget* parent = nullptr);

  protected:
    void done(int result) override;

  private:
    QToolButton* Tile(const char* name, std::string_view icon, const QString& text,
                      std::function<bool()> command);
    // A list with its button under a title; the button and a double click run `command`.
    QGroupBox* ListBox(const QString& title, QListWidget* list, const char* name,
                       const QString& text, void (StartupDialog::*command)());
    // Runs a tile's command; the dialog closes when it made or opened a set.
    void Run(const std::function<bool()>& command);
    // frmAttributes for the sides, depth and storage, then the new icon.
    bool NewIconOfAnySize();
    void CreateFromTemplate();
    void OpenRecent();

    Editor& editor_;
    QListWidget* templates_;
    QListWidget* recent_;
    QComboBox* startup_;
};

}  // namespace iw::ui
