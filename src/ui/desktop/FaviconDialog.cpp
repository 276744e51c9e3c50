#include "ui/desktop/FaviconDialog.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "document/io/Favicon.h"
#include "ui/UiText.h"
#include "ui/desktop/DesktopWindowTexts.h"

namespace iw::ui {
namespace {

namespace fv = desktop_texts::favicon;

QLabel* AddLabel(QVBoxLayout* layout, const TextId& text, QWidget* parent) {
    auto* label = new QLabel(Tr(text), parent);
    label->setObjectName(QStr(text.key));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    layout->addWidget(label);
    return label;
}

QPushButton* AddButton(QHBoxLayout* layout, const TextId& text, QWidget* parent) {
    auto* button = new QPushButton(Tr(text), parent);
    button->setObjectName(QStr(text.key));
    button->setAutoDefault(false);
    layout->addWidget(button);
    return button;
}

std::filesystem::path UserDesktop() {
    return std::filesystem::path(
        QStandardPaths::writableLocation(QStandardPaths::DesktopLocation).toStdU16String());
}

}  // namespace

FaviconDialog::FaviconDialog(Editor& editor, std::filesystem::path desktop, QWidget* parent)
    : QDialog(parent),
      editor_(editor),
      desktop_(desktop.empty() ? UserDesktop() : std::move(desktop)) {
    setObjectName(QStr(fv::kWindow));
    setWindowTitle(Tr(fv::Caption));

    auto* layout = new QVBoxLayout(this);
    AddLabel(layout, fv::Step1, this);
    AddLabel(layout, fv::Step2, this);
    touchIcons_ = new QCheckBox(Tr(fv::TouchIcons), this);
    touchIcons_->setObjectName(QStr(fv::TouchIcons.key));
    layout->addWidget(touchIcons_);
    layout->addSpacing(6);
    AddLabel(layout, fv::Step3, this);
    QLabel* example = AddLabel(layout, fv::Example, this);
    example->setIndent(16);
    layout->addSpacing(6);
    QLabel* heading = AddLabel(layout, fv::AddToPage, this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    AddLabel(layout, fv::Code, this);

    code_ = new QPlainTextEdit(this);
    code_->setObjectName(QStringLiteral("txtCode"));
    code_->setReadOnly(true);
    code_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    code_->setLineWrapMode(QPlainTextEdit::NoWrap);
    layout->addWidget(code_);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    QPushButton* save = AddButton(buttons, fv::Save, this);
    QPushButton* copy = AddButton(buttons, fv::Copy, this);
    QPushButton* close = AddButton(buttons, fv::Close, this);
    layout->addLayout(buttons);

    connect(touchIcons_, &QCheckBox::toggled, this, &FaviconDialog::ShowMarkup);
    connect(save, &QPushButton::clicked, this, &FaviconDialog::Save);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(code_->toPlainText()); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    ShowMarkup();

    // Wide enough for the longest markup line, tall enough for all four lines.
    const QFontMetrics code(code_->font());
    int widest = 0;
    for (const QString& line : QStr(FaviconMarkup(true)).split(QLatin1Char('\n')))
        widest = std::max(widest, code.horizontalAdvance(line));
    code_->setMinimumWidth(widest + 24);
    code_->setFixedHeight(code.lineSpacing() * 4 + 16);
}

void FaviconDialog::ShowMarkup() {
    QString markup = QStr(FaviconMarkup(touchIcons_->isChecked()));
    while (markup.endsWith(QLatin1Char('\n')))
        markup.chop(1);
    code_->setPlainText(markup);
}

void FaviconDialog::Save() {
    std::error_code error;
    std::filesystem::create_directories(desktop_, error);
    NullProgress progress;
    NullLog log;
    CoreContext context{editor_.Settings().Messages(), progress, log};
    SaveFavicon(desktop_, editor_.Set(), touchIcons_->isChecked(), context);
}

}  // namespace iw::ui
