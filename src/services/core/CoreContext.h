#pragma once
// What long core operations (reading, writing, palette building) need to reach the user:
// the message routine, the status bar / progress / event-loop yield, and the log list.

#include "services/core/MessageService.h"
#include "services/core/UserInterface.h"

namespace iw {

struct CoreContext {
    MessageService& messages;
    IProgressSink& progress;
    ILogSink& log;
};

}  // namespace iw
