#pragma once
// The Edit menu's clipboard and selection commands (Cut, Copy, Paste, Delete, Select All
// under Undo and Repeat), the Text tool's window and Set Hotspot for cursors, installed
// into the main window.

namespace iw::ui {

class MainWindow;

void InstallEditFeatures(MainWindow& window);

}  // namespace iw::ui
