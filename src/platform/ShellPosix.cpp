// Freedesktop file managers watch mimeapps.list and the folders' files themselves; there is
// nothing to notify.
#include "platform/Shell.h"

namespace iw::platform {

DesktopShell CurrentDesktopShell() {
    return DesktopShell::Freedesktop;
}

bool NotifyAssociationsChanged() {
    return false;
}

void NotifyFolderChanged(const std::filesystem::path&) {}

}  // namespace iw::platform
