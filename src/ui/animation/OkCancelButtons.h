#pragma once
// The OK and Cancel buttons (cmdOK, cmdCancel) of the animated cursor's dialogs, under the
// shared captions: OK calls `ok`, which closes the dialog when the core accepts; Cancel
// closes it as it is.

#include <functional>

class QDialog;
class QDialogButtonBox;

namespace iw::ui {

QDialogButtonBox* OkCancelButtons(QDialog& dialog, std::function<void()> ok);

}  // namespace iw::ui
