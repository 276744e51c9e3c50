#pragma once
// The windows beyond the main window's own parts (adjustments, image operations, import,
// animated cursors, options, folder icons, favicon, ...) each add their menu commands from a
// file of their own; this calls each of them once, when the main window has its menus.

namespace iw::ui {

class MainWindow;

void InstallWindowFeatures(MainWindow& window);

}  // namespace iw::ui
