#pragma once
// frmOptions: the program's options. General: the start-up action, the kind of blank icon,
// the splash window, the "Segoe UI" font and Clear Messages (every silenced message shows
// again). Templates: the program's and the user's templates with their lock state; New and
// Edit open frmEditTemplate, Delete removes one of the user's after asking. Template changes
// take effect at once (the templates are read again); the General choices on OK.

#include <QDialog>

#include "editor/Editor.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QTreeWidget;

namespace iw::ui {

class OptionsDialog final : public QDialog {
    Q_OBJECT

  public:
    OptionsDialog(Editor& editor, IMainWindowView& view, QWidget* parent = nullptr);

    // The template editor opened by New and Edit, while it is open (for tests).
    QDialog* TemplateEditorWindow() const { return templateWindow_; }

  protected:
    void accept() override;

  private:
    QWidget* MakeGeneralTab();
    QWidget* MakeTemplatesTab();
    void FillTemplates(int select);
    const IconTemplate* SelectedTemplate() const;
    void EditTemplate(const IconTemplate* source);
    void DeleteTemplate();
    void RefreshTemplateButtons();

    Editor& editor_;
    IMainWindowView& view_;
    QComboBox* startup_ = nullptr;
    QComboBox* blankIcon_ = nullptr;
    QCheckBox* splash_ = nullptr;
    QCheckBox* useFont_ = nullptr;
    QPushButton* clearMessages_ = nullptr;
    QTreeWidget* templates_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* delete_ = nullptr;
    QDialog* templateWindow_ = nullptr;
};

}  // namespace iw::ui
