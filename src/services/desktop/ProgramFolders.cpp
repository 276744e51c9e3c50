#include "services/desktop/ProgramFolders.h"

#include "services/core/DataFolder.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace iw {

std::filesystem::path ExecutableFolder() {
    std::error_code ec;
#ifdef _WIN32
    wchar_t buffer[32768];
    const DWORD length = GetModuleFileNameW(nullptr, buffer, 32768);
    if (length == 0 || length >= 32768) return {};
    return std::filesystem::path(std::wstring(buffer, length)).parent_path();
#else
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return {};
    return self.parent_path();
#endif
}

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
