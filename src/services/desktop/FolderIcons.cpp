#include "services/desktop/FolderIcons.h"

#include "document/io/IconFileReader.h"
#include "document/model/IconSet.h"
#include "platform/FileAttributes.h"
#include "services/core/QuietContext.h"
#include "services/desktop/DesktopTexts.h"
#include "services/desktop/IniText.h"
#include "services/desktop/TextCase.h"
#include "services/desktop/TextFiles.h"

namespace iw {
namespace {

using platform::ChangeFileAttributes;
using platform::kAllAttributes;
using platform::kAttributeHidden;
using platform::kAttributeSystem;

constexpr std::string_view kDesktopIni = "desktop.ini";
constexpr std::string_view kFolderIco = "folder.ico";
constexpr std::string_view kDirectoryFile = ".directory";
constexpr std::string_view kCustomIcon = "metadata::custom-icon";
// An icon file is read whole; the reader refuses more than this anyway.
constexpr std::size_t kMaxIconBytes = std::size_t{512} << 20;

bool Exists(const std::filesystem::path& file) {
    std::error_code ec;
    return std::filesystem::exists(file, ec);
}

// Writes a file the shell keeps hidden: its attributes are cleared first (a hidden or
// read-only file cannot be replaced) and it is marked Hidden again afterwards.
bool WriteHiddenFile(const std::filesystem::path& file, std::string_view bytes) {
    if (Exists(file)) ChangeFileAttributes(file, 0, kAllAttributes);
    const bool written = WriteTextFileIfChanged(file, bytes);
    ChangeFileAttributes(file, kAttributeHidden, kAllAttributes);
    return written;
}

bool RemoveFileIfThere(const std::filesystem::path& file) {
    if (!Exists(file)) return true;
    ChangeFileAttributes(file, 0, kAllAttributes);
    std::error_code ec;
    return std::filesystem::remove(file, ec);
}

// Rewrites a file with its edited text, or deletes it when nothing is left in it.
bool ReplaceOrDelete(const std::filesystem::path& file, const std::string& original,
                     const std::string& edited, bool hidden) {
    if (NothingLeft(edited)) return RemoveFileIfThere(file);
    if (edited == original) return true;
    return hidden ? WriteHiddenFile(file, edited) : WriteTextFileIfChanged(file, edited);
}

std::string PathText(const std::filesystem::path& path) {
    return path.string();
}

}  // namespace

bool IsReadableIcon(const std::filesystem::path& file) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(file, ec)) return false;
    QuietContext quiet;
    IconSet set;
    return ReadIconFile(PathText(file), set, quiet.Context()) && set.Count() > 0;
}

FolderIcons::FolderIcons(platform::DesktopShell shell, ProgramRunner run)
    : shell_(shell), run_(std::move(run)) {}

bool FolderIcons::CopyIcon(const std::filesystem::path& icon, const std::filesystem::path& copy) {
    // The folder's own copy given again reads the same bytes, and nothing is written.
    const TextFileRead bytes = ReadTextFile(icon, kMaxIconBytes);
    if (bytes.status != TextFileRead::Status::Read) return false;
    return WriteHiddenFile(copy, bytes.text);
}

bool FolderIcons::WriteDesktopIni(const std::filesystem::path& folder, const std::string& iconFile,
                                  int index) {
    const std::filesystem::path file = folder / kDesktopIni;
    const TextFileRead read = ReadTextFile(file);
    if (read.status == TextFileRead::Status::Failed) return false;
    if (!WriteHiddenFile(file, SetDesktopIniIcon(read.text, iconFile, index))) return false;
    // The shell reads "desktop.ini" only in a folder marked System.
    ChangeFileAttributes(folder, kAttributeSystem, 0);
    return true;
}

