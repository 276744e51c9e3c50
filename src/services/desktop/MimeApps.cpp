#include "services/desktop/MimeApps.h"

#include <algorithm>
#include <cstdlib>

#include "services/desktop/IniText.h"
#include "services/desktop/TextFiles.h"

namespace iw {
namespace {

constexpr std::string_view kDefaults = "Default Applications";
constexpr std::string_view kRemoved = "Removed Associations";
constexpr std::string_view kEntryGroup = "Desktop Entry";

IniText ReadDesktopFile(const std::filesystem::path& file) {
    const TextFileRead read = ReadTextFile(file);
    return IniText(read.text, IniText::Names::CaseSensitive);
}

std::optional<std::filesystem::path> FindInFolder(const std::filesystem::path& folder,
                                                  std::string_view id, int depth) {
    std::error_code ec;
    const std::filesystem::path direct = folder / std::string(id);
    if (std::filesystem::is_regular_file(direct, ec)) return direct;
    if (depth == 0) return std::nullopt;
    for (std::size_t dash = id.find('-'); dash != std::string_view::npos;
         dash = id.find('-', dash + 1)) {
        const std::filesystem::path sub = folder / std::string(id.substr(0, dash));
        if (!std::filesystem::is_directory(sub, ec)) continue;
        if (auto found = FindInFolder(sub, id.substr(dash + 1), depth - 1)) return found;
    }
    return std::nullopt;
}

bool IsExecutableFile(const std::filesystem::path& file) {
    std::error_code ec;
    const auto status = std::filesystem::status(file, ec);
    using std::filesystem::perms;
    return std::filesystem::is_regular_file(status) &&
           (status.permissions() & (perms::owner_exec | perms::group_exec | perms::others_exec)) !=
               perms::none;
}

// An entry whose TryExec names a program that is not there (by its path, or by its name on
// the PATH) is not installed.
bool TryExecFound(std::string_view tryExec) {
    if (tryExec.empty()) return true;
    const std::filesystem::path program{std::string(tryExec)};
    if (program.is_absolute()) return IsExecutableFile(program);
    const char* path = std::getenv("PATH");
    const std::string_view folders = path ? path : "";
    for (std::size_t start = 0; start <= folders.size();) {
        std::size_t colon = folders.find(':', start);
        if (colon == std::string_view::npos) colon = folders.size();
        const std::string_view folder = folders.substr(start, colon - start);
        if (!folder.empty() &&
            IsExecutableFile(std::filesystem::path(std::string(folder)) / program))
            return true;
        start = colon + 1;
    }
    return false;
}

std::string JoinIds(const std::vector<std::string>& ids) {
    std::string value;
    for (const std::string& id : ids)
        value += id + ";";
    return value;
}

}  // namespace

std::vector<std::filesystem::path> MimeAppsListFiles(const XdgDirs& dirs) {
    std::vector<std::filesystem::path> levels;
    if (!dirs.configHome.empty()) levels.push_back(dirs.configHome);
    levels.insert(levels.end(), dirs.configDirs.begin(), dirs.configDirs.end());
    if (!dirs.dataHome.empty()) levels.push_back(dirs.dataHome / "applications");
    for (const std::filesystem::path& data : dirs.dataDirs)
        levels.push_back(data / "applications");
    std::vector<std::filesystem::path> files;
    for (const std::filesystem::path& level : levels) {
        for (const std::string& desktop : dirs.desktops)
            files.push_back(level / (desktop + "-mimeapps.list"));
        files.push_back(level / "mimeapps.list");
    }
    return files;
}

std::vector<std::filesystem::path> ApplicationFolders(const XdgDirs& dirs) {
    std::vector<std::filesystem::path> folders;
    if (!dirs.dataHome.empty()) folders.push_back(dirs.dataHome / "applications");
    for (const std::filesystem::path& data : dirs.dataDirs)
        folders.push_back(data / "applications");
    return folders;
}

std::optional<std::filesystem::path> FindDesktopEntry(
    const std::vector<std::filesystem::path>& folders, std::string_view desktopId) {
    if (desktopId.empty() || desktopId.find('/') != std::string_view::npos) return std::nullopt;
    for (const std::filesystem::path& folder : folders) {
        // Ids with a prefix per folder level are rare; a few levels are plenty.
        const auto found = FindInFolder(folder, desktopId, 3);
        if (!found) continue;
        const IniText entry = ReadDesktopFile(*found);
        const std::size_t group = entry.FindGroup(kEntryGroup);
        if (entry.Value(group, "Hidden").value_or("") == "true") return std::nullopt;
        if (!TryExecFound(entry.Value(group, "TryExec").value_or(""))) return std::nullopt;
        return found;
    }
    return std::nullopt;
}

std::vector<std::string> DesktopIdList(std::string_view value) {
    std::vector<std::string> ids;
    std::size_t start = 0;
    while (start <= value.size()) {
        std::size_t end = value.find(';', start);
        if (end == std::string_view::npos) end = value.size();
        std::string_view id = value.substr(start, end - start);
        while (!id.empty() && (id.front() == ' ' || id.front() == '\t'))
            id.remove_prefix(1);
        while (!id.empty() && (id.back() == ' ' || id.back() == '\t'))
            id.remove_suffix(1);
        if (!id.empty()) ids.emplace_back(id);
        start = end + 1;
    }
    return ids;
}

std::string DefaultApplication(const XdgDirs& dirs, std::string_view mimeType) {
    const std::vector<std::filesystem::path> folders = ApplicationFolders(dirs);
    for (const std::filesystem::path& file : MimeAppsListFiles(dirs)) {
        const TextFileRead read = ReadTextFile(file);
        if (read.status != TextFileRead::Status::Read) continue;
        const IniText list(read.text, IniText::Names::CaseSensitive);
        for (std::size_t group : list.FindGroups(kDefaults)) {
            const std::optional<std::string> value = list.Value(group, mimeType);
            if (!value) continue;
            for (const std::string& id : DesktopIdList(*value))
                if (FindDesktopEntry(folders, id)) return id;
        }
    }
    return {};
}

std::string SetDefaultApplication(std::string_view text, std::string_view mimeType,
                                  std::string_view desktopId, bool onlyWhereSet) {
    IniText list(text, IniText::Names::CaseSensitive);
    // Our id first, then the ids the type named before, in their order.
    std::vector<std::string> ids{std::string(desktopId)};
    const std::vector<std::size_t> defaults = list.FindGroups(kDefaults);
    std::size_t target = IniText::kNone;
    for (std::size_t group : defaults) {
        const auto value = list.Value(group, mimeType);
        if (!value) continue;
        if (target == IniText::kNone) target = group;
        for (const std::string& id : DesktopIdList(*value))
            if (std::find(ids.begin(), ids.end(), id) == ids.end()) ids.push_back(id);
    }
    if (target == IniText::kNone && onlyWhereSet) return std::string(text);
    // One line per type: later groups of the same name lose theirs (last first, so that the
    // line numbers of the groups before stay right).
    for (auto group = defaults.rbegin(); group != defaults.rend(); ++group)
        if (*group != target) list.RemoveKey(*group, mimeType);
    if (target == IniText::kNone)
        target = defaults.empty() ? list.AddGroup(kDefaults) : defaults.front();
    list.SetValue(target, mimeType, JoinIds(ids), IniText::Insert::AtGroupEnd);

    if (!onlyWhereSet) {
        const std::vector<std::size_t> removed = list.FindGroups(kRemoved);
        for (auto group = removed.rbegin(); group != removed.rend(); ++group) {
            const auto value = list.Value(*group, mimeType);
            if (!value) continue;
            std::vector<std::string> kept = DesktopIdList(*value);
            std::erase(kept, std::string(desktopId));
            if (kept.empty()) {
                list.RemoveKey(*group, mimeType);
                list.RemoveGroupIfEmpty(*group);
            } else {
                list.SetValue(*group, mimeType, JoinIds(kept), IniText::Insert::AtGroupEnd);
            }
        }
    }
    const std::string edited = list.Text("\n");
    // A text whose only difference is the form of its line ends is not rewritten.
    return edited == IniText(text, IniText::Names::CaseSensitive).Text("\n") ? std::string(text)
                                                                             : edited;
}

}  // namespace iw
