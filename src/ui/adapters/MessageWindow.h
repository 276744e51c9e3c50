#pragma once
// frmMessage: the message routine's window. Shows the core's request as it stands: its
// title, the icon of its type, its text and buttons, and the box "Don't show this message
// again" when the request says the message may be silenced.

#include <QDialog>

#include "services/core/UserInterface.h"

class QCheckBox;

namespace iw::ui {

class MessageWindow final : public QDialog {
    Q_OBJECT

  public:
    MessageWindow(const MessageBoxRequest& request, QWidget* parent = nullptr);
    // The answer of the button that closed the window (Cancel, or No without one, when
    // it was closed otherwise) and the box.
    MessageBoxResult Result() const;
    // Closed without a button.
    void reject() override;

  private:
    void Answer(MessageAnswer answer);

    MessageButtons buttons_;
    MessageAnswer answer_;
    QCheckBox* dontShow_ = nullptr;
};

// The message routine's presenter for the program: one modal MessageWindow a message.
class MessagePresenter final : public IMessagePresenter {
  public:
    explicit MessagePresenter(QWidget* parent = nullptr) : parent_(parent) {}
    void SetParent(QWidget* parent) { parent_ = parent; }
    MessageBoxResult Present(const MessageBoxRequest& request) override;

  private:
    QWidget* parent_;
};

}  // namespace iw::ui
