#include "ui/desktop/FileTypeDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "services/desktop/AssociationCheck.h"
#include "ui/UiText.h"
#include "ui/desktop/DesktopWindowTexts.h"

namespace iw::ui {
namespace {
namespace dt = desktop_texts;
namespace ft = desktop_texts::file_type;
}  // namespace

FileTypeDialog::FileTypeDialog(Editor& editor, IFileAssociations& associations, QWidget* parent)
    : QDialog(parent), editor_(editor), associations_(associations) {
    setObjectName(QStr(ft::kWindow));
    setWindowTitle(Tr(ft::Caption));

    auto* layout = new QVBoxLayout(this);
    auto* intro = new QLabel(Tr(ft::Intro), this);
    intro->setObjectName(QStr(ft::Intro.key));
    intro->setWordWrap(true);
    layout->addWidget(intro);

    const std::array<bool, 3> checked = FileTypePresenter(editor_.Settings().Store()).Load();
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i] = new QCheckBox(Tr(ft::Boxes[i]), this);
        boxes_[i]->setObjectName(QStr(ft::Boxes[i].key));
        boxes_[i]->setChecked(checked[i]);
        layout->addWidget(boxes_[i]);
    }
    layout->addSpacing(8);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(Tr(dt::OK), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStr(dt::OK.key));
    ok->setDefault(true);
    QPushButton* cancel = buttons->addButton(Tr(dt::Cancel), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStr(dt::Cancel.key));
    connect(ok, &QPushButton::clicked, this, &FileTypeDialog::Ok);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(buttons);
    intro->setMinimumWidth(360);
    setFixedSize(sizeHint());
}

void FileTypeDialog::Ok() {
    std::array<bool, 3> checked{};
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        checked[i] = boxes_[i]->isChecked();
    if (!FileTypePresenter(editor_.Settings().Store()).Ok(checked, associations_))
        editor_.Settings().Messages().Show(ft::NotRegistered, MessageType::Critical);
    accept();
}

}  // namespace iw::ui
