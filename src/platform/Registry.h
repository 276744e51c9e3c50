#pragma once
// The system registry: the few calls the file associations need. Keys are addressed by a
// root and a path of names separated by backslashes ("Software\Classes\.ico"), texts are
// UTF-8. Only Windows has a registry; elsewhere every call fails.

#include <optional>
#include <string>

namespace iw::platform {

enum class RegistryRoot {
    CurrentUser,  // HKEY_CURRENT_USER: where the program writes
    ClassesRoot,  // HKEY_CLASSES_ROOT: the merged view of the user's and the machine's classes
};

// Creates the key with any missing parents (an existing key is opened). False on failure
// or where there is no registry.
bool CreateRegistryKey(RegistryRoot root, const std::string& path);
// Sets the key's default (unnamed) value to a text (REG_SZ); the key must exist.
bool SetRegistryDefaultValue(RegistryRoot root, const std::string& path, const std::string& value);
// The key's default value when it exists and holds text; nullopt otherwise.
std::optional<std::string> ReadRegistryDefaultValue(RegistryRoot root, const std::string& path);

}  // namespace iw::platform
