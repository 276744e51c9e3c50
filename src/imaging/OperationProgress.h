#pragma once
// The status text and progress of a long image operation: the text goes into the status
// bar when the operation starts and is cleared when it ends; progress is counted by
// columns, and the window may repaint after each.

#include "services/core/Texts.h"
#include "services/core/UserInterface.h"

namespace iw {

class OperationProgress {
  public:
    // `status` may be null for an operation without a status text of its own.
    OperationProgress(IProgressSink& sink, const TextId* status, int columns);
    ~OperationProgress();
    OperationProgress(const OperationProgress&) = delete;
    OperationProgress& operator=(const OperationProgress&) = delete;

    // Column x (0-based) is done.
    void ColumnDone(int x);

  private:
    IProgressSink& sink_;
    bool hasStatus_;
    int columns_;
};

}  // namespace iw
