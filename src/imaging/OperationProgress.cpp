#include "imaging/OperationProgress.h"

namespace iw {

OperationProgress::OperationProgress(IProgressSink& sink, const TextId* status, int columns)
    : sink_(sink), hasStatus_(status != nullptr), columns_(columns) {
    if (hasStatus_) sink_.SetStatus(GetText(*status));
}

OperationProgress::~OperationProgress() {
    if (hasStatus_) sink_.SetStatus("");
}

void OperationProgress::ColumnDone(int x) {
    sink_.SetProgress(x + 1, columns_);
    sink_.Yield();
}

}  // namespace iw
