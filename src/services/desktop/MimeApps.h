#pragma once
// Default applications on a freedesktop system: the mimeapps.list files and the desktop
// entries they name, looked up in the order the MIME-applications rules give, and the edit
// that makes an application the default of a type.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/desktop/XdgDirs.h"

namespace iw {

// The mimeapps.list files, most important first. At each level (the user's config folder,
// each system config folder, the user's data folder's "applications", each system data
// folder's "applications") the lists of the current desktops ("kde-mimeapps.list" for
// "KDE") come before the level's "mimeapps.list".
std::vector<std::filesystem::path> MimeAppsListFiles(const XdgDirs& dirs);
// The folders desktop entries are found in, most important first: the user's, then the
// system's "applications".
std::vector<std::filesystem::path> ApplicationFolders(const XdgDirs& dirs);

// The desktop entry the desktop uses for `desktopId`: the first file of that id in the
// folders ("a-b.desktop" may also lie in a subfolder as "a/b.desktop"). Nullopt when there
// is none, or when that entry is hidden ("Hidden=true") or its TryExec program is missing.
std::optional<std::filesystem::path> FindDesktopEntry(
    const std::vector<std::filesystem::path>& folders, std::string_view desktopId);

// The default application of `mimeType`: list by list, the first desktop id of the type's
// entry in [Default Applications] whose desktop entry is found. Empty when no list names an
// installed application for the type.
std::string DefaultApplication(const XdgDirs& dirs, std::string_view mimeType);

// The semicolon-separated desktop ids of a list value, without blanks and empty items.
std::vector<std::string> DesktopIdList(std::string_view value);

// Makes `desktopId` the default of `mimeType` in a mimeapps.list text: in [Default
// Applications] the type gets one line, "type=<desktopId>;<the ids it named before>;",
// and [Removed Associations] no longer removes the id from the type. Every other line is
// kept; a text that has the change already comes back unchanged. With `onlyWhereSet` (for
// a desktop's own list, which holds defaults only) a type without a line is left alone.
std::string SetDefaultApplication(std::string_view text, std::string_view mimeType,
                                  std::string_view desktopId, bool onlyWhereSet = false);

}  // namespace iw
