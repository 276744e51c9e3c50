#pragma once
// frmFileType: one box for each file type ("ico", "cur", "ani") whose default editor the
// program checks at start-up. OK stores the boxes and makes the program the default editor
// of each checked type.

#include <QDialog>
#include <array>

#include "editor/Editor.h"
#include "services/desktop/FileAssociations.h"

class QCheckBox;

namespace iw::ui {

class FileTypeDialog final : public QDialog {
    Q_OBJECT

  public:
    FileTypeDialog(Editor& editor, IFileAssociations& associations, QWidget* parent = nullptr);

  private:
    void Ok();

    Editor& editor_;
    IFileAssociations& associations_;
    std::array<QCheckBox*, 3> boxes_{};
};

}  // namespace iw::ui
