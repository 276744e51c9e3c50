#include <windows.h>

#include <vector>

#include "platform/Registry.h"
#include "platform/WideTextWindows.h"

namespace iw::platform {
namespace {

HKEY RootKey(RegistryRoot root) {
    return root == RegistryRoot::CurrentUser ? HKEY_CURRENT_USER : HKEY_CLASSES_ROOT;
}

// A key handle closed when it goes out of scope.
struct OpenKey {
    HKEY key = nullptr;
    ~OpenKey() {
        if (key) RegCloseKey(key);
    }
};

}  // namespace

bool CreateRegistryKey(RegistryRoot root, const std::string& path) {
    OpenKey opened;
    return RegCreateKeyExW(RootKey(root), ToWide(path).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                           KEY_WRITE, nullptr, &opened.key, nullptr) == ERROR_SUCCESS;
}

bool SetRegistryDefaultValue(RegistryRoot root, const std::string& path, const std::string& value) {
    OpenKey opened;
    if (RegOpenKeyExW(RootKey(root), ToWide(path).c_str(), 0, KEY_SET_VALUE, &opened.key) !=
        ERROR_SUCCESS) {
        return false;
    }
    const std::wstring text = ToWide(value);
    const DWORD bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(opened.key, nullptr, 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(text.c_str()), bytes) == ERROR_SUCCESS;
}

std::optional<std::string> ReadRegistryDefaultValue(RegistryRoot root, const std::string& path) {
    const std::wstring key = ToWide(path);
    DWORD bytes = 0;
    // RRF_RT_REG_SZ refuses other types; the value comes back terminated.
    if (RegGetValueW(RootKey(root), key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, nullptr,
                     &bytes) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::vector<wchar_t> buffer(bytes / sizeof(wchar_t) + 1, L'\0');
    bytes = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    if (RegGetValueW(RootKey(root), key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, buffer.data(),
                     &bytes) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    return FromWide(buffer.data());
}

}  // namespace iw::platform
