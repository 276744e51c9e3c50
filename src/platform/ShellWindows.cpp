#include <shlobj.h>
#include <windows.h>

#include "platform/Shell.h"

namespace iw::platform {

DesktopShell CurrentDesktopShell() {
    return DesktopShell::Windows;
}

bool NotifyAssociationsChanged() {
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
    return true;
}

void NotifyFolderChanged(const std::filesystem::path& folder) {
    SHChangeNotify(SHCNE_UPDATEDIR, SHCNF_PATHW, folder.c_str(), nullptr);
}

}  // namespace iw::platform