FolderIconResult FolderIcons::SetIcon(const FolderIconRequest& request, MessageService& messages) {
    FolderIconResult result;
    std::error_code ec;
    if (request.folder.empty() || !std::filesystem::is_directory(request.folder, ec)) {
        messages.Show(texts::SelectFolderMessage, MessageType::Exclamation);
        result.status = FolderIconStatus::NoFolder;
        return result;
    }
    if (request.icon.empty() || !IsReadableIcon(request.icon)) {
        messages.Show(texts::SelectIcon, MessageType::Exclamation);
        result.status = FolderIconStatus::InvalidIcon;
        return result;
    }
    const std::filesystem::path folder = std::filesystem::absolute(request.folder, ec);
    std::filesystem::path icon = std::filesystem::absolute(request.icon, ec);
    std::string iconFile = PathText(icon);
    if (request.copy) {
        icon = folder / kFolderIco;
        iconFile = std::string(kFolderIco);
        if (!CopyIcon(request.icon, icon)) {
            result.status = FolderIconStatus::WriteFailed;
            return result;
        }
    }
    if (!WriteDesktopIni(folder, iconFile, request.index)) {
        result.status = FolderIconStatus::WriteFailed;
        return result;
    }
    if (Freedesktop()) {
        const std::filesystem::path directory = folder / kDirectoryFile;
        const TextFileRead read = ReadTextFile(directory);
        if (read.status == TextFileRead::Status::Failed ||
            !WriteTextFileIfChanged(
                directory, SetDirectoryIcon(read.text, EscapeDesktopString(PathText(icon))))) {
            result.status = FolderIconStatus::WriteFailed;
            return result;
        }
        const platform::ProgramRun gio =
            run_("gio", {"set", PathText(folder), std::string(kCustomIcon), FileUri(icon)});
        result.metadataNotSet = gio.started && gio.exitCode != 0;
    }
    platform::NotifyFolderChanged(folder);
    return result;
}

bool FolderIcons::RemoveIcon(const std::filesystem::path& folder) {
    bool ok = true;
    const std::filesystem::path ini = folder / kDesktopIni;
    const TextFileRead iniText = ReadTextFile(ini);
    if (iniText.status == TextFileRead::Status::Failed) {
        ok = false;
    } else if (iniText.status == TextFileRead::Status::Read) {
        const auto named = ReadDesktopIniIcon(iniText.text);
        const std::string edited = RemoveDesktopIniIcon(iniText.text);
        ok = ReplaceOrDelete(ini, iniText.text, edited, true);
        if (ok && NothingLeft(edited)) ChangeFileAttributes(folder, 0, kAttributeSystem);
        if (named && EqualsNoCase(named->iconFile, kFolderIco))
            ok = RemoveFileIfThere(folder / kFolderIco) && ok;
    }
    if (Freedesktop()) {
        const std::filesystem::path directory = folder / kDirectoryFile;
        const TextFileRead read = ReadTextFile(directory);
        if (read.status == TextFileRead::Status::Failed) {
            ok = false;
        } else if (read.status == TextFileRead::Status::Read) {
            ok = ReplaceOrDelete(directory, read.text, RemoveDirectoryIcon(read.text), false) && ok;
        }
        run_("gio", {"set", "-t", "unset", PathText(folder), std::string(kCustomIcon)});
    }
    platform::NotifyFolderChanged(folder);
    return ok;
}

std::optional<DesktopIniIcon> FolderIcons::CurrentIcon(const std::filesystem::path& folder) const {
    const TextFileRead ini = ReadTextFile(folder / kDesktopIni);
    if (auto icon = ReadDesktopIniIcon(ini.text)) return icon;
    if (!Freedesktop()) return std::nullopt;
    const TextFileRead directory = ReadTextFile(folder / kDirectoryFile);
    if (auto icon = ReadDirectoryIcon(directory.text))
        return DesktopIniIcon{UnescapeDesktopString(*icon), ""};
    return std::nullopt;
}

std::string FolderIcons::CurrentIconText(const std::filesystem::path& folder) const {
    const auto icon = CurrentIcon(folder);
    return icon ? icon->iconFile : GetText(texts::NoFolderIcon);
}

}  // namespace iw
