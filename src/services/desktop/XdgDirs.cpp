#include "services/desktop/XdgDirs.h"

#include <cstdlib>

#include "services/desktop/TextCase.h"

namespace iw {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::vector<std::string> SplitList(const std::string& text) {
    std::vector<std::string> items;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t colon = text.find(':', start);
        if (colon == std::string::npos) colon = text.size();
        if (colon > start) items.push_back(text.substr(start, colon - start));
        start = colon + 1;
    }
    return items;
}

std::vector<std::filesystem::path> AbsolutePaths(const std::string& list, const char* fallback) {
    std::vector<std::filesystem::path> paths;
    for (const std::string& item : SplitList(list)) {
        if (std::filesystem::path(item).is_absolute()) paths.emplace_back(item);
    }
    if (paths.empty()) {
        for (const std::string& item : SplitList(fallback))
            paths.emplace_back(item);
    }
    return paths;
}

std::filesystem::path HomeFolder(const char* variable, const char* belowHome) {
    const std::filesystem::path value = Environment(variable);
    if (value.is_absolute()) return value;
    const std::filesystem::path home = Environment("HOME");
    if (!home.is_absolute()) return {};
    return home / belowHome;
}

}  // namespace

XdgDirs XdgDirsFromEnvironment() {
    XdgDirs dirs;
    dirs.configHome = HomeFolder("XDG_CONFIG_HOME", ".config");
    dirs.dataHome = HomeFolder("XDG_DATA_HOME", ".local/share");
    dirs.configDirs = AbsolutePaths(Environment("XDG_CONFIG_DIRS"), "/etc/xdg");
    dirs.dataDirs = AbsolutePaths(Environment("XDG_DATA_DIRS"), "/usr/local/share:/usr/share");
    for (const std::string& name : SplitList(Environment("XDG_CURRENT_DESKTOP"))) {
        std::string lower = name;
        for (char& c : lower)
            c = LowerAscii(c);
        dirs.desktops.push_back(lower);
    }
    return dirs;
}

}  // namespace iw
