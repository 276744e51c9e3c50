#pragma once
// frmFavicon, the favicon wizard: saves the icon being edited as "favicon.ico" on the
// desktop (and, when asked, the PNG icons phones and web apps use beside it) and shows the
// page markup that refers to it, ready to copy.

#include <QDialog>
#include <filesystem>

#include "editor/Editor.h"

class QCheckBox;
class QPlainTextEdit;

namespace iw::ui {

class FaviconDialog final : public QDialog {
    Q_OBJECT

  public:
    // `desktop`: where Save writes; empty for the user's desktop folder.
    FaviconDialog(Editor& editor, std::filesystem::path desktop = {}, QWidget* parent = nullptr);

  private:
    void ShowMarkup();
    void Save();

    Editor& editor_;
    std::filesystem::path desktop_;
    QCheckBox* touchIcons_ = nullptr;
    QPlainTextEdit* code_ = nullptr;
};

}  // namespace iw::ui
