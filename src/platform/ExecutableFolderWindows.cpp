#include <windows.h>

#include <string>

#include "platform/ExecutableFolder.h"

namespace iw::platform {

std::filesystem::path ExecutableFolder() {
    constexpr DWORD kRoom = 32768;  // the longest path Windows allows
    std::wstring buffer(kRoom, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), kRoom);
    if (length == 0 || length >= kRoom) return {};
    buffer.resize(length);
    return std::filesystem::path(buffer).parent_path();
}

}  // namespace iw::platform
