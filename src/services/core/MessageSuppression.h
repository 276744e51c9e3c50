#pragma once
// Which messages the user may silence for good. Hints and offers are; questions whose
// silent answer would save, overwrite or delete something never are, so the message window
// offers its "Don't show this message again" box only where this says so.

#include <string_view>

namespace iw {

// True for a message key whose box may carry "Don't show this message again".
bool IsSuppressibleMessage(std::string_view key);

}  // namespace iw
