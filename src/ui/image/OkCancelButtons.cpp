#include "ui/image/OkCancelButtons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include "ui/UiText.h"

namespace iw::ui {

QDialogButtonBox* OkCancelButtons(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(&dialog);
    QPushButton* ok =
        buttons->addButton(Tr({"cmdOK", "Constants", "OK"}), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    QPushButton* cancel =
        buttons->addButton(Tr({"cmdCancel", "Constants", "Cancel"}), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

}  // namespace iw::ui
