#pragma once
// The animated cursor's commands in the main window: Sequence Editor (mode menu and tbrMain),
// Preview Animated Cursor (mode menu) and Properties (File menu), shown in animated cursor
// mode only.

namespace iw::ui {

class MainWindow;

void InstallAnimationMenu(MainWindow& window);

}  // namespace iw::ui
