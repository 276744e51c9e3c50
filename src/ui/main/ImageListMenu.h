#pragma once
// The image commands of the icon list's context menu (on the image clicked) and of the mode
// menu "&Icon"/"&Cursor" (on the image being edited): Add Format, Remove Icon, Change
// Attributes, Move Up and Move Down, the first and the third through frmAttributes.

namespace iw::ui {

class MainWindow;

void InstallImageListMenu(MainWindow& window);

}  // namespace iw::ui
