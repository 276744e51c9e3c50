#include <cstdlib>

#include "platform/UserFolders.h"

namespace iw::platform {
namespace {

std::filesystem::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    if (!value || !*value) return {};
    return std::filesystem::path(value);
}

}  // namespace

std::filesystem::path UserDataRoot() {
    std::filesystem::path base = FromEnvironment("XDG_DATA_HOME");
    // The XDG rules ignore a relative value.
    if (!base.empty() && base.is_relative()) base.clear();
    if (base.empty()) {
        const std::filesystem::path home = FromEnvironment("HOME");
        if (!home.empty()) base = home / ".local" / "share";
    }
    return base;
}

}  // namespace iw::platform
