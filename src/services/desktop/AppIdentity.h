#pragma once
// Who the program is to the desktop: its application id and desktop entry, and where the
// installed program keeps its data. The values come from the build (cmake/AppIdentity.cmake).

#include <filesystem>
#include <string>
#include <string_view>

namespace iw {

// The reverse-DNS application id, "com.quorvale.Iconwright".
std::string_view AppId();
// The desktop file id of the program's desktop entry: the application id and ".desktop".
std::string DesktopId();
// The installed desktop entry, whole ("Exec=iconwright %F").
std::string_view DesktopEntryText();
// The installed data folder relative to the folder of the installed executables
// ("../share/iconwright" for the usual layout).
std::filesystem::path DataFolderFromBin();

}  // namespace iw
