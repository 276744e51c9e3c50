#include "ui/animation/OkCancelButtons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include "ui/UiText.h"

namespace iw::ui {

QDialogButtonBox* OkCancelButtons(QDialog& dialog, std::function<void()> ok) {
    auto* buttons = new QDialogButtonBox(&dialog);
    QPushButton* okButton =
        buttons->addButton(Tr({"cmdOK", "Constants", "OK"}), QDialogButtonBox::AcceptRole);
    okButton->setObjectName(QStringLiteral("cmdOK"));
    okButton->setDefault(true);
    QPushButton* cancel =
        buttons->addButton(Tr({"cmdCancel", "Constants", "Cancel"}), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    QObject::connect(okButton, &QPushButton::clicked, &dialog, std::move(ok));
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    return buttons;
}

}  // namespace iw::ui
