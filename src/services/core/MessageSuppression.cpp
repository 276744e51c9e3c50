#include "services/core/MessageSuppression.h"

#include <algorithm>
#include <array>

namespace iw {
namespace {

// Hints after an action, and offers the user may decline once and for all. Everything
// else (ask to save, overwrite, delete, failures) is asked every time.
constexpr std::array<std::string_view, 10> kSuppressible = {
    "CreateCursor",     "CreateANI",   "Bad16Icons",  "SeqANI",      "ANIInfo",
    "CreateFolderIcon", "ICOFileType", "CURFileType", "ANIFileType", "UpdateText",
};

}  // namespace

bool IsSuppressibleMessage(std::string_view key) {
    return std::find(kSuppressible.begin(), kSuppressible.end(), key) != kSuppressible.end();
}

}  // namespace iw
