#include "services/desktop/ProgramFolders.h"

#include "services/core/DataFolder.h"

namespace iw {

std::filesystem::path ProgramTemplatesFolder(const std::filesystem::path& executableFolder) {
    std::error_code ec;
    const std::filesystem::path besideBinary = executableFolder / "Templates";
    if (std::filesystem::is_directory(besideBinary, ec)) return besideBinary;
    return executableFolder.parent_path() / "share" / "iconwright" / "Templates";
}

std::filesystem::path UserTemplatesFolder() {
    const std::filesystem::path data = UserDataFolder();
    if (data.empty()) return {};
    return data / "Templates";
}

std::filesystem::path EnsureUserTemplatesFolder() {
    return EnsureFolder(UserTemplatesFolder());
}

}  // namespace iw
