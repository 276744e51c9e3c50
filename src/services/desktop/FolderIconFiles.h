#pragma once
// The texts that give a folder its icon: Windows' "desktop.ini" ("[.ShellClassInfo]" with
// "IconFile=" and "IconIndex=", lines ended by CR LF) and the ".directory" file KDE's file
// manager reads ("[Desktop Entry]" with "Icon="). Each edit keeps every other line.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace iw {

struct DesktopIniIcon {
    std::string iconFile;   // "folder.ico" or a full path
    std::string iconIndex;  // as written, normally a number
};

// The icon a "desktop.ini" text names; nullopt when its section has no "IconFile=".
std::optional<DesktopIniIcon> ReadDesktopIniIcon(std::string_view text);
// Sets "IconFile=" and "IconIndex=" in "[.ShellClassInfo]": a line that is there gets the new
// value (and a repeated one is dropped), a missing one is put after the section's header, a
// missing section is added at the end. The text comes back with CR LF line ends.
std::string SetDesktopIniIcon(std::string_view text, std::string_view iconFile, int iconIndex);
// Takes "IconFile=" and "IconIndex=" out of the section, and the section's header when
// nothing else is left in it. Blank when nothing is left of the file.
std::string RemoveDesktopIniIcon(std::string_view text);

// The same for ".directory" (lines ended by LF).
std::optional<std::string> ReadDirectoryIcon(std::string_view text);
std::string SetDirectoryIcon(std::string_view text, std::string_view icon);
std::string RemoveDirectoryIcon(std::string_view text);

// True when every line of the text is blank: such a file is deleted rather than kept.
bool NothingLeft(std::string_view text);

// The file:// URI of an absolute path, each byte outside the unreserved characters and "/"
// written as %XX.
std::string FileUri(const std::filesystem::path& path);

}  // namespace iw
