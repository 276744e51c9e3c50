#pragma once
// frmEditTemplate: the template editor. It shows the core's TemplateEditor (the formats as
// rows "w x h", depth name, compressed No/Yes), forwards Add, Remove, Move Up, Move Down and
// Save to it and follows it as its observer. A shipped template is shown without changes.

#include <QDialog>
#include <filesystem>

#include "services/desktop/TemplateEditor.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace iw::ui {

class EditTemplateDialog final : public QDialog, private ITemplateEditorObserver {
    Q_OBJECT

  public:
    // Edits `source`, or a new template when it is nullptr; a locked template is shown
    // after the editor has said that it cannot be edited. New templates are saved into
    // `userFolder`.
    EditTemplateDialog(MessageService& messages, const std::filesystem::path& userFolder,
                       const IconTemplate* source, QWidget* parent = nullptr);

    const TemplateEditor& Editor() const { return editor_; }

  private:
    // ITemplateEditorObserver
    void RowsChanged() override;
    void TemplateChanged() override;

    void Add();
    void Save();
    void RefreshButtons();

    TemplateEditor editor_;
    bool filling_ = false;  // the list is being refilled: its selection signals are the editor's
    QLineEdit* name_;
    QTreeWidget* rows_;
    QLabel* size_;
    QLabel* locked_;
    QLineEdit* width_;
    QLineEdit* height_;
    QComboBox* colors_;
    QComboBox* compressed_;
    QPushButton* add_;
    QPushButton* remove_;
    QPushButton* moveUp_;
    QPushButton* moveDown_;
    QPushButton* save_;
};

}  // namespace iw::ui
