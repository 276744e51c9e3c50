#pragma once
// The freedesktop base directories and the current desktop's names, which decide where
// desktop entries and mimeapps.list files are looked for.

#include <filesystem>
#include <string>
#include <vector>

namespace iw {

struct XdgDirs {
    std::filesystem::path configHome;               // $XDG_CONFIG_HOME, else ~/.config
    std::vector<std::filesystem::path> configDirs;  // $XDG_CONFIG_DIRS, else /etc/xdg
    std::filesystem::path dataHome;                 // $XDG_DATA_HOME, else ~/.local/share
    std::vector<std::filesystem::path>
        dataDirs;                       // $XDG_DATA_DIRS, else /usr/local/share:/usr/share
    std::vector<std::string> desktops;  // $XDG_CURRENT_DESKTOP, in lower case
};

// From the environment. Relative paths are ignored, as the base directory rules say; a home
// folder that cannot be found leaves configHome and dataHome empty.
XdgDirs XdgDirsFromEnvironment();

}  // namespace iw
