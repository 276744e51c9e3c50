#include "services/desktop/ProgramFolders.h"

#include "services/core/DataFolder.h"
#include "services/desktop/AppIdentity.h"

namespace iw {

std::filesystem::path ProgramTemplatesFolder(const std::filesystem::path& executableFolder) {
    std::error_code ec;
    const std::filesystem::path besideBinary = executableFolder / "Templates";
    if (std::filesystem::is_directory(besideBinary, ec)) return besideBinary;
    return (executableFolder / DataFolderFromBin() / "Templates").lexically_normal();
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
