#include <cstdlib>

#include "platform/UserFolders.h"

namespace iw::platform {

std::filesystem::path UserDataRoot() {
    const char* value = std::getenv("APPDATA");
    if (!value || !*value) return {};
    return std::filesystem::path(value);
}

}  // namespace iw::platform
