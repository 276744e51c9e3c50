#pragma once
// The Open and Save As dialogs. The window asks through this interface, so its tests can
// answer without a dialog.

#include <QString>
#include <optional>
#include <string>

#include "document/model/IconSet.h"

class QWidget;

namespace iw::ui {

class IFileChooser {
  public:
    virtual ~IFileChooser() = default;
    // A file to open, or nothing when cancelled.
    virtual std::optional<std::string> ChooseOpenPath() = 0;
    // Where to save a set of `mode`, starting from `suggestedPath` (a name, or a full path
    // whose folder the dialog opens in). The overwrite question is the core's, not the
    // dialog's.
    virtual std::optional<std::string> ChooseSavePath(FileMode mode,
                                                      const std::string& suggestedPath) = 0;
};

// A filter in the program's text form ("Icon Files (*.ico)|*.ico|...") as Qt's name
// filters ("Icon Files (*.ico)").
QStringList QtNameFilters(const QString& filter);

// The file dialogs of the desktop.
class DialogFileChooser final : public IFileChooser {
  public:
    explicit DialogFileChooser(QWidget* parent) : parent_(parent) {}
    std::optional<std::string> ChooseOpenPath() override;
    std::optional<std::string> ChooseSavePath(FileMode mode,
                                              const std::string& suggestedPath) override;

  private:
    QWidget* parent_;
    QString folder_;  // where the last dialog ended
};

}  // namespace iw::ui
