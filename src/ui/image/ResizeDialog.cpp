#include "ui/image/ResizeDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmResize";

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

}  // namespace

void ResizeDialog::Open(Editor& editor, QWidget* parent) {
    if (!editor.HasImage()) return;
    auto* dialog = new ResizeDialog(editor, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

ResizeDialog::ResizeDialog(Editor& editor, QWidget* parent)
    : QDialog(parent),
      editor_(editor),
      presenter_(editor.Operations().Target().width, editor.Operations().Target().height,
                 editor.Settings().Messages()) {
    setObjectName(QStr(kWindow));
    setWindowTitle(Text("Caption", "Resize"));

    auto* frame = new QGroupBox(Text("fraResize", "Resize"), this);
    frame->setObjectName(QStringLiteral("fraResize"));
    auto* percent = new QRadioButton(Text("optPercent", "By &percentage"), frame);
    percent->setObjectName(QStringLiteral("optPercent"));
    percent->setChecked(true);
    auto* pixels = new QRadioButton(Text("optPixels", "By &absolute size"), frame);
    pixels->setObjectName(QStringLiteral("optPixels"));
    connect(percent, &QRadioButton::toggled, this, [this](bool on) {
        if (on) SetMode(ResizePresenter::Mode::Percent);
    });
    connect(pixels, &QRadioButton::toggled, this, [this](bool on) {
        if (on) SetMode(ResizePresenter::Mode::Pixels);
    });

    const auto entry = [this, frame](const char* name) {
        auto* edit = new QLineEdit(frame);
        edit->setObjectName(QString::fromLatin1(name));
        edit->setMaxLength(4);
        edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
        return edit;
    };
    horizontal_ = entry("txtH");
    vertical_ = entry("txtV");
    auto* labelH = new QLabel(Text("lblH", "&Horizontal:"), frame);
    labelH->setObjectName(QStringLiteral("lblH"));
    labelH->setBuddy(horizontal_);
    auto* labelV = new QLabel(Text("lblV", "&Vertical:"), frame);
    labelV->setObjectName(QStringLiteral("lblV"));
    labelV->setBuddy(vertical_);
    horizontalUnit_ = new QLabel(frame);
    verticalUnit_ = new QLabel(frame);
    connect(horizontal_, &QLineEdit::editingFinished, this,
            [this] { Commit(horizontal_, &ResizePresenter::SetHorizontal); });
    connect(vertical_, &QLineEdit::editingFinished, this,
            [this] { Commit(vertical_, &ResizePresenter::SetVertical); });
    for (QLineEdit* edit : {horizontal_, vertical_})
        connect(edit, &QLineEdit::textEdited, this, &ResizeDialog::ShowTypedSize);

    auto* current = new QLabel(QStr(presenter_.CurrentText()), frame);
    current->setObjectName(QStringLiteral("lblCurrent"));
    newSize_ = new QLabel(frame);
    newSize_->setObjectName(QStringLiteral("lblNew"));

    auto* modes = new QHBoxLayout;
    modes->addWidget(percent);
    modes->addWidget(pixels);
    modes->addStretch();
    auto* grid = new QGridLayout;
    grid->addWidget(labelH, 0, 0);
    grid->addWidget(horizontal_, 0, 1);
    grid->addWidget(horizontalUnit_, 0, 2);
    grid->addWidget(labelV, 1, 0);
    grid->addWidget(vertical_, 1, 1);
    grid->addWidget(verticalUnit_, 1, 2);
    grid->setColumnStretch(3, 1);
    auto* inner = new QVBoxLayout(frame);
    inner->addLayout(modes);
    inner->addLayout(grid);
    inner->addWidget(current);
    inner->addWidget(newSize_);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok =
        buttons->addButton(Tr({"cmdOK", "Constants", "OK"}), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    QPushButton* cancel =
        buttons->addButton(Tr({"cmdCancel", "Constants", "Cancel"}), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Refresh();
}

bool ResizeDialog::Commit(QLineEdit* entry, bool (ResizePresenter::*set)(std::string_view)) {
    const bool accepted = (presenter_.*set)(StdStr(entry->text().trimmed()));
    refused_ = refused_ || !accepted;
    // Only this entry: the other may hold text not yet left.
    entry->setText(
        QString::number(entry == horizontal_ ? presenter_.Horizontal() : presenter_.Vertical()));
    newSize_->setText(QStr(presenter_.NewText()));
    return accepted;
}

void ResizeDialog::ShowTypedSize() {
    newSize_->setText(QStr(presenter_.NewTextWhileTyping(StdStr(horizontal_->text().trimmed()),
                                                         StdStr(vertical_->text().trimmed()))));
}

void ResizeDialog::SetMode(ResizePresenter::Mode mode) {
    presenter_.SetMode(mode);
    Refresh();
}

void ResizeDialog::Refresh() {
    horizontal_->setText(QString::number(presenter_.Horizontal()));
    vertical_->setText(QString::number(presenter_.Vertical()));
    const QString unit = presenter_.GetMode() == ResizePresenter::Mode::Percent
                             ? QStringLiteral("%")
                             : Tr(texts::Pixels);
    horizontalUnit_->setText(unit);
    verticalUnit_->setText(unit);
    newSize_->setText(QStr(presenter_.NewText()));
}

void ResizeDialog::done(int result) {
    if (result == QDialog::Accepted) {
        // Entries typed but not yet left count too. A refused entry (also one refused as the
        // focus left it for OK, or by the Return that pressed OK) keeps the window open.
        Commit(horizontal_, &ResizePresenter::SetHorizontal);
        Commit(vertical_, &ResizePresenter::SetVertical);
        if (std::exchange(refused_, false)) return;
        editor_.Operations().Resize(presenter_.NewWidth(), presenter_.NewHeight());
    }
    QDialog::done(result);
}

}  // namespace iw::ui
