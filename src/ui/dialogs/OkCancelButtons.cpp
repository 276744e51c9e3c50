#include "ui/dialogs/OkCancelButtons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include "ui/UiText.h"
#include "ui/dialogs/DialogButtonTexts.h"

namespace iw::ui {

QDialogButtonBox* OkCancelButtons(QDialog& dialog) {
    auto* box = new QDialogButtonBox(&dialog);
    QPushButton* ok = box->addButton(Tr(buttons::OK), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    QPushButton* cancel = box->addButton(Tr(buttons::Cancel), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return box;
}

}  // namespace iw::ui
