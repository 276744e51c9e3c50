#include "ui/image/ResizeDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/dialogs/OkCancelButtons.h"

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

    const auto makeEntry = [this, frame](const char* name) {
        auto* edit = new QLineEdit(frame);
        edit->setObjectName(QString::fromLatin1(name));
        edit->setMaxLength(4);
        edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
        return edit;
    };
    horizontal_ = makeEntry("txtH");
    vertical_ = makeEntry("txtV");
    auto* labelH = new QLabel(Text("lblH", "&Horizontal:"), frame);
    labelH->setObjectName(QStringLiteral("lblH"));
    labelH->setBuddy(horizontal_);
    auto* labelV = new QLabel(Text("lblV", "&Vertical:"), frame);
    labelV->setObjectName(QStringLiteral("lblV"));
    labelV->setBuddy(vertical_);
    horizontalUnit_ = new QLabel(frame);
    verticalUnit_ = new QLabel(frame);
    for (const auto& [edit, entry] : {std::pair{horizontal_, ResizePresenter::Entry::Horizontal},
                                      std::pair{vertical_, ResizePresenter::Entry::Vertical}}) {
        connect(edit, &QLineEdit::editingFinished, this,
                [this, edit, entry] { Commit(edit, entry); });
        connect(edit, &QLineEdit::textEdited, this,
                [this, entry](const QString& text) { ShowTyped(entry, text); });
    }
    auto* proportions = new QCheckBox(Text("chkProportions", "&Keep proportions"), frame);
    proportions->setObjectName(QStringLiteral("chkProportions"));
    proportions->setChecked(presenter_.KeepProportions());
    connect(proportions, &QCheckBox::toggled, this, [this](bool on) {
        CommitTyped();
        presenter_.SetKeepProportions(on);
        Refresh();
    });

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
    inner->addWidget(proportions);
    inner->addWidget(current);
    inner->addWidget(newSize_);

    QDialogButtonBox* buttons = OkCancelButtons(*this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Refresh();
}

bool ResizeDialog::Commit(QLineEdit* edit, ResizePresenter::Entry entry) {
    // An entry the user has not typed into since it was shown holds nothing new (and taking
    // its shown value could move the other entry by a rounding).
    if (!edit->isModified()) return true;
    const bool accepted = presenter_.Set(entry, StdStr(edit->text().trimmed()));
    refused_ = refused_ || !accepted;
    const bool horizontal = entry == ResizePresenter::Entry::Horizontal;
    edit->setText(QString::number(horizontal ? presenter_.Horizontal() : presenter_.Vertical()));
    // The other entry shows what it now holds, unless it holds text the user typed and has
    // not left yet.
    QLineEdit* other = horizontal ? vertical_ : horizontal_;
    if (!other->isModified())
        other->setText(
            QString::number(horizontal ? presenter_.Vertical() : presenter_.Horizontal()));
    newSize_->setText(QStr(presenter_.NewText()));
    return accepted;
}

void ResizeDialog::ShowTyped(ResizePresenter::Entry entry, const QString& text) {
    const ResizePresenter::Typed typed = presenter_.WhileTyping(entry, StdStr(text.trimmed()));
    // Only the other entry: the one being typed into keeps the user's text.
    if (presenter_.KeepProportions()) {
        const bool typingHorizontal = entry == ResizePresenter::Entry::Horizontal;
        (typingHorizontal ? vertical_ : horizontal_)
            ->setText(QString::number(typingHorizontal ? typed.vertical : typed.horizontal));
    }
    newSize_->setText(QStr(typed.newText));
}

void ResizeDialog::CommitTyped() {
    Commit(horizontal_, ResizePresenter::Entry::Horizontal);
    Commit(vertical_, ResizePresenter::Entry::Vertical);
}

void ResizeDialog::SetMode(ResizePresenter::Mode mode) {
    CommitTyped();
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
        CommitTyped();
        if (std::exchange(refused_, false)) return;
        editor_.Operations().Resize(presenter_.NewWidth(), presenter_.NewHeight());
    }
    QDialog::done(result);
}

}  // namespace iw::ui
