#include "services/desktop/FolderIconFiles.h"

#include "services/desktop/IniText.h"

namespace iw {
namespace {

constexpr std::string_view kShellSection = ".ShellClassInfo";
constexpr std::string_view kIconFile = "IconFile";
constexpr std::string_view kIconIndex = "IconIndex";
constexpr std::string_view kEntryGroup = "Desktop Entry";
constexpr std::string_view kIcon = "Icon";

IniText DesktopIni(std::string_view text) {
    return IniText(text, IniText::Names::IgnoreCase);
}

IniText DirectoryFile(std::string_view text) {
    return IniText(text, IniText::Names::CaseSensitive);
}

// Takes the keys out of every group of that name (last first, so that the line numbers of
// the groups before stay right), dropping a group that is left empty. A file edited by hand
// may repeat a group; the shell reads the first.
void RemoveKeys(IniText& ini, std::string_view group, std::initializer_list<std::string_view> keys,
                bool keepFirst) {
    const std::vector<std::size_t> groups = ini.FindGroups(group);
    for (auto it = groups.rbegin(); it != groups.rend(); ++it) {
        if (keepFirst && it + 1 == groups.rend()) break;
        for (std::string_view key : keys)
            ini.RemoveKey(*it, key);
        ini.RemoveGroupIfEmpty(*it);
    }
}

}  // namespace

std::optional<DesktopIniIcon> ReadDesktopIniIcon(std::string_view text) {
    const IniText ini = DesktopIni(text);
    const std::size_t section = ini.FindGroup(kShellSection);
    auto file = ini.Value(section, kIconFile);
    if (!file || file->empty()) return std::nullopt;
    return DesktopIniIcon{std::move(*file), ini.Value(section, kIconIndex).value_or("")};
}

std::string SetDesktopIniIcon(std::string_view text, std::string_view iconFile, int iconIndex) {
    IniText ini = DesktopIni(text);
    RemoveKeys(ini, kShellSection, {kIconFile, kIconIndex}, true);
    std::size_t section = ini.FindGroup(kShellSection);
    if (section == IniText::kNone) section = ini.AddGroup(kShellSection, false);
    // Each missing line goes right after the header: the index first, so that the file line
    // ends up above it.
    ini.SetValue(section, kIconIndex, std::to_string(iconIndex), IniText::Insert::AfterHeader);
    ini.SetValue(section, kIconFile, iconFile, IniText::Insert::AfterHeader);
    return ini.Text("\r\n");
}

std::string RemoveDesktopIniIcon(std::string_view text) {
    IniText ini = DesktopIni(text);
    if (ini.FindGroup(kShellSection) == IniText::kNone) return std::string(text);
    RemoveKeys(ini, kShellSection, {kIconFile, kIconIndex}, false);
    return ini.Text("\r\n");
}

std::optional<std::string> ReadDirectoryIcon(std::string_view text) {
    const IniText entry = DirectoryFile(text);
    auto icon = entry.Value(entry.FindGroup(kEntryGroup), kIcon);
    if (!icon || icon->empty()) return std::nullopt;
    return icon;
}

std::string SetDirectoryIcon(std::string_view text, std::string_view icon) {
    IniText entry = DirectoryFile(text);
    std::size_t group = entry.FindGroup(kEntryGroup);
    if (group == IniText::kNone) group = entry.AddGroup(kEntryGroup);
    entry.SetValue(group, kIcon, icon, IniText::Insert::AtGroupEnd);
    return entry.Text("\n");
}

std::string RemoveDirectoryIcon(std::string_view text) {
    IniText entry = DirectoryFile(text);
    if (entry.FindGroup(kEntryGroup) == IniText::kNone) return std::string(text);
    RemoveKeys(entry, kEntryGroup, {kIcon}, false);
    return entry.Text("\n");
}

bool NothingLeft(std::string_view text) {
    return IniText(text, IniText::Names::CaseSensitive).Blank();
}

std::string FileUri(const std::filesystem::path& path) {
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string uri = "file://";
    for (unsigned char c : path.generic_string()) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                           (c >= '0' && c <= '9') || c == '-' || c == '.' || c == '_' || c == '~' ||
                           c == '/';
        if (plain) {
            uri += static_cast<char>(c);
        } else {
            uri += '%';
            uri += kHex[c >> 4];
            uri += kHex[c & 15];
        }
    }
    return uri;
}

}  // namespace iw
