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
    const std::size_t section = ini.FindGroup(kShellSection);
    if (section == IniText::kNone) return std::string(text);
    ini.RemoveKey(section, kIconFile);
    ini.RemoveKey(section, kIconIndex);
    ini.RemoveGroupIfEmpty(section);
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
    const std::size_t group = entry.FindGroup(kEntryGroup);
    if (group == IniText::kNone) return std::string(text);
    entry.RemoveKey(group, kIcon);
    entry.RemoveGroupIfEmpty(group);
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
