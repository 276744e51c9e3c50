#pragma once
// The core's progress in the status bar: its texts, a progress bar while long work runs,
// and the chance to repaint between images (user input waits, so no command can start
// half-way through another).

#include <QObject>

#include "services/core/UserInterface.h"

class QLabel;
class QProgressBar;
class QStatusBar;

namespace iw::ui {

class StatusProgress final : public IProgressSink {
  public:
    // Adds its text and its bar to `bar`.
    explicit StatusProgress(QStatusBar& bar);

    void SetStatus(std::string_view text) override;
    void SetProgress(int done, int total) override;
    void Yield() override;

    // True while the window is inside Yield: a close then must wait for the work to end.
    bool Yielding() const { return yielding_ > 0; }

  private:
    QLabel* text_;
    QProgressBar* bar_;
    int yielding_ = 0;
};

}  // namespace iw::ui
