#include "services/core/DataFolder.h"

#include <cstdlib>

namespace iw {
namespace {

std::filesystem::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    if (!value || !*value) return {};
    return std::filesystem::path(value);
}

}  // namespace

std::filesystem::path UserDataFolder() {
    std::filesystem::path base;
#ifdef _WIN32
    base = FromEnvironment("APPDATA");
#else
    base = FromEnvironment("XDG_DATA_HOME");
    // The XDG rules ignore a relative value.
    if (!base.empty() && base.is_relative()) base.clear();
    if (base.empty()) {
        std::filesystem::path home = FromEnvironment("HOME");
        if (!home.empty()) base = home / ".local" / "share";
    }
#endif
    if (base.empty()) return {};
    return base / "Quorvale" / "Iconwright";
}

std::filesystem::path EnsureFolder(const std::filesystem::path& folder) {
    if (folder.empty()) return {};
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (ec || !std::filesystem::is_directory(folder, ec)) return {};
    return folder;
}

std::filesystem::path EnsureUserDataFolder() {
    return EnsureFolder(UserDataFolder());
}

}  // namespace iw
