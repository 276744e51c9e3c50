#pragma once
// Giving a folder an icon, reading it and taking it away. Windows reads the folder's
// "desktop.ini" (hidden, in a folder marked System); on a freedesktop system the same is
// written, and besides it the ".directory" file KDE's Dolphin reads and the
// "metadata::custom-icon" attribute GNOME's Nautilus reads (set with gio, where gio is).

#include <filesystem>
#include <optional>
#include <string>

#include "platform/Shell.h"
#include "services/core/MessageService.h"
#include "services/desktop/FolderIconFiles.h"
#include "services/desktop/ProgramRunner.h"

namespace iw {

struct FolderIconRequest {
    std::filesystem::path folder;
    std::filesystem::path icon;
    int index = 0;      // the icon's index in its file ("IconIndex=")
    bool copy = false;  // chkCopy: copy the icon into the folder as "folder.ico"
};

enum class FolderIconStatus {
    Done,
    NoFolder,     // "Please select a folder." was shown; nothing written
    InvalidIcon,  // "Please select a valid icon." was shown; nothing written
    WriteFailed,  // a file could not be read or written
};

struct FolderIconResult {
    FolderIconStatus status = FolderIconStatus::Done;
    // gio was there but did not set GNOME's attribute (a desktop without its metadata store).
    bool metadataNotSet = false;
};

// True when the program's reader reads at least one image from `file`.
bool IsReadableIcon(const std::filesystem::path& file);

class FolderIcons {
  public:
    explicit FolderIcons(platform::DesktopShell shell = platform::CurrentDesktopShell(),
                         ProgramRunner run = SystemProgramRunner());

    // The wizard's last step. With the copy option the icon becomes the folder's hidden
    // "folder.ico" and "IconFile=folder.ico"; otherwise "IconFile=" names the icon's full path.
    // "desktop.ini" keeps its other lines and ends up hidden, the folder marked System.
    FolderIconResult SetIcon(const FolderIconRequest& request, MessageService& messages);
    // Takes the icon away: our keys leave "desktop.ini" and ".directory" (a file with nothing
    // else left is deleted, "desktop.ini" with the folder's System mark), a copied
    // "folder.ico" is deleted and GNOME's attribute unset. False when a file could not be
    // written or deleted.
    bool RemoveIcon(const std::filesystem::path& folder);

    // The folder's icon as "desktop.ini" names it (on a freedesktop system, as ".directory"
    // does when there is no "desktop.ini" icon); nullopt for none.
    std::optional<DesktopIniIcon> CurrentIcon(const std::filesystem::path& folder) const;
    // The same as the wizard shows it: the icon file, or "[no icon]".
    std::string CurrentIconText(const std::filesystem::path& folder) const;

  private:
    bool Freedesktop() const { return shell_ == platform::DesktopShell::Freedesktop; }
    bool WriteDesktopIni(const std::filesystem::path& folder, const std::string& iconFile,
                         int index);
    bool CopyIcon(const std::filesystem::path& icon, const std::filesystem::path& copy);

    platform::DesktopShell shell_;
    ProgramRunner run_;
};

}  // namespace iw
