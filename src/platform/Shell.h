#pragma once
// The desktop shell: which conventions the platform's file managers follow, and the
// notifications that make them see a change at once.

#include <filesystem>

namespace iw::platform {

enum class DesktopShell {
    Windows,      // Explorer: the registry's file classes, "desktop.ini" with file attributes
    Freedesktop,  // Linux and other Unix desktops: desktop entries, mimeapps.list
};

DesktopShell CurrentDesktopShell();

// Tells the shell that file associations changed (SHChangeNotify). False where the shell has
// no such notification.
bool NotifyAssociationsChanged();
// Tells the shell that a folder's look changed so that it redraws its icon. Nothing happens
// where the shell watches the files itself.
void NotifyFolderChanged(const std::filesystem::path& folder);

}  // namespace iw::platform
