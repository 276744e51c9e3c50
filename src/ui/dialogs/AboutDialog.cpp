#include "ui/dialogs/AboutDialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"

namespace iw::ui {
namespace {
constexpr std::string_view kWindow = "frmAbout";
}

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QString::fromUtf8(kWindow.data(), kWindow.size()));
    setWindowTitle(Caption(kWindow, "Caption", "About Iconwright"));

    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("imgIcon"));
    icon->setPixmap(UiIcon("iconwright").pixmap(QSize(96, 96), devicePixelRatioF()));
    icon->setAlignment(Qt::AlignTop);

    auto* name = new QLabel(QStr(texts::kProgramTitle), this);
    name->setObjectName(QStringLiteral("lblTitle"));
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    name->setFont(big);
    auto* version = new QLabel(
        Caption(kWindow, "lblVersion", "Version %1").arg(QStringLiteral(IW_VERSION)), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    auto* what = new QLabel(
        Caption(kWindow, "lblDescription",
                "An editor for Windows icons (.ico), cursors (.cur) and animated cursors (.ani)."),
        this);
    what->setObjectName(QStringLiteral("lblDescription"));
    what->setWordWrap(true);
    what->setMinimumWidth(300);

    auto* words = new QVBoxLayout;
    words->addWidget(name);
    words->addWidget(version);
    words->addSpacing(8);
    words->addWidget(what);
    words->addStretch(1);
    auto* body = new QHBoxLayout;
    body->addWidget(icon);
    body->addSpacing(12);
    body->addLayout(words, 1);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok =
        buttons->addButton(Tr({"cmdOK", "Constants", "OK"}), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace iw::ui
