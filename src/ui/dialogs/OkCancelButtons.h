#pragma once
// The OK (default) and Cancel buttons of a dialog, cmdOK and cmdCancel with the shared
// captions, wired to accept and reject.

class QDialog;
class QDialogButtonBox;

namespace iw::ui {

QDialogButtonBox* OkCancelButtons(QDialog& dialog);

}  // namespace iw::ui
