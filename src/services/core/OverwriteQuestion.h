#pragma once
// The question asked before a picture is written over a file that exists. The writers
// themselves ask nothing: they are told whether they may replace the file.

#include <filesystem>

#include "services/core/MessageService.h"

namespace iw {

// True when `file` may be written: it does not exist, or the user answers Yes to
// "Overwrite existing file?" under the title "Overwrite Confirmation".
bool ConfirmOverwrite(MessageService& messages, const std::filesystem::path& file);

}  // namespace iw
