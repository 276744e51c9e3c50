#include "ui/adapters/MessageWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <array>

#include "ui/UiText.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmMessage";

QStyle::StandardPixmap IconOf(MessageType type) {
    switch (type) {
        case MessageType::Critical:
            return QStyle::SP_MessageBoxCritical;
        case MessageType::Information:
            return QStyle::SP_MessageBoxInformation;
        case MessageType::Question:
            return QStyle::SP_MessageBoxQuestion;
        case MessageType::Exclamation:
            break;
    }
    return QStyle::SP_MessageBoxWarning;
}

struct ButtonText {
    MessageAnswer answer;
    TextId text;
    QDialogButtonBox::ButtonRole role;
};

constexpr ButtonText kOk{
    MessageAnswer::Ok, {"cmdOK", "Constants", "OK"}, QDialogButtonBox::AcceptRole};
constexpr ButtonText kCancel{
    MessageAnswer::Cancel, {"cmdCancel", "Constants", "Cancel"}, QDialogButtonBox::RejectRole};
constexpr ButtonText kYes{
    MessageAnswer::Yes, {"cmdYes", "Constants", "&Yes"}, QDialogButtonBox::YesRole};
constexpr ButtonText kNo{
    MessageAnswer::No, {"cmdNo", "Constants", "&No"}, QDialogButtonBox::NoRole};

std::vector<ButtonText> ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::OkCancel:
            return {kOk, kCancel};
        case MessageButtons::YesNo:
            return {kYes, kNo};
        case MessageButtons::YesNoCancel:
            return {kYes, kNo, kCancel};
        case MessageButtons::Ok:
            break;
    }
    return {kOk};
}

// What closing the window without a button means: Cancel where offered, else No, else OK.
MessageAnswer EscapeAnswer(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::OkCancel:
        case MessageButtons::YesNoCancel:
            return MessageAnswer::Cancel;
        case MessageButtons::YesNo:
            return MessageAnswer::No;
        case MessageButtons::Ok:
            break;
    }
    return MessageAnswer::Ok;
}

}  // namespace

MessageWindow::MessageWindow(const MessageBoxRequest& request, QWidget* parent)
    : QDialog(parent), buttons_(request.buttons), answer_(EscapeAnswer(request.buttons)) {
    setObjectName(QString::fromUtf8(kWindow.data(), kWindow.size()));
    setWindowTitle(QStr(request.title));

    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("imgIcon"));
    const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(IconOf(request.type), nullptr, this).pixmap(side));
    icon->setAlignment(Qt::AlignTop);

    auto* text = new QLabel(QStr(request.text), this);
    text->setObjectName(QStringLiteral("lblMessage"));
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setMinimumWidth(320);
    text->setMaximumWidth(480);

    auto* body = new QHBoxLayout;
    body->addWidget(icon);
    body->addSpacing(8);
    body->addWidget(text, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body);
    if (request.suppressible) {
        dontShow_ =
            new QCheckBox(Caption(kWindow, "chkDontShow", "Don't show this message again"), this);
        dontShow_->setObjectName(QStringLiteral("chkDontShow"));
        layout->addSpacing(4);
        layout->addWidget(dontShow_);
    }

    auto* box = new QDialogButtonBox(this);
    bool first = true;
    for (const ButtonText& button : ButtonsOf(request.buttons)) {
        QPushButton* push = box->addButton(Tr(button.text), button.role);
        push->setObjectName(QStr(button.text.key));
        const MessageAnswer answer = button.answer;
        connect(push, &QPushButton::clicked, this, [this, answer] { Answer(answer); });
        if (first) push->setDefault(true);
        first = false;
    }
    layout->addWidget(box);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void MessageWindow::Answer(MessageAnswer answer) {
    answer_ = answer;
    accept();
}

void MessageWindow::reject() {
    answer_ = EscapeAnswer(buttons_);
    QDialog::reject();
}

MessageBoxResult MessageWindow::Result() const {
    return {answer_, dontShow_ != nullptr && dontShow_->isChecked()};
}

MessageBoxResult MessagePresenter::Present(const MessageBoxRequest& request) {
    MessageWindow window(request, parent_ ? parent_ : QApplication::activeWindow());
    window.exec();
    return window.Result();
}

}  // namespace iw::ui
