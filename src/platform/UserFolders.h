#pragma once
// Folders the platform gives each user.

#include <filesystem>

namespace iw::platform {

// Where programs keep their per-user data: %APPDATA% on Windows; $XDG_DATA_HOME (when
// absolute), else ~/.local/share, elsewhere. Empty when the environment names none.
std::filesystem::path UserDataRoot();

}  // namespace iw::platform
