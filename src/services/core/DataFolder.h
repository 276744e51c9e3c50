#pragma once
// The per-user data folder that holds "settings.xml", "messages.xml" and the user's
// templates: $XDG_DATA_HOME/Quorvale/Iconwright (default ~/.local/share/Quorvale/Iconwright)
// on Linux, %APPDATA%\Quorvale\Iconwright on Windows.

#include <filesystem>

namespace iw {

// The folder's path; empty when no home can be found. Does not create it.
std::filesystem::path UserDataFolder();
// The folder, created with its parents when missing; empty when it cannot be made.
std::filesystem::path EnsureUserDataFolder();

// `folder` made with its parents when missing; empty when `folder` is empty or cannot be
// made.
std::filesystem::path EnsureFolder(const std::filesystem::path& folder);

}  // namespace iw
