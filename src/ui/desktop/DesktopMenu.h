#pragma once
// The desktop windows' commands: File > Set Folder Icon (frmFolder), File > Favicon Wizard
// (frmFavicon) and Tools > File Types (frmFileType).

namespace iw::ui {

class MainWindow;

void InstallDesktopMenu(MainWindow& window);

}  // namespace iw::ui
