#include "services/core/DataFolder.h"

#include "platform/UserFolders.h"

namespace iw {

std::filesystem::path UserDataFolder() {
    const std::filesystem::path base = platform::UserDataRoot();
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
