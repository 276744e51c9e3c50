#include "services/desktop/FreedesktopAssociations.h"

#include "services/desktop/AppIdentity.h"
#include "services/desktop/IniText.h"
#include "services/desktop/MimeApps.h"
#include "services/desktop/TextFiles.h"

namespace iw {
namespace {

constexpr std::string_view kEntryGroup = "Desktop Entry";
// Marks a user entry this program wrote for a copy of itself outside an installation.
constexpr std::string_view kGeneratedKey = "X-Iconwright-Generated";

bool SameFolder(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code ec;
    if (std::filesystem::equivalent(a, b, ec)) return true;
    return a.lexically_normal() == b.lexically_normal();
}

bool EditList(const std::filesystem::path& file, std::string_view mimeType, bool onlyWhereSet) {
    const TextFileRead read = ReadTextFile(file);
    if (read.status == TextFileRead::Status::Failed) return false;
    if (read.status == TextFileRead::Status::Missing && onlyWhereSet) return true;
    const std::string edited =
        SetDefaultApplication(read.text, mimeType, DesktopId(), onlyWhereSet);
    if (read.status == TextFileRead::Status::Read && edited == read.text) return true;
    std::error_code ec;
    std::filesystem::create_directories(file.parent_path(), ec);
    return WriteTextFileIfChanged(file, edited);
}

}  // namespace

std::string ExecArgument(std::string_view argument) {
    constexpr std::string_view kReserved = " \t\n\"'\\><~|&;$*?#()`";
    std::string quoted;
    const bool quote = argument.empty() || argument.find_first_of(kReserved) != std::string::npos;
    if (quote) quoted += '"';
    for (char c : argument) {
        if (quote && (c == '"' || c == '`' || c == '$' || c == '\\')) quoted += '\\';
        if (c == '%') quoted += '%';
        quoted += c;
    }
    if (quote) quoted += '"';
    return EscapeDesktopString(quoted);
}

std::string UserDesktopEntryText(const std::filesystem::path& program) {
    const std::string path = program.string();
    if (path.find_first_of("\r\n") != std::string::npos) return {};
    IniText entry(DesktopEntryText(), IniText::Names::CaseSensitive);
    const std::size_t group = entry.FindGroup(kEntryGroup);
    entry.SetValue(group, "Exec", ExecArgument(path) + " %F", IniText::Insert::AtGroupEnd);
    entry.SetValue(group, "TryExec", EscapeDesktopString(path), IniText::Insert::AtGroupEnd);
    entry.SetValue(group, kGeneratedKey, "true", IniText::Insert::AtGroupEnd);
    return entry.Text("\n");
}

FreedesktopAssociations::FreedesktopAssociations(XdgDirs dirs, std::filesystem::path program,
                                                 ProgramRunner run)
    : dirs_(std::move(dirs)), program_(std::move(program)), run_(std::move(run)) {}

bool FreedesktopAssociations::InstalledEntryVisible() const {
    // <prefix>/bin/iconwright goes with <prefix>/share/applications/<id>.desktop, which the
    // desktop reads when <prefix>/share is one of its data folders.
    const std::filesystem::path share =
        (program_.parent_path() / DataFolderFromBin()).lexically_normal().parent_path();
    std::error_code ec;
    if (!std::filesystem::is_regular_file(share / "applications" / DesktopId(), ec)) return false;
    if (!dirs_.dataHome.empty() && SameFolder(share, dirs_.dataHome)) return true;
    for (const std::filesystem::path& data : dirs_.dataDirs)
        if (SameFolder(share, data)) return true;
    return false;
}

bool FreedesktopAssociations::EnsureDesktopEntry() {
    if (dirs_.dataHome.empty()) return false;
    const std::filesystem::path folder = dirs_.dataHome / "applications";
    const std::filesystem::path userEntry = folder / DesktopId();
    const TextFileRead existing = ReadTextFile(userEntry);
    const IniText existingEntry(existing.text, IniText::Names::CaseSensitive);
    const bool ours =
        existingEntry.Value(existingEntry.FindGroup(kEntryGroup), kGeneratedKey) == "true";
    std::error_code ec;

    if (InstalledEntryVisible()) {
        if (!ours) return true;
        std::filesystem::remove(userEntry, ec);
        if (ec) return false;
    } else {
        const std::string text = UserDesktopEntryText(program_);
        if (text.empty()) return false;
        if (existing.status == TextFileRead::Status::Read && existing.text == text) return true;
        // A user's own entry of that id (a menu editor's copy, say) is the one the desktop
        // shows; it is theirs to keep.
        if (existing.status != TextFileRead::Status::Missing && !ours) return true;
        std::filesystem::create_directories(folder, ec);
        if (!WriteTextFileIfChanged(userEntry, text)) return false;
    }
    // Desktops that read the folder's MIME cache see the change at once.
    run_("update-desktop-database", {folder.string()});
    return true;
}

bool FreedesktopAssociations::Register(const FileType& type) {
    if (dirs_.configHome.empty() || !EnsureDesktopEntry()) return false;
    bool ok = EditList(dirs_.configHome / "mimeapps.list", type.mimeType, false);
    for (const std::string& desktop : dirs_.desktops)
        ok = EditList(dirs_.configHome / (desktop + "-mimeapps.list"), type.mimeType, true) && ok;
    return ok;
}

bool FreedesktopAssociations::IsDefault(const FileType& type) {
    return DefaultApplication(dirs_, type.mimeType) == DesktopId();
}

}  // namespace iw
