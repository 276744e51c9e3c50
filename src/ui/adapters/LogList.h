#pragma once
// The log list ("/log" on the command line): a dock at the bottom of the main window with
// the progress tags the writers add.

#include <QDockWidget>

#include "services/core/UserInterface.h"

class QListWidget;

namespace iw::ui {

class LogList final : public QDockWidget, public ILogSink {
    Q_OBJECT

  public:
    explicit LogList(QWidget* parent = nullptr);
    void AddLogEntry(std::string_view tag) override;
    QListWidget* List() const { return list_; }

  private:
    QListWidget* list_;
};

}  // namespace iw::ui
